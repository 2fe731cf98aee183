#pragma once

#include "platform/acad/geometry.h"

#include <string_view>

/// Reads `x,y` (z is 0), `x,y,z`, and `@dx,dy` or `@dx,dy,dz`, which count from last. False, and *pPoint
/// untouched, for anything else.
bool ParsePoint(std::string_view text, const AcGePoint3d& last, AcGePoint3d* pPoint);
