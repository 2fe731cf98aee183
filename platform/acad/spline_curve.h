#pragma once
// The C2 cubic through given points in the plane: chord-length parameters, second derivative 0 at both ends
// (a natural spline; C. de Boor, A Practical Guide to Splines, ch. IV).

#include "platform/acad/geometry.h"

#include <array>
#include <vector>

/// One cubic piece by its four Bézier points.
struct CBezier {
    std::array<AcGePoint2d, 4> m_arPoints;
    AcGePoint2d At(double t) const;       ///< t from 0 to 1
    AcGeVector2d SlopeAt(double t) const; ///< the derivative by t
};

/// The pieces of the curve through the points. Equal neighbours count once; two different points give one
/// straight piece; fewer, or any coordinate that is no finite number, give nothing.
std::vector<CBezier> NaturalSpline(const std::vector<AcGePoint3d>& points);

/// Where a and b really cross, in order along a, each within 1e-9 of both. A point where an end of a and an
/// end of b merely meet is no crossing, nor one where the insides touch without changing sides; an end of one
/// on the inside of the other is. Curves that run along each other for a stretch have none there. The work is
/// bounded: of more than some hundred thousand crossings not all are given.
std::vector<AcGePoint2d> Crossings(const std::vector<CBezier>& a, const std::vector<CBezier>& b);
