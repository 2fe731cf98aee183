#pragma once
// Curves as DXF records tell them, in the coordinates of the record. Null for values that no such entity has.

#include "host/files/dxf_drawing.h"
#include "platform/acad/db_polyline.h"

#include <memory>

std::unique_ptr<AcDbEntity> ReadDxfLine(const CDxfRecord& record, CDxfDrawing& drawing);
std::unique_ptr<AcDbEntity> ReadDxfArc(const CDxfRecord& record, CDxfDrawing& drawing);
std::unique_ptr<AcDbEntity> ReadDxfLwPolyline(const CDxfRecord& record, CDxfDrawing& drawing);

/// A spline keeps its fit points where it is the curve that the drawing puts through them; where the file's
/// control points tell another one, these count.
std::unique_ptr<AcDbEntity> ReadDxfSpline(const CDxfRecord& record, CDxfDrawing& drawing);

/// The start of a two-dimensional polyline; its vertices follow in records of their own. Null for a polyline
/// in space and for a mesh.
std::unique_ptr<AcDbPolyline> ReadDxfPolyline(const CDxfRecord& record);
/// Adds a vertex of such a polyline; the polyline's record has the widths of vertices without any.
void AddDxfVertex(const CDxfRecord& vertex, const CDxfRecord& ofPolyline, AcDbPolyline& polyline);
