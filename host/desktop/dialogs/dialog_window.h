#pragma once

#include <QtWidgets/QDialog>

#include <exception>

#include "host/desktop/dialogs/dialog_face.h"

/// A dialog or a sheet on the screen. After each thing that the user does it shows what the handlers made of
/// the model.
class CDialogWindow : public QDialog {
public:
    /// The model, whose controls exist, outlives the window.
    CDialogWindow(CModalWindow& model, QWidget* pParent);

    /// Returns when the dialog is closed, or throws what a handler threw.
    void Run();
    /// Escape and the closing mark: the dialog's cancel.
    void reject() override;

protected:
    /// What a handler has done so far is seen while its message box stands before the dialog.
    bool event(QEvent* pEvent) override;

private:
    void Act(const std::function<void()>& action);

    CModalWindow& m_model;
    CDialogFace m_face;
    std::exception_ptr m_failure;
};
