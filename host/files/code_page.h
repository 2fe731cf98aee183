#pragma once
// Code pages of drawing files' texts, by the system's numbers: 936, 1252, ...

#include <cstdint>
#include <string_view>

inline constexpr int g_nWesternPage = 1252, g_nChinesePage = 936, g_nUtf8Page = 65001;

// Their numbers in a DWG file.
inline constexpr std::uint16_t g_nDwgAnsi1252 = 30;
inline constexpr std::uint16_t g_nDwgAnsi936 = 39;

/// The page of a number in a DWG file; the Western one for a number that is none.
int CodePageOfDwg(std::uint16_t nNumber);

/// The page that a DXF file names ("ANSI_936", "gb2312", "dos850"); the Western one for a name without a
/// number.
int CodePageOfDxf(std::string_view name);
