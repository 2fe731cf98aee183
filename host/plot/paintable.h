#pragma once

#include <cmath>

/// True when both page coordinates (mm) are finite and near enough to a page for every device to compute
/// with.
inline bool IsPaintable(double x, double y) {
    constexpr double FARTHEST = 1e6;
    return std::abs(x) <= FARTHEST && std::abs(y) <= FARTHEST; // false for what is no number
}
