#pragma once

#include <vector>

#include "platform/mfc/window.h"

/// Makes these rows, in ascending order, the selected entries of a list, entry after entry as a user's hand
/// does: each entry taken or given up is told to the dialog, whose handlers may change the list in between.
void ChangeSelection(CWnd& list, const std::vector<int>& arRows);
