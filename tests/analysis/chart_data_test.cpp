#include "analysis/reduction.h"

#include "tests/support/drawing.h"
#include "tests/support/project.h"

#include <gtest/gtest.h>

namespace {
class ChartData : public testing::Test {
protected:
    CTestDrawing m_drawing;
    CTestProject m_project;
    CBRENChart m_chart;

    void For(const char* pMethod) {
        m_chart.m_nGCSY = 1;
        m_chart.m_strZKBH = "ZK1";
        m_chart.m_strQYBH = "1-1";
        m_chart.m_strSYFF = pMethod;
    }
};
} // namespace

TEST_F(ChartData, OfAnUnknownMethodFailsWithoutAMessage) {
    For("剪切");
    EXPECT_EQ(m_chart.ComputeChartData(), 0);
    EXPECT_EQ(m_drawing.m_strPrinted, "");
    EXPECT_TRUE(m_project.Boxes().empty());
}

TEST_F(ChartData, FailsWithABoxWhenTheTableCannotBeOpened) {
    For(g_pMethodUU);
    m_project.Execute("DROP TABLE z_c_SanZhouCSXM");
    EXPECT_EQ(m_chart.ComputeChartData(), 0);
    EXPECT_EQ(m_project.Boxes(), (std::vector<std::string>{"数据库z_c_SanZhouCSXM打开有错误!"}));
}

TEST_F(ChartData, FailsWithALineWhenTheSampleHasNoReadings) {
    For(g_pMethodUU);
    EXPECT_EQ(m_chart.ComputeChartData(), 0);
    EXPECT_EQ(m_drawing.m_strPrinted, "\n数据库z_c_SanZhouCSXM无初始数据!");
    EXPECT_TRUE(m_project.Boxes().empty());
}

TEST_F(ChartData, ReadsSpecimensAndReadingsInTheirOrder) {
    For(g_pMethodUU);
    // Stored out of order; two specimens of two readings each, and a row of another sample.
    m_project.AddReading("ZK1", "1-1", 2, 2, 200, 40, 600, 2);
    m_project.AddReading("ZK1", "1-1", 1, 2, 100, 30, 500, 2);
    m_project.AddReading("ZK1", "1-1", 2, 1, 200, 10, 100, 0);
    m_project.AddReading("ZK1", "1-1", 1, 1, 100, 5, 100, 0);
    m_project.AddReading("ZK1", "1-10", 1, 1, 999, 5, 100, 2);
    ASSERT_EQ(m_chart.ComputeChartData(), 1);
    ASSERT_EQ(m_chart.m_arSigma3.length(), 2);
    EXPECT_EQ(m_chart.m_arSigma3[0], 100.0);
    EXPECT_EQ(m_chart.m_arSigma3[1], 200.0);
    ASSERT_EQ(m_chart.m_arStrainSeries.GetSize(), 2);
    EXPECT_LT(m_chart.m_arStrainSeries[1][0], m_chart.m_arStrainSeries[1][1]);
    EXPECT_EQ(m_chart.m_bSingleSpecimen, 0);
}

TEST_F(ChartData, WidensSinglePrecisionBeforeAnyArithmetic) {
    For(g_pMethodUU);
    m_project.AddReading("ZK1", "1-1", 1, 1, 100.1, 30, 500, 2);
    ASSERT_EQ(m_chart.ComputeChartData(), 1);
    EXPECT_EQ(m_chart.m_arSigma3[0], static_cast<double>(100.1F));
}

TEST_F(ChartData, FindsASampleWhoseNumberHoldsAnApostrophe) {
    For(g_pMethodUU);
    m_chart.m_strQYBH = "1'-1";
    m_project.AddReading("ZK1", "1'-1", 1, 1, 100, 30, 500, 2);
    EXPECT_EQ(m_chart.ComputeChartData(), 1);
}
