#include "drawing/explode_sink.h"

#include "analysis/numbers.h"
#include "drawing/chart_text.h"
#include "drawing/curve_strokes.h"
#include "drawing/dashed_scope.h"
#include "drawing/explode_set.h"
#include "drawing/line_entities.h"
#include "drawing/line_types.h"
#include "drawing/styles.h"
#include "platform/acad/db_arc.h"

void CExplodeSink::DashLast() {
    SetDashed(*static_cast<AcDbEntity*>(m_entitySet.last()));
    // Only so that the drawing has this line type as it has after the world form.
    AcDbObjectId idContinuous;
    LoadLinetypeId(g_pContinuousLinetype, nullptr, idContinuous);
}

void CExplodeSink::Line(const AcGePoint3d& ptFrom, const AcGePoint3d& ptTo) {
    AddLineEntity(m_entitySet, ptFrom, ptTo);
}

void CExplodeSink::LineInChartColour(const AcGePoint3d& ptFrom, const AcGePoint3d& ptTo) {
    Line(ptFrom, ptTo);
}

void CExplodeSink::DashedLine(const AcGePoint3d& ptFrom, const AcGePoint3d& ptTo) {
    Line(ptFrom, ptTo);
    DashLast();
}

void CExplodeSink::WideLine(const AcGePoint3d& ptFrom, const AcGePoint3d& ptTo, double dWidth) {
    AddWideLineEntity(m_entitySet, ptFrom, ptTo, dWidth);
}

void CExplodeSink::Arrow(const AcGePoint3d& ptFrom, const AcGePoint3d& ptTo, double dWidth) {
    AddArrowEntity(m_entitySet, ptFrom, ptTo, dWidth);
}

void CExplodeSink::Text(const AcGePoint3d& ptPosition, const CString& strText, CTextDirection direction) {
    ExplodeChartText(m_entitySet, ptPosition, strText, static_cast<int>(direction), g_ChartTextStyle,
                     m_idTextStyle);
}

void CExplodeSink::SolidCurve(const AcGePoint3dArray& points) {
    AddSolidCurve(m_entitySet, points, m_nColor);
}

void CExplodeSink::DashedCurve(const AcGePoint3dArray& points) {
    AddDashedCurve(m_entitySet, points);
}

void CExplodeSink::Dots(const AcGePoint3dArray& points) {
    AddCurveDots(points, m_entitySet);
}

void CExplodeSink::HalfCircle(const AcGePoint3d& ptCenter, double dRadius) {
    HandOver(m_entitySet, std::make_unique<AcDbArc>(ptCenter, dRadius, 0.0, g_dPi));
}

void CExplodeSink::DashedHalfCircle(const AcGePoint3d& ptCenter, double dRadius) {
    HalfCircle(ptCenter, dRadius);
    DashLast();
}
