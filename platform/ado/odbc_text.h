#pragma once

#include <string>
#include <string_view>

// Drivers take and give text in UTF-16, whatever the program's locale is.

/// UTF-8 in UTF-16; broken bytes become U+FFFD.
std::u16string Utf16FromUtf8(std::string_view strUtf8);

/// UTF-16 in UTF-8; half a pair becomes U+FFFD.
std::string Utf8FromUtf16(std::u16string_view strUtf16);
