#pragma once
// Pictures cut into straight pieces, seen from above: for tests of where something lies.

#include "platform/acad/display_list.h"

#include <vector>

struct CSegment {
    AcGePoint2d m_ptFrom, m_ptTo;
};

/// The pieces of a shape: curves as chords, a lone point as a piece without length, a text as the edges of
/// its rectangle in turn. Widths don't count.
std::vector<CSegment> Segments(const CPolylinePrimitive& shape);
std::vector<CSegment> Segments(const CPlinePrimitive& shape);
std::vector<CSegment> Segments(const CArcPrimitive& shape);
std::vector<CSegment> Segments(const CTextPrimitive& shape);
std::vector<CSegment> Segments(const CSplinePrimitive& shape);

/// Whether a point lies on the same side of every edge of a rectangle, given in turn; in none of no edges.
bool IsInside(const std::vector<CSegment>& edges, const AcGePoint2d& point);
