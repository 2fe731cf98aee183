#pragma once
// How a dialog is written on a terminal. Texts given are UTF-8.

#include <string>
#include <vector>

#include "platform/mfc/modal_window.h"

/// `list`, `multilist`, `combo`, ...
const char* KindName(CControlKind kind);

/// A text of the dialog in double quotes, quotes in it doubled, line breaks written \n.
std::string QuotedText(const CString& text);

/// The controls that the user sees, in tab order.
std::vector<CWnd*> VisibleItems(const CModalWindow& window);

/// The numbers and kinds of these controls on one line.
std::string NamesOfItems(const CModalWindow& window);

/// The lines of `show`.
std::vector<std::string> DialogLines(const CModalWindow& window);
