#pragma once

#include "platform/acad/geometry.h"

#include <cmath>

/// Whether the point has a place on the sheet. What has none is left out of the picture and kept in the data.
inline bool IsFinite(const AcGePoint3d& point) {
    return std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z);
}
