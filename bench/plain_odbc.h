#pragma once

#include <string>

/// Reads every sample as a plain program does that connects anew for each. The text is what a driver manager
/// takes.
void ReadSamplesByPlainOdbc(std::string strConnection);
