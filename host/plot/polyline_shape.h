#pragma once

#include "host/plot/dash_pattern.h"
#include "platform/acad/display_list.h"

#include <QtGui/QPainterPath>

/// A polyline as it is painted: its thin pieces as a line, its wide ones as filled outlines (nonzero
/// winding).
struct CPolylineShape {
    QPainterPath m_thin, m_wide;
};

/// Vertices in page millimetres, the bulge's sense as seen there. Pieces that touch a vertex with a value
/// that can't be painted are left out. Wide pieces are cut by the dashes here, each from its own start, and
/// joined by mitred corners where they are not dashed.
CPolylineShape ShapeOf(const std::vector<CPolylineVertex>& arVertices, bool bClosed, const CDashes& dashes);
