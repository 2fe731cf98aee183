#pragma once

#include <QtGui/QPainterPath>

#include <optional>

/// An arc in the plane: center + radius * (u cos t + v sin t), t from 0 to sweep. u and v are the axes as
/// they are seen, so an arc that stands askew to the page is an elliptic one.
struct CPlaneArc {
    QPointF m_center, m_u, m_v;
    double m_dRadius = 0.0, m_dSweep = 0.0;

    QPointF At(double dAngle) const;
    QPointF Tangent(double dAngle) const; ///< in the sense of growing angle; length as u and v have it
    /// A piece of the circle that begins at an angle of the arc.
    CPlaneArc Part(double dFrom, double dSweep) const;
    CPlaneArc Reversed() const { return Part(m_dSweep, -m_dSweep); }
    /// The same angles on another circle about the centre.
    CPlaneArc WithRadius(double dRadius) const { return {m_center, m_u, m_v, dRadius, m_dSweep}; }
};

/// The arc between two points with a bulge (tangent of a quarter of the angle); none for a straight piece, or
/// a bulge so small that it is one.
std::optional<CPlaneArc> ArcOfBulge(const QPointF& from, const QPointF& to, double dBulge);

/// Appends the arc to a path whose end is the arc's start, as Bézier pieces of at most a quarter turn.
void AppendArc(QPainterPath& path, const CPlaneArc& arc);
