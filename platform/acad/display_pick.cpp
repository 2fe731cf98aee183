// Whether a picture passes near a point, seen from above.

#include "platform/acad/bulge_arc.h"
#include "platform/acad/display_list.h"
#include "platform/acad/spline_curve.h"
#include "platform/acad/text_box.h"

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
        const double angle = arc.m_dStart + arc.m_dSweep * place;
        const AcGePoint2d end(arc.m_ptCenter.x + arc.m_dRadius * std::cos(angle),
                              arc.m_ptCenter.y + arc.m_dRadius * std::sin(angle));
        return m_pt.distanceTo(end) <= m_dDistance + half;
    }
};

AcGePoint2d Flat(const AcGePoint3d& point) {
    return {point.x, point.y};
}

double Half(double width) {
    return width > 0.0 ? width / 2.0 : 0.0;
}

bool IsNear(const CPick& pick, const CPolylinePrimitive& shape) {
    const std::vector<AcGePoint3d>& points = shape.m_arPoints;
    if (points.size() == 1) return pick.Near(Flat(points[0]), Flat(points[0]));
    for (std::size_t i = 1; i < points.size(); ++i)
        if (pick.Near(Flat(points[i - 1]), Flat(points[i]))) return true;
    return false;
}

bool IsNear(const CPick& pick, const CPlinePrimitive& shape) {
    const std::size_t count = shape.m_arVertices.size();
    if (count == 1) return pick.Near(shape.m_arVertices[0].m_pt, shape.m_arVertices[0].m_pt);
    for (std::size_t i = 0; i < (shape.m_bClosed ? count : std::max<std::size_t>(count, 1) - 1); ++i) {
        const CPolylineVertex &from = shape.m_arVertices[i], &to = shape.m_arVertices[(i + 1) % count];
        const double start = Half(from.m_dStartWidth), end = Half(from.m_dEndWidth);
        const auto arc = ArcOfBulge(from.m_pt, to.m_pt, from.m_dBulge);
        if (arc ? pick.NearArc(*arc, start, end) : pick.Near(from.m_pt, to.m_pt, start, end)) return true;
    }
    return false;
}

bool IsNear(const CPick& pick, const CArcPrimitive& shape) {
    constexpr int steps = 128; // the arc may lie slanted: chords serve every case
    const CArcFrame frame(shape);
    for (int step = 0; step < steps; ++step) {
        const double from = shape.m_dSweep * step / steps, to = shape.m_dSweep * (step + 1) / steps;
        if (pick.Near(Flat(frame.At(from)), Flat(frame.At(to)))) return true;
    }
    return false;
}

/// A text is near when the point lies in its rectangle or near an edge of it.
bool IsNear(const CPick& pick, const CTextPrimitive& shape) {
    const auto corners = TextBox(shape);
    if (!corners) return false;
    int left = 0, right = 0;
    for (std::size_t i = 0; i < corners->size(); ++i) {
        const AcGePoint2d from = Flat((*corners)[i]), to = Flat((*corners)[(i + 1) % corners->size()]);
        if (pick.Near(from, to)) return true;
        const double side =
            (to.x - from.x) * (pick.m_pt.y - from.y) - (to.y - from.y) * (pick.m_pt.x - from.x);
        ++(side > 0.0 ? left : right);
    }
    return left == 0 || right == 0;
}

bool IsNear(const CPick& pick, const CSplinePrimitive& shape) {
    constexpr int steps = 32;
    for (const CBezier& piece : NaturalSpline(shape.m_arFitPoints))
        for (int step = 0; step < steps; ++step)
            if (pick.Near(piece.At(static_cast<double>(step) / steps),
                          piece.At(static_cast<double>(step + 1) / steps)))
                return true;
    return false;
}

} // namespace

bool PassesNear(const CDisplayList& list, const AcGePoint3d& point, double distance) {
    const CPick pick{{point.x, point.y}, distance};
    return std::any_of(list.begin(), list.end(), [&pick](const CPrimitive& primitive) {
        return std::visit([&pick](const auto& shape) { return IsNear(pick, shape); }, primitive.m_shape);
    });
}
