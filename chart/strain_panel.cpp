// The stress-strain curves: one per cell-pressure group, chained where they are stages of one specimen.

#include "chart/chart_entity.h"
#include "chart/finite.h"
#include "drawing/curves.h"
#include "drawing/explode_sink.h"
#include "drawing/world_sink.h"

#include <algorithm>

namespace {
/// A first reading beyond these (strain as a fraction, stress in kPa) gets a line from the origin to it.
constexpr double g_dOriginLimit = 0.01;
/// In what the two forms of the curves differ: whether they have that line.
constexpr bool g_bOriginInWorldForm = true;
constexpr bool g_bOriginInExplodeForm = false;
} // namespace

AcGePoint3dArray CBRENChart::CurvePoints(int nSeries, bool bWithOrigin) const {
    const CDoubleList& strains = m_arStrainSeries[nSeries];
    const CDoubleList& stresses = m_arStressSeries[nSeries];
    const int nPoints = std::min(strains.length(), stresses.length());
    AcGePoint3dArray points(nPoints + 1);
    if (bWithOrigin && nPoints > 0 && strains[0] > g_dOriginLimit && stresses[0] > g_dOriginLimit)
        points.append({m_ptCurveOrigin.x, m_ptCurveOrigin.y, 0.0});
    for (int i = 0; i < nPoints; i++) {
        const AcGePoint3d point(m_ptCurveOrigin.x + 100.0 * strains[i] * m_nCurveCellW / m_dCurveStepX,
                                m_ptCurveOrigin.y + stresses[i] * m_nCurveCellH / m_dCurveStepY, 0.0);
        if (IsFinite(point)) points.append(point);
    }
    return points;
}

void CBRENChart::DescribeStrainCurves(CPictureSink& sink, bool bWithOrigin) const {
    const int nSeries = std::min(m_arStrainSeries.GetSize(), m_arStressSeries.GetSize());
    if (m_bSingleSpecimen != 1) {
        for (int i = 0; i < nSeries; i++) {
            const AcGePoint3dArray points = CurvePoints(i, bWithOrigin);
            sink.SolidCurve(points);
            sink.Dots(points);
        }
        return;
    }
    if (nSeries == 1) {
        const AcGePoint3dArray points = CurvePoints(0, false);
        sink.SolidCurve(points);
        sink.Dots(points);
        return;
    }
    if (nSeries > 1) DescribeStages(sink, nSeries, bWithOrigin);
}

void CBRENChart::DescribeStages(CPictureSink& sink, int nSeries, bool bWithOrigin) const {
    AcGePoint3dArray current = CurvePoints(0, bWithOrigin);
    sink.Dots(current);
    for (int k = 0; k < nSeries - 1; k++) {
        const AcGePoint3dArray next = CurvePoints(k + 1, false);
        sink.Dots(next);
        AcGePoint3dArray head, tail, carry;
        const bool bFalls = SplitAtFirstDrop(current, head, tail) == 2;
        const int nCrossed = DrawCrossHead(sink, head, next, carry);
        if (bFalls && nCrossed)
            sink.DashedCurve(tail);
        else if (bFalls)
            DrawCrossTail(sink, tail, next, carry);
        current = carry;
    }
    sink.SolidCurve(current);
    sink.Dots(CurvePoints(nSeries - 1, false)); // the last stage's dots stand twice
}

void CBRENChart::DrawStrainCurves(AcGiWorldDraw* pMode) const {
    CWorldSink sink(pMode, m_nPolylineMode, m_nColor);
    DescribeStrainCurves(sink, g_bOriginInWorldForm);
}

void CBRENChart::ExplodeStrainCurves(AcDbVoidPtrArray& entitySet) const {
    CExplodeSink sink(entitySet, m_nColor, m_idTextStyle);
    DescribeStrainCurves(sink, g_bOriginInExplodeForm);
}
