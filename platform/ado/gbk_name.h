#pragma once

#include <string_view>

/// Whether two names in the code page are equal but for the case of ASCII letters. The second byte of a
/// double-byte character, which may look like a letter, is none.
bool SameGbkName(std::string_view strA, std::string_view strB);
