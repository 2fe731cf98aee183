#include "bench/sample_chart.h"

#include "commands/sheet_layout.h"
#include "drawing/model_space.h"
#include "tests/support/readings.h"

void FillSampleChart(CBRENChart& chart) {
    const std::string strSet = "karlsruhe-fine-sand-cu";
    chart.m_strGCBH = "GC2024-017";
    chart.m_strZKBH = "ZK12";
    chart.m_strQYBH = "ZK12-3";
    chart.m_strSYFF = MethodOf(strSet);
    chart.m_strSoilName = "粉质黏土";
    CReduction reduction(chart);
    for (const CTestReading& reading : ReadingsOf(strSet))
        reduction.AddReading(reading);
    reduction.Finish();
    for (int i = 0; i < 8; i++)
        chart.m_saCells.Add("23.5");
}

std::vector<AcDbObjectId> AddSampleSheets(int nCharts) {
    std::vector<AcDbObjectId> ids;
    for (int i = 0; i < nCharts; i++) {
        auto* const pChart = new CBRENChart;
        FillSampleChart(*pChart);
        pChart->m_ptBase = FirstChartPoint({i * g_dSheetStep, g_dSheetHeight, 0.0}, 0);
        pChart->m_dTextHeight = g_dChartText;
        pChart->ArrangePanels(); // which stores nothing: no project is open
        AddToModelSpace(pChart, ids.emplace_back());
    }
    return ids;
}
