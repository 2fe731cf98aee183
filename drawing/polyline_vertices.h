#pragma once

#include "platform/acad/db_polyline.h"

/// Appends a vertex with its bulge and widths.
inline void AppendVertex(AcDbPolyline& polyline, const CPolylineVertex& vertex) {
    polyline.addVertexAt(polyline.numVerts(), vertex.m_pt, vertex.m_dBulge, vertex.m_dStartWidth,
                         vertex.m_dEndWidth);
}
