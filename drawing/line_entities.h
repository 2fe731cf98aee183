#pragma once
// Polylines of two points as entities, for the explode form: each is appended to the array, whose owner owns
// it.

#include "platform/acad/db_entity.h"

void AddLineEntity(AcDbVoidPtrArray& entitySet, const AcGePoint3d& from, const AcGePoint3d& to);
/// The same width all along.
void AddWideLineEntity(AcDbVoidPtrArray& entitySet, const AcGePoint3d& from, const AcGePoint3d& to,
                       double dWidth);
/// Tapers from its full width to a point.
void AddArrowEntity(AcDbVoidPtrArray& entitySet, const AcGePoint3d& from, const AcGePoint3d& to,
                    double dWidth);
