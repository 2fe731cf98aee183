#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/windows/types.h"

/// What a letter of an icon stands for.
struct CIconColor {
    char m_cLetter = ' ';
    std::uint32_t m_nArgb = 0; ///< 0xAARRGGBB; AA is 0 for what shows through
};

/// An icon of SIZE x SIZE pixels, row by row, a letter each; at half the size four neighbours make one.
struct CIconTemplate {
    static constexpr int SIZE = 32;

    UINT m_nId = 0;
    std::vector<CIconColor> m_arColors;
    std::string_view m_strPixels;
};
