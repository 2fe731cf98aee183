// Whether a picture passes near a point, seen from above.

#include "platform/acad/bulge_arc.h"
#include "platform/acad/display_segments.h"

#include <algorithm>

namespace {

/// A point and how near is near. Comparisons are such that a number that is none is never near.
struct CPick {
    AcGePoint2d m_pt;
    double m_dDistance;

    bool Near(const AcGePoint2d& from, const AcGePoint2d& to, double halfFrom = 0.0,
              double halfTo = 0.0) const {
        const double dx = to.x - from.x, dy = to.y - from.y, square = dx * dx + dy * dy;
        double place = 0.0;
        if (square > 0.0)
            place = std::clamp(((m_pt.x - from.x) * dx + (m_pt.y - from.y) * dy) / square, 0.0, 1.0);
        const double half = halfFrom + (halfTo - halfFrom) * place;
        return m_pt.distanceTo({from.x + dx * place, from.y + dy * place}) <= m_dDistance + half;
    }

    bool NearArc(const CBulgeArc& arc, double halfFrom, double halfTo) const {
        const double dx = m_pt.x - arc.m_ptCenter.x, dy = m_pt.y - arc.m_ptCenter.y;
        if (const auto place = PlaceInSweep(std::atan2(dy, dx), arc.m_dStart, arc.m_dSweep)) {
            const double half = halfFrom + (halfTo - halfFrom) * *place;
            if (std::fabs(std::hypot(dx, dy) - arc.m_dRadius) <= m_dDistance + half) return true;
        }
        return NearEnd(arc, 0.0, halfFrom) || NearEnd(arc, 1.0, halfTo);
    }

private:
    bool NearEnd(const CBulgeArc& arc, double place, double half) const {
        return m_pt.distanceTo(arc.At(place)) <= m_dDistance + half;
    }
};

bool IsNear(const CPick& pick, const std::vector<CSegment>& segments) {
    return std::any_of(segments.begin(), segments.end(), [&pick](const CSegment& segment) {
        return pick.Near(segment.m_ptFrom, segment.m_ptTo);
    });
}

template <class Shape>
bool IsNear(const CPick& pick, const Shape& shape) {
    return IsNear(pick, Segments(shape));
}

/// Here widths count, and arcs are taken as what they are.
bool IsNear(const CPick& pick, const CPlinePrimitive& shape) {
    if (shape.m_arVertices.size() == 1)
        return pick.Near(shape.m_arVertices[0].m_pt, shape.m_arVertices[0].m_pt);
    const std::size_t count = shape.SegmentCount();
    for (std::size_t i = 0; i < count; ++i) {
        const CPolylineVertex &from = shape.m_arVertices[i], &to = shape.NextVertex(i);
        const double start = HalfWidth(from.m_dStartWidth), end = HalfWidth(from.m_dEndWidth);
        const auto arc = ArcOfBulge(from.m_pt, to.m_pt, from.m_dBulge);
        if (arc ? pick.NearArc(*arc, start, end) : pick.Near(from.m_pt, to.m_pt, start, end)) return true;
    }
    return false;
}

/// A text is near when the point lies in its rectangle or near an edge of it.
bool IsNear(const CPick& pick, const CTextPrimitive& shape) {
    const std::vector<CSegment> edges = Segments(shape);
    return IsInside(edges, pick.m_pt) || IsNear(pick, edges);
}

} // namespace

bool PassesNear(const CDisplayList& list, const AcGePoint3d& point, double distance) {
    const CPick pick{{point.x, point.y}, distance};
    return std::any_of(list.begin(), list.end(), [&pick](const CPrimitive& primitive) {
        return std::visit([&pick](const auto& shape) { return IsNear(pick, shape); }, primitive.m_shape);
    });
}
