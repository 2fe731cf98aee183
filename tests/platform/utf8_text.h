#pragma once

#include <string>

/// A u8 literal as bytes.
inline std::string Utf8(const char8_t* text) {
    return reinterpret_cast<const char*>(text);
}
