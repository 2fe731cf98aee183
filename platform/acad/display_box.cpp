// Whether a picture lies in a box, seen from above.

#include "platform/acad/display_segments.h"

#include <algorithm>

namespace {

struct CBox {
    AcGePoint2d m_ptLow, m_ptHigh;

    CBox(const AcGePoint3d& corner, const AcGePoint3d& opposite)
        : m_ptLow(std::min(corner.x, opposite.x), std::min(corner.y, opposite.y))
        , m_ptHigh(std::max(corner.x, opposite.x), std::max(corner.y, opposite.y)) {}

    /// Whether a part of the piece lies inside or on the edge: it is cut at the box's four lines.
    bool Meets(const CSegment& segment) const {
        const AcGePoint2d &from = segment.m_ptFrom, &to = segment.m_ptTo;
        if (!std::isfinite(from.x + from.y + to.x + to.y)) return false;
        double first = 0.0, last = 1.0;
        return Cut(from.x, to.x - from.x, m_ptLow.x, m_ptHigh.x, &first, &last) &&
               Cut(from.y, to.y - from.y, m_ptLow.y, m_ptHigh.y, &first, &last);
    }

private:
    /// Narrows the part of the piece from first to last to what lies between two lines; false when nothing is
    /// left.
    static bool Cut(double from, double step, double low, double high, double* pFirst, double* pLast) {
        if (step == 0.0) return from >= low && from <= high;
        const double atLow = (low - from) / step, atHigh = (high - from) / step;
        *pFirst = std::max(*pFirst, std::min(atLow, atHigh));
        *pLast = std::min(*pLast, std::max(atLow, atHigh));
        return *pFirst <= *pLast;
    }
};

template <class Shape>
bool Passes(const CBox& box, const Shape& shape) {
    const std::vector<CSegment> segments = Segments(shape);
    return std::any_of(segments.begin(), segments.end(),
                       [&box](const CSegment& segment) { return box.Meets(segment); });
}

/// A text fills its rectangle: a box that lies wholly inside meets none of its edges.
bool Passes(const CBox& box, const CTextPrimitive& shape) {
    const std::vector<CSegment> edges = Segments(shape);
    return IsInside(edges, box.m_ptLow) || Passes<CTextPrimitive>(box, shape);
}

} // namespace

bool PassesThrough(const CDisplayList& list, const AcGePoint3d& corner, const AcGePoint3d& opposite) {
    const CBox box(corner, opposite);
    return std::any_of(list.begin(), list.end(), [&box](const CPrimitive& primitive) {
        return std::visit([&box](const auto& shape) { return Passes(box, shape); }, primitive.m_shape);
    });
}

bool LiesWithin(const CDisplayList& list, const AcGePoint3d& corner, const AcGePoint3d& opposite) {
    const CBox box(corner, opposite);
    const AcDbExtents extents = ExtentsOf(list);
    return !extents.isEmpty() && extents.minPoint().x >= box.m_ptLow.x &&
           extents.minPoint().y >= box.m_ptLow.y && extents.maxPoint().x <= box.m_ptHigh.x &&
           extents.maxPoint().y <= box.m_ptHigh.y;
}
