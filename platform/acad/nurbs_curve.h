#pragma once
// B-spline curves by control points and knots (C. de Boor, A Practical Guide to Splines, ch. IX).

#include "platform/acad/bezier.h"

#include <vector>

/// A B-spline. It is one when the knots never fall and there are as many as control points plus degree plus
/// one, and the weights, where there are any, are above 0 and one for each control point.
struct CNurbs {
    int m_nDegree = 3;
    std::vector<AcGePoint3d> m_arControlPoints;
    std::vector<double> m_arKnots;
    std::vector<double> m_arWeights; ///< empty: all equal

    bool IsCurve() const;
};

/// The clamped cubic B-spline that is the natural spline through the points, in the plane of the first one;
/// without control points where there is no such curve.
CNurbs NurbsThrough(const std::vector<AcGePoint3d>& points);

/// The curve, seen from above. A cubic without weights has its own pieces; any other has short chords for
/// them. Nothing for what is no curve or has a number that is not finite.
std::vector<CBezier> PiecesOf(const CNurbs& nurbs);
