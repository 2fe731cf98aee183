#include "platform/acad/bulge_arc.h"

#include <numbers>

std::optional<CBulgeArc> ArcOfBulge(const AcGePoint2d& from, const AcGePoint2d& to, double bulge) {
    const double dx = to.x - from.x, dy = to.y - from.y, chord = std::hypot(dx, dy);
    if (bulge == 0.0 || chord == 0.0) return {};
    const double toCenter = (1.0 / bulge - bulge) / 4.0; // left of the chord, in chord lengths
    CBulgeArc arc;
    arc.m_ptCenter.set((from.x + to.x) / 2.0 - dy * toCenter, (from.y + to.y) / 2.0 + dx * toCenter);
    arc.m_dRadius = chord * (1.0 / std::fabs(bulge) + std::fabs(bulge)) / 4.0;
    arc.m_dStart = std::atan2(from.y - arc.m_ptCenter.y, from.x - arc.m_ptCenter.x);
    arc.m_dSweep = 4.0 * std::atan(bulge);
    if (!std::isfinite(arc.m_ptCenter.x) || !std::isfinite(arc.m_ptCenter.y) || !std::isfinite(arc.m_dRadius))
        return {};
    return arc;
}

AcGePoint2d CBulgeArc::At(double place, double outside) const {
    const double angle = m_dStart + m_dSweep * place, radius = m_dRadius + outside;
    return {m_ptCenter.x + radius * std::cos(angle), m_ptCenter.y + radius * std::sin(angle)};
}

std::optional<double> PlaceInSweep(double angle, double start, double sweep) {
    constexpr double full = 2.0 * std::numbers::pi;
    const double size = std::fabs(sweep);
    double turned = std::fmod(sweep < 0.0 ? start - angle : angle - start, full);
    if (turned < 0.0) turned += full;
    if (!(turned <= size)) return {};
    return size > 0.0 ? turned / size : 0.0;
}
