#pragma once
// The groups of curves behind those that all entities have. False for an entity that no file can hold.

#include "host/files/dxf_output.h"

bool WriteDxfLine(CDxfOutput& out, const AcDbEntity& entity);
bool WriteDxfArc(CDxfOutput& out, const AcDbEntity& entity);
bool WriteDxfPolyline(CDxfOutput& out, const AcDbEntity& entity); ///< one without vertices is none
/// A spline through fit points has the control points that follow from them besides.
bool WriteDxfSpline(CDxfOutput& out, const AcDbEntity& entity);
