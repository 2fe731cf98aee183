#pragma once

#include "platform/mfc/string.h"
#include "platform/windows/message_box.h"

/// The window that a box opened for hWindow belongs to: from it up to the first window that is no child, and
/// of that and its popups the one active last.
HWND FindBoxOwner(HWND hWindow);

/// The module's message box, caption "Tervo", owned by the main window. A style without an icon gets one: an
/// exclamation mark where the box only tells or asks OK-Cancel, a question mark where it asks Yes-No. Gives
/// the button pressed, IDOK and its like.
int ShowMessage(const CString& strText, UINT uStyle = MB_OK);
