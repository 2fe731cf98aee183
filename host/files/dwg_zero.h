#pragma once

#include <bit>
#include <cstdint>

/// Whether a number is zero and not the negative one, which a file must not leave out.
inline bool IsPlainZero(double d) {
    return std::bit_cast<std::uint64_t>(d) == 0;
}
