#pragma once

#include "host/console/program_options.h"

#include <optional>

/// Opens the window and works until the user quits; the program's exit status, or nothing where no window can
/// be opened. strRootGbk is the installation's root.
std::optional<int> RunDesktop(const CProgramOptions& options, const std::string& strRootGbk);
