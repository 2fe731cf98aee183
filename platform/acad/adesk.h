#pragma once
// The base types of the CAD platform. Wide text is wchar_t, as the platform's interfaces take it.

#include <cstdint>

using ACHAR = wchar_t;

namespace Adesk {
using Int8 = std::int8_t;
using UInt8 = std::uint8_t;
using Int16 = std::int16_t;
using UInt16 = std::uint16_t;
using Int32 = std::int32_t;
using UInt32 = std::uint32_t;
using Int64 = std::int64_t;
using UInt64 = std::uint64_t;
using GsMarker = std::intptr_t;
using Boolean = int; // 32 bits, as the platform files it
inline constexpr Boolean kFalse = 0;
inline constexpr Boolean kTrue = 1;
} // namespace Adesk
