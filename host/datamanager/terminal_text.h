#pragma once

#include <string>
#include <vector>

/// Text from a command line, UTF-8, in the code page. CFailure (refused) naming the character that it lacks.
std::string FromTerminal(const std::string& strUtf8);

/// Writes to standard output at once; CFailure when that fails.
void Print(const std::string& strUtf8);

/// Rows of GBK fields in columns two blanks apart, UTF-8, a line each. Every row has as many fields as the
/// first.
std::string AlignedTable(const std::vector<std::vector<std::string>>& arRows);
