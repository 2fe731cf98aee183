#pragma once

#include "platform/acad/gi_world_draw.h"
#include "platform/mfc/string.h"

/// The world form of a text: at a position, nDirection 0 horizontal, 1 vertical (reading upward).
void DrawChartText(AcGiWorldDraw* pMode, const AcGePoint3d& ptPosition, const CString& strText,
                   int nDirection, const AcGiTextStyle& style);

/// Width of a text of the given height (drawing units) at the style's natural width factor, × 0.7: the
/// chart's texts are set that much narrower, whatever the style says, and all centring rests on it. 0.0 when
/// it can't be measured, and while the host is quitting, when no temporary objects may be made.
double MeasureTextWidth(const CString& strText, AcDbObjectId idStyle, double dHeight);
