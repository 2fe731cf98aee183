#pragma once

#include <QtWidgets/QWidget>

#include "platform/windows/message_box.h"

/// Shows a message box and gives the button pressed. Enter presses the first button; Escape, and closing the
/// box, the one for giving up.
int ShowMessageBox(QWidget* pParent, const std::wstring& strText, const std::wstring& strCaption,
                   UINT uStyle);

/// The host's part of message boxes in a program with windows; pMainWindow, which may be null, outlives its
/// registration. Boxes stand before the window that has the user, whatever owner they name.
CMessageBoxHost DesktopMessageBoxes(QWidget* pMainWindow);
