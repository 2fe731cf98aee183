#pragma once

#include <string>

/// Makes a folder an installation: folders, ini files, the suite's databases, line types. CFailure (refused)
/// when it holds one already.
void MakeInstallation(const std::string& strRoot);
