#pragma once

/// Runs one call of the program; the result is its exit status.
int RunCommandLine(int nArguments, char** ppArguments);
