#pragma once

#include "host/desktop/dialogs/dialog_presenter.h"

/// The message boxes and dialogs of modules as windows before the main window, registered while this lives.
class CWindowDialogs {
public:
    explicit CWindowDialogs(QWidget& mainWindow);
    ~CWindowDialogs();
    CWindowDialogs(const CWindowDialogs&) = delete;
    CWindowDialogs& operator=(const CWindowDialogs&) = delete;

private:
    CDesktopDialogPresenter m_presenter;
};
