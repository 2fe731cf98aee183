#pragma once

#include "platform/acad/bezier.h"

#include <vector>

/// Where a and b really cross, in order along a, each within 1e-9 of both. A point where an end of a and an
/// end of b merely meet is no crossing, nor one where the insides touch without changing sides; an end of one
/// on the inside of the other is. Curves that run along each other for a stretch have none there. The work is
/// bounded: of more than some hundred thousand crossings not all are given.
std::vector<AcGePoint2d> Crossings(const std::vector<CBezier>& a, const std::vector<CBezier>& b);
