#pragma once

#include "platform/acad/geometry.h"

#include <array>

/// One cubic piece of a curve in the plane by its four Bézier points.
struct CBezier {
    std::array<AcGePoint2d, 4> m_arPoints;

    AcGePoint2d At(double t) const;       ///< t from 0 to 1
    AcGeVector2d SlopeAt(double t) const; ///< the derivative by t
    bool IsFinite() const;
};
