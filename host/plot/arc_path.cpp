#include "host/plot/arc_path.h"

#include <cmath>
#include <numbers>

QPointF CPlaneArc::At(double dAngle) const {
    return m_center + m_dRadius * (m_u * std::cos(dAngle) + m_v * std::sin(dAngle));
}

QPointF CPlaneArc::Tangent(double dAngle) const {
    return m_v * std::cos(dAngle) - m_u * std::sin(dAngle);
}

CPlaneArc CPlaneArc::Part(double dFrom, double dSweep) const {
    const double dCos = std::cos(dFrom), dSin = std::sin(dFrom);
    return {m_center, m_u * dCos + m_v * dSin, m_v * dCos - m_u * dSin, m_dRadius, dSweep};
}

std::optional<CPlaneArc> ArcOfBulge(const QPointF& from, const QPointF& to, double dBulge) {
    const QPointF chord = to - from;
    const double dChord = std::hypot(chord.x(), chord.y());
    if (!(std::abs(dBulge) > 1e-9) || !(dChord > 0.0)) return {};
    CPlaneArc arc;
    arc.m_dRadius = dChord * (1.0 + dBulge * dBulge) / (4.0 * std::abs(dBulge));
    arc.m_center =
        (from + to) / 2.0 + QPointF(-chord.y(), chord.x()) * ((1.0 - dBulge * dBulge) / (4.0 * dBulge));
    arc.m_u = (from - arc.m_center) / arc.m_dRadius;
    arc.m_v = QPointF(-arc.m_u.y(), arc.m_u.x());
    arc.m_dSweep = 4.0 * std::atan(dBulge);
    return arc;
}

void AppendArc(QPainterPath& path, const CPlaneArc& arc) {
    const double dPieces = std::ceil(std::abs(arc.m_dSweep) / (std::numbers::pi / 2.0) - 1e-9);
    const int nPieces = std::max(1, static_cast<int>(dPieces));
    const double dStep = arc.m_dSweep / nPieces;
    const double dHandle = arc.m_dRadius * 4.0 / 3.0 * std::tan(dStep / 4.0);
    for (int i = 0; i < nPieces; ++i) {
        const double dStart = i * dStep;
        const double dEnd = (i + 1) * dStep;
        path.cubicTo(arc.At(dStart) + dHandle * arc.Tangent(dStart),
                     arc.At(dEnd) - dHandle * arc.Tangent(dEnd), arc.At(dEnd));
    }
}
