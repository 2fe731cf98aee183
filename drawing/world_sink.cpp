#include "drawing/world_sink.h"

#include "analysis/numbers.h"
#include "drawing/chart_text.h"
#include "drawing/curves.h"
#include "drawing/dashed_scope.h"
#include "drawing/polyline_output.h"
#include "drawing/styles.h"

void CWorldSink::TwoVertices(const AcGePoint3d& ptFrom, const AcGePoint3d& ptTo, double dStartWidth,
                             double dEndWidth) {
    m_polyline.reset(Adesk::kTrue, 2);
    m_polyline.addVertexAt(0, {ptFrom.x, ptFrom.y}, 0.0, dStartWidth, dEndWidth);
    m_polyline.addVertexAt(1, {ptTo.x, ptTo.y});
    DrawPolylineByMode(m_nPolylineMode, m_pMode, m_polyline);
}

void CWorldSink::Line(const AcGePoint3d& ptFrom, const AcGePoint3d& ptTo) {
    TwoVertices(ptFrom, ptTo, -1.0, -1.0);
}

void CWorldSink::LineInChartColour(const AcGePoint3d& ptFrom, const AcGePoint3d& ptTo) {
    m_pMode->subEntityTraits().setColor(m_nColor);
    Line(ptFrom, ptTo);
}

void CWorldSink::DashedLine(const AcGePoint3d& ptFrom, const AcGePoint3d& ptTo) {
    const CDashedScope dashed(m_pMode, m_nColor);
    Line(ptFrom, ptTo);
}

void CWorldSink::Arrow(const AcGePoint3d& ptFrom, const AcGePoint3d& ptTo, double dWidth) {
    TwoVertices(ptFrom, ptTo, dWidth, 0.0);
}

void CWorldSink::Text(const AcGePoint3d& ptPosition, const CString& strText, CTextDirection direction) {
    DrawChartText(m_pMode, ptPosition, strText, static_cast<int>(direction), g_ChartTextStyle);
}

void CWorldSink::SolidCurve(const AcGePoint3dArray& points) {
    DrawSolidCurve(m_pMode, points, m_nColor);
}

void CWorldSink::DashedCurve(const AcGePoint3dArray& points) {
    DrawDashedCurve(m_pMode, points, m_nColor);
}

void CWorldSink::Dots(const AcGePoint3dArray& points) {
    DrawCurveDots(points, m_nPolylineMode, m_pMode, m_nColor);
}

void CWorldSink::HalfCircle(const AcGePoint3d& ptCenter, double dRadius) {
    m_pMode->subEntityTraits().setSelectionMarker(1);
    m_pMode->rawGeometry()->circularArc(ptCenter, dRadius, AcGeVector3d::kZAxis, AcGeVector3d::kXAxis, g_dPi,
                                        kAcGiArcSimple);
}

void CWorldSink::DashedHalfCircle(const AcGePoint3d& ptCenter, double dRadius) {
    const CDashedScope dashed(m_pMode, m_nColor);
    HalfCircle(ptCenter, dRadius);
}
