#include "chart/summary_table.h"

#include "tests/chart/table_picture.h"

#include <gtest/gtest.h>

#include <limits>

namespace {
constexpr double g_xSummary = 300.0, g_ySummary = 100.0;

void PrepareSummary(CBRENChart& chart, const char* pMethod) {
    chart.m_strSYFF = pMethod;
    chart.m_strSoilName = "粘土";
    chart.m_ptSummaryOrigin.set(g_xSummary, g_ySummary, 0.0);
    for (const char* pCell : {"20.9", "17", "0.3"})
        chart.m_saCells.Add(pCell);
}

CSeenTable SummaryInWorld(const CBRENChart& chart) {
    return SeenInWorldForm(&DescribeSummaryTable, chart);
}
CSeenTable SummaryExploded(const CBRENChart& chart) {
    return SeenInExplodeForm(&DescribeSummaryTable, chart);
}

/// A text of the table's row in a cell that begins at x.
CSeenText Cell(const char* pText, int nRow, double x, double dTextHeight, double dSize, double dMeasured) {
    return {pText, CentredAt(g_xSummary + x, 15.0, pText, dMeasured),
            g_ySummary - 8.0 * nRow - 4.0 - dTextHeight / 2.0, dSize};
}

const char* const g_arTitles[] = {"土的名称", "含水量(%)", "塑性指数", "液性指数", "c(kPa)", "φ(°)"};
} // namespace

TEST(SummaryTable, HasSixRowsOfTwoColumns) {
    const CTestDrawing drawing;
    CBRENChart chart;
    PrepareSummary(chart, g_pMethodUU);
    for (const CSeenTable& seen : {SummaryInWorld(chart), SummaryExploded(chart)}) {
        std::vector<CSeenLine> expected;
        for (int i = 0; i <= 6; i++) {
            const double dOverrun = i == 0 || i == 6 ? 0.25 : 0.0, y = g_ySummary - 8.0 * i;
            expected.push_back(
                {g_xSummary - 5.0 - dOverrun, y, g_xSummary + 30.0 + dOverrun, y, 2.0 * dOverrun});
        }
        expected.push_back({g_xSummary - 5.0, g_ySummary, g_xSummary - 5.0, g_ySummary - 48.0, 0.5});
        expected.push_back({g_xSummary + 15.0, g_ySummary, g_xSummary + 15.0, g_ySummary - 48.0, 0.0});
        expected.push_back({g_xSummary + 30.0, g_ySummary, g_xSummary + 30.0, g_ySummary - 48.0, 0.5});
        EXPECT_EQ(seen.m_arLines, expected);
    }
}

TEST(SummaryTable, ListsItsValuesFromTheSecondRowOn) {
    const CTestDrawing drawing;
    CBRENChart chart;
    PrepareSummary(chart, g_pMethodUU);
    EXPECT_EQ(
        Texts(SummaryInWorld(chart), 0, 3),
        (std::vector<CSeenText>{Cell("20.9", 1, 13.0, 2.5, 2.5, 2.5), Cell("17", 2, 13.0, 2.5, 2.5, 2.5),
                                Cell("0.3", 3, 13.0, 2.5, 2.5, 2.5)}));
    EXPECT_EQ(
        Texts(SummaryExploded(chart), 0, 3),
        (std::vector<CSeenText>{Cell("20.9", 1, 13.0, 3.0, 3.0, 3.0), Cell("17", 2, 13.0, 3.0, 3.0, 3.0),
                                Cell("0.3", 3, 13.0, 3.0, 3.0, 3.0)}));
}

TEST(SummaryTable, TitlesItsRowsAndNamesTheSoilLast) {
    const CTestDrawing drawing;
    CBRENChart chart;
    PrepareSummary(chart, g_pMethodCD);
    const CSeenTable world = SummaryInWorld(chart), exploded = SummaryExploded(chart);
    ASSERT_EQ(world.m_arTexts.size(), 3U + 6U + 1U) << "ends at φ";
    ASSERT_EQ(exploded.m_arTexts.size(), 10U);
    for (int i = 0; i < 6; i++) {
        const int nText = 3 + i;
        EXPECT_EQ(world.m_arTexts[nText], Cell(g_arTitles[i], i, -5.0, 2.5, 2.5, 2.5));
        EXPECT_EQ(exploded.m_arTexts[nText], Cell(g_arTitles[i], i, -4.0, 2.5, 2.5, 2.5));
    }
    EXPECT_EQ(world.m_arTexts[9], Cell("粘土", 0, 13.0, 2.5, 2.5, 2.5));
    EXPECT_EQ(exploded.m_arTexts[9], Cell("粘土", 0, 13.0, 2.5, 2.5, 2.5));
}

TEST(SummaryTable, OfAnUndrainedTestHasTwoMoreRows) {
    const CTestDrawing drawing;
    CBRENChart chart;
    PrepareSummary(chart, g_pMethodCU);
    const CSeenTable world = SummaryInWorld(chart), exploded = SummaryExploded(chart);
    EXPECT_EQ(world.m_arLines.size(), 9U + 3U);
    EXPECT_EQ(world.m_arLines.back().y2, g_ySummary - 64.0);
    // Their texts are 2.5 high; in the world form they are set as if they were 3.8.
    EXPECT_EQ(Texts(world, 9, 2), (std::vector<CSeenText>{Cell("c'(kPa)", 6, -5.0, 3.8, 2.5, 2.5),
                                                          Cell("φ'(°)", 7, -5.0, 3.8, 2.5, 2.5)}));
    EXPECT_EQ(Texts(exploded, 9, 2), (std::vector<CSeenText>{Cell("c'(kPa)", 6, -4.0, 2.5, 2.5, 2.5),
                                                             Cell("φ'(°)", 7, -4.0, 2.5, 2.5, 2.5)}));
}

TEST(SummaryTable, WithoutAPlaceIsLeftOut) {
    const CTestDrawing drawing;
    CBRENChart chart;
    PrepareSummary(chart, g_pMethodUU);
    chart.m_ptSummaryOrigin.y = std::numeric_limits<double>::infinity();
    EXPECT_TRUE(SummaryInWorld(chart).m_arTexts.empty());
    EXPECT_TRUE(SummaryExploded(chart).m_arLines.empty());
}
