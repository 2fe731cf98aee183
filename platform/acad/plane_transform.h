#pragma once
// Transformations that flat entities can follow.

#include "platform/acad/geometry.h"

#include <optional>

/// What a transformation does to figures of the xy plane.
struct CPlaneTransform {
    double m_dScale = 1.0; ///< the factor of all lengths
    double m_dTurn = 0.0;  ///< the angle of the image of the x axis, radians
    bool m_bMirrored = false;
};

/// Nothing when the transformation takes the plane out of itself, stretches it unevenly, flattens it, or
/// holds numbers that are not finite.
std::optional<CPlaneTransform> PlaneTransform(const AcGeMatrix3d& xform);
