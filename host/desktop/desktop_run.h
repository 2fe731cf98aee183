#pragma once

#include "host/console/program_options.h"

/// Whether a window can be shown: a display or a platform of Qt's own is named in the environment.
bool HasDisplay();

/// Opens the window and works until the user quits; the program's exit status. strRootGbk is the
/// installation's root.
int RunDesktop(const CProgramOptions& options, const std::string& strRootGbk);
