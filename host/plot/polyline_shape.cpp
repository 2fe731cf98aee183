#include "host/plot/polyline_shape.h"

#include "host/plot/arc_path.h"
#include "host/plot/paintable.h"

#include <QtGui/QPolygonF>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

constexpr double g_dChordTolerance = 0.002; // mm between a wide arc's edge and its polygon

double Length(const QPointF& vector) {
    return std::hypot(vector.x(), vector.y());
}

/// A piece from vertex to vertex; places on it are fractions of its length.
struct CPiece {
    QPointF m_from, m_to;
    std::optional<CPlaneArc> m_arc;
    double m_dStartWidth = 0.0, m_dEndWidth = 0.0;

    bool IsWide() const { return m_dStartWidth > 0.0 || m_dEndWidth > 0.0; }
    double PieceLength() const {
        return m_arc ? std::abs(m_arc->m_dSweep) * m_arc->m_dRadius : Length(m_to - m_from);
    }
    double HalfWidth(double t) const { return (m_dStartWidth + (m_dEndWidth - m_dStartWidth) * t) / 2.0; }
    QPointF At(double t) const {
        return m_arc ? m_arc->At(t * m_arc->m_dSweep) : m_from + (m_to - m_from) * t;
    }
    /// The direction of travel, of length 1.
    QPointF Direction(double t) const {
        if (!m_arc) return (m_to - m_from) / Length(m_to - m_from);
        const QPointF tangent = m_arc->Tangent(t * m_arc->m_dSweep);
        return m_arc->m_dSweep < 0.0 ? -tangent : tangent;
    }
    /// The edge on one side (+1 or -1); on the inner side of an arc it ends at the centre.
    QPointF Edge(double t, double dSide) const {
        const QPointF direction = Direction(t);
        const QPointF normal(-direction.y(), direction.x());
        double dHalf = HalfWidth(t);
        if (m_arc && (m_arc->m_dSweep > 0.0) == (dSide > 0.0)) dHalf = std::min(dHalf, m_arc->m_dRadius);
        return At(t) + normal * (dSide * dHalf);
    }
    int Steps(double dFraction) const {
        if (!m_arc) return 1;
        const double dOuter = m_arc->m_dRadius + std::max(m_dStartWidth, m_dEndWidth) / 2.0;
        const double dStep = 2.0 * std::acos(std::max(0.0, 1.0 - g_dChordTolerance / dOuter));
        return static_cast<int>(
            std::clamp(std::ceil(std::abs(m_arc->m_dSweep) * dFraction / dStep), 1.0, 2000.0));
    }
};

std::optional<CPiece> MakePiece(const CPolylineVertex& from, const CPolylineVertex& to) {
    if (!IsPaintable(from.m_pt.x, from.m_pt.y) || !IsPaintable(to.m_pt.x, to.m_pt.y)) return {};
    if (!IsPaintable(from.m_dStartWidth, from.m_dEndWidth) || !std::isfinite(from.m_dBulge)) return {};
    CPiece piece;
    piece.m_from = {from.m_pt.x, from.m_pt.y};
    piece.m_to = {to.m_pt.x, to.m_pt.y};
    if (piece.m_from == piece.m_to) return {};
    piece.m_arc = ArcOfBulge(piece.m_from, piece.m_to, from.m_dBulge);
    if (piece.m_arc && !IsPaintable(piece.m_arc->m_dRadius, 0.0)) return {};
    piece.m_dStartWidth = std::max(0.0, from.m_dStartWidth);
    piece.m_dEndWidth = std::max(0.0, from.m_dEndWidth);
    return piece;
}

/// Adds a polygon turned one way, so that outlines that overlap never cut holes into each other.
void AddOutline(QPainterPath& path, QPolygonF polygon) {
    double dArea = 0.0;
    for (qsizetype i = 0; i < polygon.size(); ++i) {
        const QPointF a = polygon[i] - polygon[0];
        const QPointF b = polygon[(i + 1) % polygon.size()] - polygon[0];
        dArea += a.x() * b.y() - b.x() * a.y();
    }
    if (dArea < 0.0) std::reverse(polygon.begin(), polygon.end());
    path.addPolygon(polygon);
    path.closeSubpath();
}

/// An arc of one width all along. Its outline is turned as AddOutline turns polygons.
void AddBand(QPainterPath& path, const CPlaneArc& arc, double dHalfWidth) {
    const CPlaneArc forward = arc.m_dSweep < 0.0 ? arc.Reversed() : arc;
    const CPlaneArc outer = forward.WithRadius(arc.m_dRadius + dHalfWidth);
    const CPlaneArc inner = forward.WithRadius(std::max(0.0, arc.m_dRadius - dHalfWidth)).Reversed();
    path.moveTo(outer.At(0.0));
    AppendArc(path, outer);
    path.lineTo(inner.At(0.0));
    if (inner.m_dRadius > 0.0) AppendArc(path, inner);
    path.closeSubpath();
}

void AddWide(QPainterPath& path, const CPiece& piece, double dFrom, double dTo) {
    if (piece.m_arc && piece.m_dStartWidth == piece.m_dEndWidth) {
        const double dSweep = piece.m_arc->m_dSweep;
        return AddBand(path, piece.m_arc->Part(dFrom * dSweep, (dTo - dFrom) * dSweep), piece.HalfWidth(0.0));
    }
    const int nSteps = piece.Steps(dTo - dFrom);
    QPolygonF polygon;
    for (int i = 0; i <= nSteps; ++i)
        polygon << piece.Edge(dFrom + (dTo - dFrom) * i / nSteps, 1.0);
    for (int i = nSteps; i >= 0; --i)
        polygon << piece.Edge(dFrom + (dTo - dFrom) * i / nSteps, -1.0);
    AddOutline(path, polygon);
}

void AddWideDashes(QPainterPath& path, const CPiece& piece, const CDashes& dashes) {
    constexpr double dMostDashes = 10000.0;
    const double dLength = piece.PieceLength();
    double dPeriod = 0.0;
    for (const double dOne : dashes.m_arLengths)
        dPeriod += dOne;
    if (dashes.m_arLengths.empty() || dLength / dPeriod > dMostDashes) return AddWide(path, piece, 0.0, 1.0);
    double dAt = -dashes.m_dPhase;
    for (std::size_t i = 0; dAt < dLength; ++i) {
        const double dNext = dAt + dashes.m_arLengths[i % dashes.m_arLengths.size()];
        if (i % 2 == 0 && dNext > 0.0)
            AddWide(path, piece, std::max(0.0, dAt) / dLength, std::min(dLength, dNext) / dLength);
        dAt = dNext;
    }
}

/// Fills the wedge that stays open on the outer side where two wide pieces meet at an angle.
void AddCorner(QPainterPath& path, const CPiece& before, const CPiece& after) {
    constexpr double dSharpest = 0.05; // below this a mitre runs far out: the corner is cut off
    const double dHalf = before.HalfWidth(1.0);
    if (before.m_to != after.m_from || !(dHalf > 0.0) || !(after.HalfWidth(0.0) > 0.0)) return;
    const QPointF in = before.Direction(1.0);
    const QPointF out = after.Direction(0.0);
    const double dTurn = in.x() * out.y() - in.y() * out.x();
    const double dSide = dTurn > 0.0 ? -1.0 : 1.0;
    const double dOnePlusCos = 1.0 + QPointF::dotProduct(in, out);
    if (std::abs(dTurn) < 1e-9 && dOnePlusCos > 1.0) return;
    QPolygonF polygon;
    polygon << before.m_to << before.Edge(1.0, dSide);
    if (dOnePlusCos > dSharpest && before.m_dEndWidth == after.m_dStartWidth) {
        const QPointF between(-in.y() - out.y(), in.x() + out.x());
        polygon << before.m_to + between * (dSide * dHalf / dOnePlusCos);
    }
    polygon << after.Edge(0.0, dSide);
    AddOutline(path, polygon);
}

void AddThin(QPainterPath& path, const CPiece& piece) {
    if (path.elementCount() == 0 || path.currentPosition() != piece.m_from) path.moveTo(piece.m_from);
    if (piece.m_arc)
        AppendArc(path, *piece.m_arc);
    else
        path.lineTo(piece.m_to);
}

} // namespace

CPolylineShape ShapeOf(const std::vector<CPolylineVertex>& arVertices, bool bClosed, const CDashes& dashes) {
    CPolylineShape shape;
    shape.m_wide.setFillRule(Qt::WindingFill);
    std::vector<CPiece> arPieces;
    for (std::size_t i = 0; i < arVertices.size(); ++i) {
        if (i + 1 == arVertices.size() && !bClosed) break;
        if (const auto piece = MakePiece(arVertices[i], arVertices[(i + 1) % arVertices.size()]))
            arPieces.push_back(*piece);
    }
    for (std::size_t i = 0; i < arPieces.size(); ++i) {
        const CPiece& piece = arPieces[i];
        if (!piece.IsWide()) {
            AddThin(shape.m_thin, piece);
            continue;
        }
        AddWideDashes(shape.m_wide, piece, dashes);
        const bool bLast = i + 1 == arPieces.size();
        if (dashes.m_arLengths.empty() && (!bLast || bClosed))
            AddCorner(shape.m_wide, piece, arPieces[(i + 1) % arPieces.size()]);
    }
    return shape;
}
