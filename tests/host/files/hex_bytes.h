#pragma once

#include "host/files/bytes.h"

#include <string_view>

/// Bytes from their hexadecimal digits; blanks are left out.
inline CBytes HexBytes(std::string_view text) {
    CBytes bytes;
    unsigned nDigits = 0, nByte = 0;
    for (const char c : text) {
        if (c == ' ') continue;
        nByte = nByte << 4 | static_cast<unsigned>(c <= '9' ? c - '0' : c - 'A' + 10);
        if (++nDigits % 2 == 0) bytes.push_back(static_cast<std::uint8_t>(nByte));
    }
    return bytes;
}
