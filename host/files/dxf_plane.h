#pragma once

#include "platform/acad/geometry.h"

/// What takes coordinates of an entity's own plane to those of the drawing. The plane is told by its normal;
/// its axes follow from that by the arbitrary axis rule of the format.
AcGeMatrix3d DxfPlaneToDrawing(const AcGeVector3d& normal);
