#pragma once

#include <string>

/// Makes a folder an installation: folders, ini files, the suite's databases with what every project needs of
/// them, line types, frame templates and the title strip. CFailure (refused) when it holds one already.
void MakeInstallation(const std::string& strRoot);
