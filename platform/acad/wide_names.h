#pragma once
// Names of commands and symbol table records: compared without case.

#include <string>
#include <string_view>

/// The name in upper case, letters beyond ASCII too; independent of the process locale.
std::wstring UpperName(std::wstring_view name);

/// True when the names are equal but for case.
bool SameName(std::wstring_view a, std::wstring_view b);
