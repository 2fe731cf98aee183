#include "drawing/chart_text.h"

#include "analysis/numbers.h"
#include "commands/session_flags.h"
#include "commands/text_conversion.h"
#include "drawing/explode_set.h"
#include "platform/acad/db_text.h"

#include <memory>

namespace {
constexpr double g_dMeasuredWidth = 0.7;
}

void DrawChartText(AcGiWorldDraw* pMode, const AcGePoint3d& ptPosition, const CString& strText,
                   int nDirection, const AcGiTextStyle& style) {
    pMode->subEntityTraits().setSelectionMarker(1);
    const AcGeVector3d& vecDirection = nDirection == 0 ? AcGeVector3d::kXAxis : AcGeVector3d::kYAxis;
    pMode->rawGeometry()->text(ptPosition, AcGeVector3d::kZAxis, vecDirection, ToWide(strText), -1,
                               Adesk::kFalse, style);
}

void ExplodeChartText(AcDbVoidPtrArray& entitySet, const AcGePoint3d& ptPosition, const CString& strText,
                      int nDirection, const AcGiTextStyle& style, AcDbObjectId idStyle) {
    auto pText = std::make_unique<AcDbText>(ptPosition, ToWide(strText), idStyle, style.textSize(),
                                            nDirection == 0 ? 0.0 : g_dHalfPi);
    HandOver(entitySet, std::move(pText));
}

double MeasureTextWidth(const CString& strText, AcDbObjectId idStyle, double dHeight) {
    if (g_bQuitting) return 0.0;
    const AcDbText text(AcGePoint3d::kOrigin, ToWide(strText), idStyle, dHeight, 0.0);
    AcDbExtents extents;
    if (text.getGeomExtents(extents) != Acad::eOk) return 0.0;
    return (extents.maxPoint().x - extents.minPoint().x) * g_dMeasuredWidth;
}
