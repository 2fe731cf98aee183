#pragma once

#include <QtWidgets/QWidget>

#include "platform/mfc/modal_window.h"

/// Shows dialogs as windows and lets the user work in them. Needs a running application; what a handler
/// throws comes out of RunModal, past the application's event loop.
class CDesktopDialogPresenter : public CDialogPresenter {
public:
    /// Dialogs stand before pMainWindow, which may be null, or before the dialog that is open already.
    explicit CDesktopDialogPresenter(QWidget* pMainWindow)
        : m_pMainWindow(pMainWindow) {}

    void RunModal(CModalWindow& window) override;

private:
    QWidget* m_pMainWindow;
};
