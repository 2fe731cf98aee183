#pragma once

#include "platform/acad/db_polyline.h"

/// Emits a polyline into the world form. Mode 1, in force only while the picture for a file is drawn, sends a
/// bare list of points, closed by its first; any other mode the polyline with its widths and bulges.
void DrawPolylineByMode(Adesk::Int16 nMode, AcGiWorldDraw* pMode, const AcDbPolyline& polyline);
