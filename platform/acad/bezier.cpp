#include "platform/acad/bezier.h"

#include <algorithm>

AcGePoint2d CBezier::At(double t) const {
    const double u = 1.0 - t;
    const double b0 = u * u * u, b1 = 3.0 * u * u * t, b2 = 3.0 * u * t * t, b3 = t * t * t;
    const auto& p = m_arPoints;
    return {b0 * p[0].x + b1 * p[1].x + b2 * p[2].x + b3 * p[3].x,
            b0 * p[0].y + b1 * p[1].y + b2 * p[2].y + b3 * p[3].y};
}

AcGeVector2d CBezier::SlopeAt(double t) const {
    const double u = 1.0 - t, b0 = 3.0 * u * u, b1 = 6.0 * u * t, b2 = 3.0 * t * t;
    const auto& p = m_arPoints;
    return {b0 * (p[1].x - p[0].x) + b1 * (p[2].x - p[1].x) + b2 * (p[3].x - p[2].x),
            b0 * (p[1].y - p[0].y) + b1 * (p[2].y - p[1].y) + b2 * (p[3].y - p[2].y)};
}

bool CBezier::IsFinite() const {
    return std::all_of(m_arPoints.begin(), m_arPoints.end(), [](const AcGePoint2d& point) {
        return std::isfinite(point.x) && std::isfinite(point.y);
    });
}
