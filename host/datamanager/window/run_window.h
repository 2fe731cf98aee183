#pragma once

#include <optional>

/// Opens the window and serves it until it is closed; the result is the program's exit status. Nothing, and
/// nothing done, where there is no display.
std::optional<int> RunWindow(int nArguments, char** ppArguments);
