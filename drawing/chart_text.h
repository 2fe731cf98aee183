#pragma once

#include "platform/acad/db_entity.h"
#include "platform/mfc/string.h"

/// The world form of a text: at a position, nDirection 0 horizontal, 1 vertical (reading upward).
void DrawChartText(AcGiWorldDraw* pMode, const AcGePoint3d& ptPosition, const CString& strText,
                   int nDirection, const AcGiTextStyle& style);

/// The explode form: an entity as high as the style's texts, in a text style of the drawing. It belongs to
/// the array's owner.
void ExplodeChartText(AcDbVoidPtrArray& entitySet, const AcGePoint3d& ptPosition, const CString& strText,
                      int nDirection, const AcGiTextStyle& style, AcDbObjectId idStyle);

/// Width of a text of the given height (drawing units) at the style's natural width factor, × 0.7: the
/// chart's texts are set that much narrower, whatever the style says, and all centring rests on it. 0.0 when
/// it can't be measured, and while the host is quitting, when no temporary objects may be made.
double MeasureTextWidth(const CString& strText, AcDbObjectId idStyle, double dHeight);
