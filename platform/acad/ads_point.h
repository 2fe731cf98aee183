#pragma once

#include "platform/acad/geometry.h"
#include "platform/acad/result_buffer.h"

/// Hands a point out in the editor's form.
inline void PutPoint(const AcGePoint3d& point, ads_point result) {
    result[0] = point.x;
    result[1] = point.y;
    result[2] = point.z;
}
