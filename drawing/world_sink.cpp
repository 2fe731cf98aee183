#include "drawing/world_sink.h"

#include "analysis/numbers.h"
#include "drawing/chart_text.h"
#include "drawing/curve_strokes.h"
#include "drawing/dashed_scope.h"
#include "drawing/polyline_output.h"
#include "drawing/polyline_vertices.h"
#include "drawing/styles.h"

void CWorldSink::TwoVertices(const CPolylineVertex& from, const CPolylineVertex& to) {
    m_polyline.reset(Adesk::kTrue, 2);
    for (const CPolylineVertex& vertex : {from, to})
        AppendVertex(m_polyline, vertex);
    DrawPolylineByMode(m_nPolylineMode, m_pMode, m_polyline);
}

void CWorldSink::Line(const AcGePoint3d& ptFrom, const AcGePoint3d& ptTo) {
    TwoVertices({{ptFrom.x, ptFrom.y}}, {{ptTo.x, ptTo.y}});
}

void CWorldSink::LineInChartColour(const AcGePoint3d& ptFrom, const AcGePoint3d& ptTo) {
    m_pMode->subEntityTraits().setColor(m_nColor);
    Line(ptFrom, ptTo);
}

void CWorldSink::DashedLine(const AcGePoint3d& ptFrom, const AcGePoint3d& ptTo) {
    const CDashedScope dashed(m_pMode, m_nColor);
    Line(ptFrom, ptTo);
}

void CWorldSink::WideLine(const AcGePoint3d& ptFrom, const AcGePoint3d& ptTo, double dWidth) {
    TwoVertices({{ptFrom.x, ptFrom.y}, 0.0, dWidth, dWidth}, {{ptTo.x, ptTo.y}, 0.0, dWidth, dWidth});
}

void CWorldSink::Arrow(const AcGePoint3d& ptFrom, const AcGePoint3d& ptTo, double dWidth) {
    TwoVertices({{ptFrom.x, ptFrom.y}, 0.0, dWidth, 0.0}, {{ptTo.x, ptTo.y}});
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
