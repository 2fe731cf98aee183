#include "platform/acad/display_segments.h"

#include "platform/acad/bulge_arc.h"
#include "platform/acad/text_box.h"

#include <algorithm>

namespace {

AcGePoint2d Flat(const AcGePoint3d& point) {
    return {point.x, point.y};
}

/// The chords of a curve given by its points at places from 0 to 1.
template <class At>
void AppendChords(int steps, const At& at, std::vector<CSegment>* pSegments) {
    AcGePoint2d from = at(0.0);
    for (int step = 1; step <= steps; ++step) {
        const AcGePoint2d to = at(static_cast<double>(step) / steps);
        pSegments->push_back({from, to});
        from = to;
    }
}

} // namespace

std::vector<CSegment> Segments(const CPolylinePrimitive& shape) {
    std::vector<CSegment> segments;
    const std::vector<AcGePoint3d>& points = shape.m_arPoints;
    if (points.size() == 1) segments.push_back({Flat(points[0]), Flat(points[0])});
    for (std::size_t i = 1; i < points.size(); ++i)
        segments.push_back({Flat(points[i - 1]), Flat(points[i])});
    return segments;
}

std::vector<CSegment> Segments(const CPlinePrimitive& shape) {
    constexpr int steps = 64;
    std::vector<CSegment> segments;
    if (shape.m_arVertices.size() == 1)
        segments.push_back({shape.m_arVertices[0].m_pt, shape.m_arVertices[0].m_pt});
    const std::size_t count = shape.SegmentCount();
    for (std::size_t i = 0; i < count; ++i) {
        const CPolylineVertex &from = shape.m_arVertices[i], &to = shape.NextVertex(i);
        const auto arc = ArcOfBulge(from.m_pt, to.m_pt, from.m_dBulge);
        if (arc) {
            AppendChords(
                steps, [&arc](double place) { return arc->At(place); }, &segments);
        } else {
            segments.push_back({from.m_pt, to.m_pt});
        }
    }
    return segments;
}

std::vector<CSegment> Segments(const CArcPrimitive& shape) {
    constexpr int steps = 128; // the arc may lie slanted: chords serve every case
    std::vector<CSegment> segments;
    const CArcFrame frame(shape);
    AppendChords(
        steps, [&](double place) { return Flat(frame.At(shape.m_dSweep * place)); }, &segments);
    return segments;
}

std::vector<CSegment> Segments(const CTextPrimitive& shape) {
    std::vector<CSegment> segments;
    if (const auto corners = TextBox(shape))
        for (std::size_t i = 0; i < corners->size(); ++i)
            segments.push_back({Flat((*corners)[i]), Flat((*corners)[(i + 1) % corners->size()])});
    return segments;
}

std::vector<CSegment> Segments(const CSplinePrimitive& shape) {
    constexpr int steps = 32;
    std::vector<CSegment> segments;
    for (const CBezier& piece : shape.Pieces())
        AppendChords(
            steps, [&piece](double place) { return piece.At(place); }, &segments);
    return segments;
}

bool IsInside(const std::vector<CSegment>& edges, const AcGePoint2d& point) {
    int left = 0, right = 0;
    for (const CSegment& edge : edges) {
        const AcGePoint2d &from = edge.m_ptFrom, &to = edge.m_ptTo;
        const double side = (to.x - from.x) * (point.y - from.y) - (to.y - from.y) * (point.x - from.x);
        ++(side > 0.0 ? left : right);
    }
    return !edges.empty() && (left == 0 || right == 0);
}
