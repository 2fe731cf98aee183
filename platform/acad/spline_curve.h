#pragma once
// The C2 cubic through given points in the plane: chord-length parameters, second derivative 0 at both ends
// (a natural spline; C. de Boor, A Practical Guide to Splines, ch. IV).

#include "platform/acad/bezier.h"

#include <vector>

/// The pieces of the curve through the points. Equal neighbours count once; two different points give one
/// straight piece; fewer, or any coordinate that is no finite number, give nothing.
std::vector<CBezier> NaturalSpline(const std::vector<AcGePoint3d>& points);
