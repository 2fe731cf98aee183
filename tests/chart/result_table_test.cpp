#include "chart/chart_entity.h"
#include "platform/acad/db_text.h"
#include "platform/acad/memory_filer.h"
#include "platform/windows/code_page.h"
#include "tests/support/drawing.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {
void PrepareResults(CBRENChart& chart, const char* pMethod) {
    chart.m_strSYFF = pMethod;
    chart.m_strWater = "20.9";
    chart.m_strPlasticity = "17";
    chart.m_strLiquidity = "0.3";
    chart.m_nMohrRows = 4;
    chart.m_dMohrStepX = chart.m_dMohrStepY = 25.0;
    chart.m_ptEnvStart.set(0.0, 10.0, 0.0); // c is 25 kPa, φ 45°
    chart.m_ptEnvEnd.set(50.0, 60.0, 0.0);
    chart.m_ptEnvStartEff.set(0.0, 4.0, 0.0); // c' is 10 kPa, φ' 0°
    chart.m_ptEnvEndEff.set(50.0, 4.0, 0.0);
}

/// The chart as a file gives it back.
void Reload(const CBRENChart& chart, CBRENChart& copy) {
    const CDbRecord record = RecordOf(chart, AcDb::kCopyFiler);
    CRecordReader reader(AcDb::kCopyFiler, record);
    EXPECT_EQ(copy.dwgIn(&reader), Acad::eOk);
}

std::vector<std::string> Cells(const CBRENChart& chart) {
    std::vector<std::string> cells;
    cells.reserve(static_cast<std::size_t>(chart.m_saCells.GetSize()));
    for (int i = 0; i < chart.m_saCells.GetSize(); i++)
        cells.emplace_back(chart.m_saCells[i].View());
    return cells;
}

bool Shows(const CEntities& entities, const std::string& strText) {
    const auto texts = Parts<AcDbText>(entities);
    return std::any_of(texts.begin(), texts.end(),
                       [&](const AcDbText* pText) { return GbkFromWide(pText->textString()) == strText; });
}

using CTexts = std::vector<std::string>;
} // namespace

TEST(ResultTable, ListsIndexValuesAndStrengthsAtEachDrawing) {
    const CTestDrawing drawing;
    CBRENChart chart;
    PrepareResults(chart, g_pMethodUU);
    chart.m_saCells.Add("of an earlier drawing");
    DrawEntity(chart);
    EXPECT_EQ(Cells(chart), (CTexts{"20.9", "17", "0.3", "25.0", "45.0"}));
    chart.m_ptEnvStart.y = chart.m_ptEnvEnd.y = 20.0;
    DrawEntity(chart);
    EXPECT_EQ(Cells(chart), (CTexts{"20.9", "17", "0.3", "50.0", "0.0"}));
}

TEST(ResultTable, ListsTheEffectiveStrengthsOfAnUndrainedTest) {
    const CTestDrawing drawing;
    CBRENChart chart;
    PrepareResults(chart, g_pMethodCU);
    DrawEntity(chart);
    EXPECT_EQ(Cells(chart), (CTexts{"20.9", "17", "0.3", "25.0", "45.0", "10.0", "0.0"}));
}

TEST(ResultTable, LeavesItsLastFourCellsEmptyWithoutAnEnvelope) {
    const CTestDrawing drawing;
    CBRENChart chart;
    PrepareResults(chart, g_pMethodCU);
    chart.m_bNoEnvelope = 1;
    const auto texts = Shapes<CTextPrimitive>(DrawEntity(chart));
    EXPECT_EQ(Cells(chart), (CTexts{"20.9", "17", "0.3"}));
    for (const char* pTitle : {"c(kPa)", "φ(°)", "c'(kPa)", "φ'(°)"})
        EXPECT_TRUE(std::any_of(texts.begin(), texts.end(), [&](const CTextPrimitive& text) {
            return text.m_strText == pTitle;
        })) << pTitle;
}

TEST(ResultTable, ShowsTheStoredValuesOfAChartExplodedBeforeItWasDrawn) {
    const CTestDrawing drawing;
    CBRENChart chart;
    PrepareResults(chart, g_pMethodUU);
    chart.m_saCells.Add("as stored");
    CBRENChart loaded;
    Reload(chart, loaded);
    const CEntities entities = Exploded(loaded);
    EXPECT_TRUE(Shows(entities, "as stored"));
    EXPECT_FALSE(Shows(entities, "20.9"));
    EXPECT_EQ(Cells(loaded), (CTexts{"as stored"}));
}

TEST(ResultTable, OfAReloadedChartShowsTheValuesOfItsLineAgain) {
    const CTestDrawing drawing;
    CBRENChart chart;
    PrepareResults(chart, g_pMethodUU);
    chart.m_bNoEnvelope = 1;
    chart.m_ptEnvStart.y = chart.m_ptEnvEnd.y = 0.0; // where the line of too few circles lies
    DrawEntity(chart);
    EXPECT_EQ(Cells(chart).size(), 3U);
    CBRENChart loaded;
    Reload(chart, loaded);
    DrawEntity(loaded);
    EXPECT_EQ(Cells(loaded), (CTexts{"20.9", "17", "0.3", "0.0", "0.0"}));
}

TEST(ResultTable, IsRebuiltByADrawingOnly) {
    const CTestDrawing drawing;
    CBRENChart chart;
    PrepareResults(chart, g_pMethodUU);
    DrawEntity(chart, true);
    Exploded(chart);
    EXPECT_TRUE(Cells(chart).empty());
}
