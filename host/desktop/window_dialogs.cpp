#include "host/desktop/window_dialogs.h"

#include "host/desktop/dialogs/message_boxes.h"

CWindowDialogs::CWindowDialogs(QWidget& mainWindow)
    : m_presenter(&mainWindow) {
    SetDialogPresenter(&m_presenter);
    SetMessageBoxHost(DesktopMessageBoxes(&mainWindow));
}

CWindowDialogs::~CWindowDialogs() {
    SetDialogPresenter(nullptr);
    SetMessageBoxHost({});
}
