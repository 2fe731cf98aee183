#pragma once

#include "host/console/program_options.h"

/// Runs a script to its end and gives the program's exit status. strRootGbk is the installation's root.
/// Failures are told on standard error.
int RunScript(const CProgramOptions& options, const std::string& strRootGbk);
