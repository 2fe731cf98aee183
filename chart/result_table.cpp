// The two tables beside the panels.

#include "chart/chart_entity.h"
#include "chart/stress_table.h"
#include "chart/summary_table.h"
#include "chart/table_form.h"
#include "drawing/explode_sink.h"
#include "drawing/world_sink.h"

void CBRENChart::FillSummaryCells() {
    const auto add = [this](double dValue) {
        CString strValue;
        strValue.Format("%.1f", dValue);
        m_saCells.Add(strValue);
    };
    m_saCells.RemoveAll();
    for (const CString& strText : {m_strWater, m_strPlasticity, m_strLiquidity})
        m_saCells.Add(strText);
    if (m_bNoEnvelope) return;
    add(m_dGraphC);
    add(m_dGraphPhi);
    if (!HasEffectiveSet()) return;
    add(m_dGraphCEff);
    add(m_dGraphPhiEff);
}

void CBRENChart::DrawResultTable(AcGiWorldDraw* pMode) {
    FillSummaryCells();
    CWorldSink sink(pMode, m_nPolylineMode, m_nColor);
    DescribeStressTable(sink, *this, g_tableWorldForm);
    DescribeSummaryTable(sink, *this, g_tableWorldForm);
}

void CBRENChart::ExplodeResultTable(AcDbVoidPtrArray& entitySet) const {
    CExplodeSink sink(entitySet, m_nColor, m_idTextStyle);
    DescribeStressTable(sink, *this, g_tableExplodeForm);
    DescribeSummaryTable(sink, *this, g_tableExplodeForm);
}
