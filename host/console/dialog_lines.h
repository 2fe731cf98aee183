#pragma once
// What a line of a script does in a dialog.

#include <stdexcept>
#include <string>

#include "platform/mfc/modal_window.h"

/// A line that cannot be done here. It never travels through a handler's frames.
class CBadDialogLine : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Does what the line says, as a user's hand would, with the handlers that this runs; gives the lines that it
/// prints. The texts are UTF-8. CBadDialogLine for what is none here; nothing is done then, but for a list
/// whose handler took away an entry still to be selected.
std::vector<std::string> RunDialogLine(CModalWindow& window, const std::string& strLine);
