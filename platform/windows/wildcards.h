#pragma once

#include <string_view>

/// Whether a file name fits a pattern, both in capitals, by the rules of FindFirstFileA: '*' stands for any
/// text; '?' for one character, or none where a dot or the end of the name comes; a dot before a wildcard for
/// the end of the name too; a '*' before the dot that ends a pattern for names without ending. `*.*` fits
/// every name.
bool FitsWildcards(std::wstring_view pattern, std::wstring_view name);
