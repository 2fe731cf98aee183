#pragma once

#include "host/files/dwg_curves.h"
#include "platform/acad/db_polyline.h"
#include "platform/acad/db_spline.h"

/// Takes a polyline's points and what is between them; what it has besides stays. Widths that are not set
/// stand as 0, which draws the same thin line.
void TakePolyline(CDwgPolyline& part, const AcDbPolyline& polyline);

/// Takes a spline. One that is as it was stays so; fit points stand for a cubic curve only, of another degree
/// the curve that follows from them is taken.
void TakeSpline(CDwgSpline& part, const AcDbSpline& spline);
