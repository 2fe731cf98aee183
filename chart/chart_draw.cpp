// What the chart draws, and in which order.

#include "chart/axes.h"
#include "chart/chart_entity.h"
#include "drawing/styles.h"

Adesk::Boolean CBRENChart::subWorldDraw(AcGiWorldDraw* pMode) {
    SetupChartTextStyle(g_ChartTextStyle);
    const bool bDragging = pMode->isDragging() != 0;
    if (!bDragging) {
        DrawStrainCurves(pMode);
        DrawMohrCircles(pMode);
        ReadEnvelopeValues();
    }
    if (m_bNoEnvelope == 0) DrawEnvelope(pMode);
    if (bDragging) return 1; // a drag shows the envelope lines only
    DrawChartAxes(pMode, CurveAxes());
    DrawChartAxes(pMode, MohrAxes());
    DrawResultTable(pMode);
    return 1;
}

Acad::ErrorStatus CBRENChart::subExplode(AcDbVoidPtrArray& entitySet) const {
    SetupChartTextStyle(g_ChartTextStyle);
    ExplodeStrainCurves(entitySet);
    ExplodeMohrCircles(entitySet);
    if (m_bNoEnvelope == 0) ExplodeEnvelope(entitySet);
    ExplodeChartAxes(entitySet, CurveAxes());
    ExplodeChartAxes(entitySet, MohrAxes());
    ExplodeResultTable(entitySet);
    return Acad::eOk;
}
