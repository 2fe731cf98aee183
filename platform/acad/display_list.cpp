#include "platform/acad/display_list.h"

#include "platform/acad/bulge_arc.h"
#include "platform/acad/spline_curve.h"
#include "platform/acad/text_box.h"

#include <algorithm>
#include <numbers>

namespace {

constexpr double g_dQuarter = std::numbers::pi / 2.0;

void AddStraight(AcDbExtents& box, const CPolylineVertex& from, const CPolylineVertex& to) {
    const double dx = to.m_pt.x - from.m_pt.x, dy = to.m_pt.y - from.m_pt.y, length = std::hypot(dx, dy);
    const double nx = length > 0.0 ? -dy / length : 0.0, ny = length > 0.0 ? dx / length : 0.0;
    for (const double side : {-1.0, 1.0}) {
        const double start = side * HalfWidth(from.m_dStartWidth), end = side * HalfWidth(from.m_dEndWidth);
        box.addPoint({from.m_pt.x + nx * start, from.m_pt.y + ny * start, 0.0});
        box.addPoint({to.m_pt.x + nx * end, to.m_pt.y + ny * end, 0.0});
    }
}

/// Both edges of the band at a place (0 to 1) of the arc.
void AddBandAt(AcDbExtents& box, const CBulgeArc& arc, const CPolylineVertex& from, double place) {
    const double start = HalfWidth(from.m_dStartWidth), end = HalfWidth(from.m_dEndWidth);
    const double half = start + (end - start) * place;
    for (const double outside : {-half, half}) {
        const AcGePoint2d edge = arc.At(place, outside);
        box.addPoint({edge.x, edge.y, 0.0});
    }
}

void AddBulged(AcDbExtents& box, const CBulgeArc& arc, const CPolylineVertex& from) {
    AddBandAt(box, arc, from, 0.0);
    AddBandAt(box, arc, from, 1.0);
    for (int quarter = 0; quarter < 4; ++quarter)
        if (const auto place = PlaceInSweep(quarter * g_dQuarter, arc.m_dStart, arc.m_dSweep))
            AddBandAt(box, arc, from, *place);
    if (HalfWidth(from.m_dStartWidth) == HalfWidth(from.m_dEndWidth)) return;
    constexpr int steps = 64; // a tapering band bulges beside the quarters
    for (int step = 1; step < steps; ++step)
        AddBandAt(box, arc, from, static_cast<double>(step) / steps);
}

void Add(AcDbExtents& box, const CPolylinePrimitive& shape) {
    for (const AcGePoint3d& point : shape.m_arPoints)
        box.addPoint(point);
}

void Add(AcDbExtents& box, const CPlinePrimitive& shape) {
    for (const CPolylineVertex& vertex : shape.m_arVertices)
        box.addPoint({vertex.m_pt.x, vertex.m_pt.y, 0.0});
    const std::size_t count = shape.SegmentCount();
    for (std::size_t i = 0; i < count; ++i) {
        const CPolylineVertex &from = shape.m_arVertices[i], &to = shape.NextVertex(i);
        if (const auto arc = ArcOfBulge(from.m_pt, to.m_pt, from.m_dBulge)) {
            AddBulged(box, *arc, from);
        } else {
            AddStraight(box, from, to);
        }
    }
}

void Add(AcDbExtents& box, const CArcPrimitive& shape) {
    const CArcFrame frame(shape);
    box.addPoint(frame.At(0.0));
    box.addPoint(frame.At(shape.m_dSweep));
    // Each coordinate has its extremes at one angle and opposite it.
    for (const double angle : {std::atan2(frame.m_vecSide.x, frame.m_vecStart.x),
                               std::atan2(frame.m_vecSide.y, frame.m_vecStart.y),
                               std::atan2(frame.m_vecSide.z, frame.m_vecStart.z)})
        for (const double extreme : {angle, angle + 2.0 * g_dQuarter})
            if (PlaceInSweep(extreme, 0.0, shape.m_dSweep)) box.addPoint(frame.At(extreme));
}

void Add(AcDbExtents& box, const CTextPrimitive& shape) {
    if (const auto corners = TextBox(shape))
        for (const AcGePoint3d& corner : *corners)
            box.addPoint(corner);
}

/// Parameters inside (0, 1) where a cubic by its Bézier values has no slope.
std::vector<double> FlatPlaces(double p0, double p1, double p2, double p3) {
    const double a = p3 - p0 + 3.0 * (p1 - p2), b = 2.0 * (p0 - 2.0 * p1 + p2), c = p1 - p0;
    std::vector<double> places;
    const double root = std::sqrt(b * b - 4.0 * a * c); // no number where there is no flat place
    const double q = -0.5 * (b + std::copysign(root, b));
    for (const double t : {q / a, c / q})
        if (t > 0.0 && t < 1.0) places.push_back(t);
    return places;
}

void Add(AcDbExtents& box, const CSplinePrimitive& shape) {
    const std::vector<CBezier> pieces = shape.Pieces();
    if (pieces.empty()) return;
    Add(box, CPolylinePrimitive{shape.m_arFitPoints});
    const bool bFitted = !shape.m_arFitPoints.empty();
    const double z = (bFitted ? shape.m_arFitPoints : shape.m_nurbs.m_arControlPoints).front().z;
    for (const CBezier& piece : pieces) {
        const auto& p = piece.m_arPoints;
        if (!bFitted)
            for (const AcGePoint2d& end : {p[0], p[3]})
                box.addPoint({end.x, end.y, z});
        std::vector<double> places = FlatPlaces(p[0].x, p[1].x, p[2].x, p[3].x);
        for (const double t : FlatPlaces(p[0].y, p[1].y, p[2].y, p[3].y))
            places.push_back(t);
        for (const double t : places)
            box.addPoint({piece.At(t).x, piece.At(t).y, z});
    }
}

void AddShape(AcDbExtents& box, const CShape& shape) {
    std::visit([&box](const auto& kind) { Add(box, kind); }, shape);
}

} // namespace

double HalfWidth(double width) {
    return width > 0.0 ? width / 2.0 : 0.0;
}

std::size_t CPlinePrimitive::SegmentCount() const {
    return m_bClosed || m_arVertices.empty() ? m_arVertices.size() : m_arVertices.size() - 1;
}

CArcFrame::CArcFrame(const CArcPrimitive& arc)
    : m_ptCenter(arc.m_ptCenter)
    , m_vecStart(arc.m_vecStart.normal() * arc.m_dRadius)
    , m_vecSide(arc.m_vecNormal.crossProduct(arc.m_vecStart).normal() * arc.m_dRadius) {}

AcGePoint3d CArcFrame::At(double angle) const {
    return m_ptCenter + m_vecStart * std::cos(angle) + m_vecSide * std::sin(angle);
}

std::vector<CBezier> CSplinePrimitive::Pieces() const {
    return m_arFitPoints.empty() ? PiecesOf(m_nurbs) : NaturalSpline(m_arFitPoints);
}

AcDbExtents ExtentsOfShape(const CShape& shape) {
    AcDbExtents box;
    AddShape(box, shape);
    return box;
}

AcDbExtents ExtentsOf(const CDisplayList& list) {
    AcDbExtents box;
    for (const CPrimitive& primitive : list)
        AddShape(box, primitive.m_shape);
    return box;
}
