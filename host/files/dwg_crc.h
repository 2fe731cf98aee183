#pragma once

#include "host/files/bytes.h"

/// What every sum of a drawing file but the file header's older forms begins with.
inline constexpr std::uint16_t g_nDwgCrcSeed = 0xC0C1;

/// The 16-bit check sum of a drawing file over the bytes.
std::uint16_t DwgCrc(CByteView bytes, std::uint16_t nSeed = g_nDwgCrcSeed);
