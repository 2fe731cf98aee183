#pragma once

#include "platform/windows/types.h"

// Messages to windows of other processes of this user; a window belongs to the installation of its process.
// The answering side is CMessageWindow.

/// The window of a class (in any case), null when no living process serves it. Windows have no titles here: a
/// title that is not null finds none, a null or empty class neither. A handle stays good as long as this
/// process.
HWND FindWindowA(const char* className, const char* title);

/// Delivers the message and returns its answer; 0 when the window is gone, or has not answered within 3 s.
LRESULT SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
