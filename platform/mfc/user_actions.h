#pragma once
// What a user's hand does to a control. Each action changes the control as the control itself would, then
// tells the dialog. The caller has seen to it that the control is enabled and of a kind that the action is
// for.

#include "platform/mfc/modal_window.h"

/// A click on an entry of a list or combo box. With bKeepOthers the other entries of a list for several stay
/// selected.
void UserSelect(CWnd& control, int index, bool bKeepOthers = false);
/// Takes the selection from one entry of a list for several, or from the entry of another list or combo box.
void UserDeselect(CWnd& control, int index);
void UserDoubleClick(CWnd& list, int index);
/// A push button, a check box, which changes its state, or a radio button, which takes it from its group.
void UserClick(CWnd& control);
void UserSetText(CWnd& edit, const CString& text);
/// A date from the year CTime::FIRST_YEAR on.
void UserSetDate(CWnd& control, std::chrono::year_month_day date);
