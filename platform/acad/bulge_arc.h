#pragma once
// The arc that a polyline's bulge means.

#include "platform/acad/geometry.h"

#include <optional>

struct CBulgeArc {
    AcGePoint2d m_ptCenter;
    double m_dRadius = 0.0;
    double m_dStart = 0.0; ///< angle of the first vertex, radians
    double m_dSweep = 0.0; ///< from there to the second one; negative is clockwise

    /// The point at a place of the sweep (0 to 1), so much farther from the centre than the arc is.
    AcGePoint2d At(double place, double outside = 0.0) const;
};

/// The arc between two vertices; nothing for a straight segment, two equal vertices, or numbers that give no
/// finite circle.
std::optional<CBulgeArc> ArcOfBulge(const AcGePoint2d& from, const AcGePoint2d& to, double bulge);

/// How far along a sweep (0 to 1) the angle lies; nothing when it lies outside.
std::optional<double> PlaceInSweep(double angle, double start, double sweep);
