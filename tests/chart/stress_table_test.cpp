#include "chart/stress_table.h"

#include "tests/chart/table_picture.h"

#include <gtest/gtest.h>

#include <limits>

namespace {
constexpr double g_x = 100.0, g_y = 200.0;

/// Samples of the values 1, 2, 3 ...; in the effective set 101, 102, 103 ...
void Prepare(CBRENChart& chart, const char* pMethod, int nTotal, int nEffective = 0) {
    chart.m_strSYFF = pMethod;
    chart.m_ptTableOrigin.set(g_x, g_y, 0.0);
    for (int i = 0; i < nTotal; i++)
        chart.m_arTotal.append(1.0 + i);
    for (int i = 0; i < nEffective; i++)
        chart.m_arEffective.append(101.0 + i);
}

CSeenTable World(const CBRENChart& chart) {
    return SeenInWorldForm(&DescribeStressTable, chart);
}
CSeenTable Explode(const CBRENChart& chart) {
    return SeenInExplodeForm(&DescribeStressTable, chart);
}

std::vector<CSeenText> Moved(std::vector<CSeenText> texts, double dDown = 0.0) {
    for (CSeenText& text : texts) {
        text.x += g_x;
        text.y += g_y - dDown;
    }
    return texts;
}
} // namespace

TEST(StressTable, HasAColumnForEachOfThreeSamplesBesideItsTitles) {
    const CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodUU, 18);
    for (const CSeenTable& seen : {World(chart), Explode(chart)}) {
        const double dRight = g_x + 60.0, dBottom = g_y - 52.0;
        const std::vector<CSeenLine> expected = {
            {g_x - 0.25, g_y, dRight + 0.25, g_y, 0.5},
            {g_x, g_y - 8.0, dRight, g_y - 8.0, 0.0},
            {g_x, g_y - 16.0, dRight, g_y - 16.0, 0.0},
            {g_x, g_y - 24.0, dRight, g_y - 24.0, 0.0},
            {g_x, g_y - 32.0, dRight, g_y - 32.0, 0.0},
            {g_x, g_y - 42.0, dRight, g_y - 42.0, 0.0},
            {g_x - 0.25, dBottom, dRight + 0.25, dBottom, 0.5},
            {g_x, g_y, g_x, dBottom, 0.5},
            {g_x + 15.0, g_y, g_x + 15.0, dBottom, 0.0},
            {g_x + 30.0, g_y, g_x + 30.0, dBottom, 0.0},
            {g_x + 45.0, g_y, g_x + 45.0, dBottom, 0.0},
            {g_x + 60.0, g_y, g_x + 60.0, dBottom, 0.5},
            {g_x + 3.0, g_y - 37.2, g_x + 13.0, g_y - 37.2, -1.0}, // the fractions' rules
            {g_x + 3.0, g_y - 46.5, g_x + 13.0, g_y - 46.5, -1.0},
        };
        EXPECT_EQ(seen.m_arLines, expected);
    }
}

TEST(StressTable, FillsItsRowsFromTheSecondColumnOn) {
    const CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodUU, 18);
    const CSeenTable world = World(chart), exploded = Explode(chart);
    const double tops[] = {0.0, 8.0, 16.0, 24.0, 32.0, 42.0};
    for (int nRow = 0; nRow < 6; nRow++) {
        for (int nColumn = 0; nColumn < 3; nColumn++) {
            const std::string strValue = std::to_string(nColumn * 6 + nRow + 1);
            const int nText = nRow * 3 + nColumn;
            const double dLeft = g_x + 15.0 * (nColumn + 1);
            const double y = g_y - tops[nRow] - (nRow < 4 ? 4.0 : 5.0) - 1.5;
            EXPECT_EQ(world.m_arTexts[nText],
                      (CSeenText{strValue, CentredAt(dLeft, 15.0, strValue, 2.5), y, 2.5}));
            EXPECT_EQ(exploded.m_arTexts[nText],
                      (CSeenText{strValue, CentredAt(dLeft, 15.0, strValue, 3.0), y, 3.0}));
        }
    }
}

TEST(StressTable, LeavesOutTheTailOfAListThatFillsNoColumn) {
    const CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodUU, 13);
    for (const CSeenTable& seen : {World(chart), Explode(chart)}) {
        EXPECT_EQ(seen.m_arLines.size(), 7U + 4U + 2U);
        EXPECT_EQ(seen.m_arTexts.size(), 12U + 8U + 10U);
        for (const CSeenText& text : seen.m_arTexts)
            EXPECT_NE(text.m_strText, "13");
    }
}

TEST(StressTable, WithoutSamplesKeepsItsTitleColumn) {
    const CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodUU, 0);
    for (const CSeenTable& seen : {World(chart), Explode(chart)}) {
        EXPECT_EQ(seen.m_arLines.size(), 7U + 2U + 2U);
        EXPECT_EQ(seen.m_arLines[8], (CSeenLine{g_x + 15.0, g_y, g_x + 15.0, g_y - 52.0, 0.5}));
        EXPECT_EQ(seen.m_arTexts.size(), 8U + 10U);
    }
}

TEST(StressTable, TitlesTheTotalSetByMainTextsThenSubscripts) {
    const CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodUU, 0);
    const auto titles = [](double dSize, double dSecond) {
        return Moved({{"σ", 5.0, -5.0, dSize},
                      {"σ", 5.0, -13.0, dSize},
                      {"σ+σ", 3.0, -21.0, dSize},
                      {"σ-σ", 3.0, -29.0, dSize},
                      {"σ+σ", 3.0, -37.0, dSize},
                      {"2", 7.0, -40.3, 2.5},
                      {"σ-σ", 3.0, -46.3, dSize},
                      {"2", 7.0, -49.6, 2.5},
                      {"3", 7.8, -5.0, 1.0},
                      {"1", 7.8, -13.0, 1.0},
                      {"1", 5.8, -21.0, 1.0},
                      {"1", 5.8, -29.0, 1.0},
                      {"1", 5.8, -37.0, 1.0},
                      {"1", 5.8, -46.2, 1.0},
                      {"3", dSecond, -21.0, 1.0},
                      {"3", dSecond, -29.0, 1.0},
                      {"3", dSecond, -37.0, 1.0},
                      {"3", dSecond, -46.2, 1.0}});
    };
    EXPECT_EQ(World(chart).m_arTexts, titles(2.5, 11.0));
    EXPECT_EQ(Explode(chart).m_arTexts, titles(3.0, 12.5));
}

TEST(StressTable, HasNoEffectiveRowsForOtherMethods) {
    const CTestDrawing drawing;
    for (const char* pMethod : {g_pMethodUU, g_pMethodCD}) {
        CBRENChart chart;
        Prepare(chart, pMethod, 6, 4);
        EXPECT_EQ(World(chart).m_arLines.size(), 7U + 3U + 2U);
        EXPECT_EQ(World(chart).m_arTexts.size(), 6U + 18U);
        EXPECT_EQ(Explode(chart).m_arTexts.size(), 6U + 18U);
    }
}

TEST(StressTable, OfAnUndrainedTestReachesFurtherDown) {
    const CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodCU, 6, 4);
    const auto lines = World(chart).m_arLines;
    ASSERT_EQ(lines.size(), 11U + 3U + 3U);
    const double levels[] = {0, 8, 16, 24, 32, 42, 52, 60, 68, 76, 86};
    for (std::size_t i = 0; i < 11; i++)
        EXPECT_EQ(lines[i].y1, g_y - levels[i]);
    EXPECT_EQ(lines[10].m_dWidth, 0.5);
    EXPECT_EQ(lines[11].y2, g_y - 86.0);
}

TEST(StressTable, FillsTheEffectiveRowsEachAsHighAsTheOthers) {
    const CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodCU, 6, 9); // two columns, and one value unread
    const CSeenTable seen = World(chart);
    for (int nRow = 0; nRow < 4; nRow++) {
        for (int nColumn = 0; nColumn < 2; nColumn++) {
            const std::string strValue = std::to_string(101 + nColumn * 4 + nRow);
            EXPECT_EQ(seen.m_arTexts[static_cast<std::size_t>(6 + nRow * 2 + nColumn)],
                      (CSeenText{strValue, CentredAt(g_x + 15.0 * (nColumn + 1), 15.0, strValue, 2.5),
                                 g_y - 52.0 - 8.0 * nRow - 4.0 - 1.5, 2.5}));
        }
    }
}

TEST(StressTable, KeepsEffectiveRowsAndTitlesEmptyWithoutValues) {
    const CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodCU, 6);
    for (const CSeenTable& seen : {World(chart), Explode(chart)}) {
        EXPECT_EQ(seen.m_arLines.size(), 11U + 3U + 3U);
        EXPECT_EQ(seen.m_arTexts.size(), 6U + 18U + 11U);
    }
}

TEST(StressTable, TitlesTheEffectiveSetBelowTheTotalOne) {
    const CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodCU, 0);
    const auto titles = [](double dSingle, double dSum) {
        return Moved({{"σ'", dSingle, -5.0, 3.0},
                      {"σ'", dSingle, -13.0, 3.0},
                      {"σ'+σ'", dSum, -21.0, 3.0},
                      {"σ'+σ'", dSum, -29.0, 3.0},
                      {"2", 7.0, -32.3, 2.5},
                      {"3", 8.8, -5.0, 1.0},
                      {"1", 8.8, -13.0, 1.0},
                      {"1", 4.8, -21.0, 1.0},
                      {"1", 4.8, -29.0, 1.0},
                      {"3", 12.5, -21.0, 1.0},
                      {"3", 12.5, -29.0, 1.0}},
                     52.0);
    };
    const CSeenTable world = World(chart), exploded = Explode(chart);
    EXPECT_EQ(Texts(world, 18, 11), titles(5.0, 1.0));
    EXPECT_EQ(Texts(exploded, 18, 11), titles(7.0, 3.0));
    const double yRule = g_y - 52.0 - 29.2;
    EXPECT_EQ(world.m_arLines.back(), (CSeenLine{g_x + 1.0, yRule, g_x + 14.0, yRule, -1.0}));
    EXPECT_EQ(exploded.m_arLines.back(), (CSeenLine{g_x + 3.0, yRule, g_x + 13.0, yRule, -1.0}));
}

TEST(StressTable, WritesWhatIsNoNumberAsText) {
    const CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodUU, 6);
    chart.m_arTotal[0] = -std::numeric_limits<double>::quiet_NaN();
    chart.m_arTotal[1] = std::numeric_limits<double>::infinity();
    const CSeenTable seen = World(chart);
    EXPECT_EQ(seen.m_arTexts[0].m_strText, "nan");
    EXPECT_EQ(seen.m_arTexts[1].m_strText, "inf");
}

TEST(StressTable, WithoutAPlaceIsLeftOut) {
    const CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodUU, 6);
    chart.m_ptTableOrigin.x = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(World(chart).m_arTexts.empty());
    EXPECT_TRUE(Explode(chart).m_arLines.empty());
}
