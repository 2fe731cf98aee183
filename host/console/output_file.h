#pragma once

#include <string>

/// Writes a command's output in place of what the file held; throws CRunFailure when it cannot.
void WriteOutputFile(const std::string& path, const std::string& content);
