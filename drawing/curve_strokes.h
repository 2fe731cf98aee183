#pragma once
// Curves and their dots in both forms of output.

#include "platform/acad/db_entity.h"

// The world form. Each sets the traits it needs; nColor is the colour index that stands afterwards.
void DrawSolidCurve(AcGiWorldDraw* pMode, const AcGePoint3dArray& points, Adesk::UInt16 nColor);
void DrawDashedCurve(AcGiWorldDraw* pMode, const AcGePoint3dArray& points, Adesk::UInt16 nColor);
/// A full dot, 1.0 across, in colour index 1 at each point.
void DrawCurveDots(const AcGePoint3dArray& points, Adesk::Int16 nPolylineMode, AcGiWorldDraw* pMode,
                   Adesk::UInt16 nColor);

// The explode form: what they make belongs to the array's owner.
void AddSolidCurve(AcDbVoidPtrArray& entitySet, const AcGePoint3dArray& points, Adesk::UInt16 nColor);
void AddDashedCurve(AcDbVoidPtrArray& entitySet, const AcGePoint3dArray& points);
void AddCurveDots(const AcGePoint3dArray& points, AcDbVoidPtrArray& entitySet);
