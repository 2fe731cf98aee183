#include "chart/chart_entity.h"

#include "tests/support/drawing.h"

#include <gtest/gtest.h>

// Without an installation the store at the end of the arrangement fails and leaves its message only.
namespace {
constexpr double g_dBaseX = 1000.0, g_dBaseY = 500.0;

void Prepare(CBRENChart& chart, const char* pMethod, int nSamples, int nMohrRows) {
    chart.m_ptBase.set(g_dBaseX, g_dBaseY, 7.0);
    chart.m_strSYFF = pMethod;
    for (int i = 0; i < 6 * nSamples; i++)
        chart.m_arTotal.append(1.0);
    chart.m_nMohrRows = nMohrRows;
    chart.m_dMohrStepX = chart.m_dMohrStepY = 50.0;
    chart.m_dMaxSigma1 = 400.0;
    chart.m_dGraphPhi = 0.3;
    chart.m_dGraphC = 20.0;
}
} // namespace

TEST(ArrangePanels, SetsThePanelsSideBySideForFourSamples) {
    CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodUU, 4, 6);
    chart.ArrangePanels();
    const double dAir = (257.0 - 15.0 - 80.0 - 60.0) / 2.5;
    EXPECT_EQ(chart.m_ptCurveOrigin.x, g_dBaseX + (176.0 - (80 + 75 + 18)) / 2.0 + 15.0);
    EXPECT_DOUBLE_EQ(chart.m_ptCurveOrigin.y, g_dBaseY - 15.0 - 0.5 * dAir - 80.0);
    EXPECT_EQ(chart.m_ptCurveOrigin.z, 0.0);
    EXPECT_EQ(chart.m_ptMohrOrigin.x, g_dBaseX + (176.0 - 155.0) / 2.0 + 10.0);
    EXPECT_DOUBLE_EQ(chart.m_ptMohrOrigin.y, g_dBaseY - 257.0 + dAir);
    EXPECT_EQ(chart.m_ptTableOrigin.x, chart.m_ptCurveOrigin.x + 80.0 + 3.0);
    EXPECT_DOUBLE_EQ(chart.m_ptTableOrigin.y, chart.m_ptCurveOrigin.y + 80.0 - (80.0 - 48.0) / 2.0);
    EXPECT_EQ(chart.m_ptSummaryOrigin.x, chart.m_ptMohrOrigin.x + 100.0 + 15.0);
    EXPECT_DOUBLE_EQ(chart.m_ptSummaryOrigin.y, chart.m_ptMohrOrigin.y + 60.0 - (60.0 - 48.0) / 2.0);
}

TEST(ArrangePanels, GivesTheTablesOfAnUndrainedTestTheirRoom) {
    CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodCU, 3, 6);
    chart.ArrangePanels();
    EXPECT_EQ(chart.m_ptTableOrigin.x, chart.m_ptCurveOrigin.x + 80.0 + 10.0);
    EXPECT_DOUBLE_EQ(chart.m_ptTableOrigin.y, chart.m_ptCurveOrigin.y + 80.0 - (80.0 - 80.0) / 2.0);
    EXPECT_DOUBLE_EQ(chart.m_ptSummaryOrigin.y, chart.m_ptMohrOrigin.y + 60.0 - (60.0 - 64.0) / 2.0);
}

TEST(ArrangePanels, StacksFiveSamples) {
    CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodUU, 5, 6); // a grid higher than the summary table
    chart.ArrangePanels();
    const double dAir = (257.0 - 15.0 - 80.0 - 60.0 - 52.0) / 4.0;
    EXPECT_EQ(chart.m_ptCurveOrigin.x, g_dBaseX + (176.0 - 80.0) / 2.0);
    EXPECT_DOUBLE_EQ(chart.m_ptCurveOrigin.y, g_dBaseY - 15.0 - dAir - 80.0);
    EXPECT_EQ(chart.m_ptTableOrigin.x, g_dBaseX + (176.0 - 90.0) / 2.0);
    EXPECT_DOUBLE_EQ(chart.m_ptTableOrigin.y, chart.m_ptCurveOrigin.y - dAir);
    EXPECT_EQ(chart.m_ptMohrOrigin.x, g_dBaseX + (176.0 - 145.0) / 2.0);
    EXPECT_DOUBLE_EQ(chart.m_ptMohrOrigin.y,
                     chart.m_ptTableOrigin.y - dAir - 52.0); // the grid's height is left out
    EXPECT_EQ(chart.m_ptSummaryOrigin.x, chart.m_ptMohrOrigin.x + 100.0 + 15.0);
    EXPECT_DOUBLE_EQ(chart.m_ptSummaryOrigin.y, chart.m_ptMohrOrigin.y + 60.0 - (60.0 - 48.0) / 2.0);
}

TEST(ArrangePanels, HangsALowGridBesideTheSummaryTable) {
    CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodUU, 5, 4);
    chart.ArrangePanels();
    const double dAir = (257.0 - 15.0 - 80.0 - 48.0 - 52.0) / 4.0;
    EXPECT_EQ(chart.m_ptSummaryOrigin.x, g_dBaseX + 176.0 - (176.0 - 145.0) / 2.0 - 30.0);
    EXPECT_DOUBLE_EQ(chart.m_ptSummaryOrigin.y, chart.m_ptTableOrigin.y - dAir - 52.0);
    EXPECT_EQ(chart.m_ptMohrOrigin.x, g_dBaseX + (176.0 - 145.0) / 2.0);
    EXPECT_DOUBLE_EQ(chart.m_ptMohrOrigin.y, chart.m_ptSummaryOrigin.y - (48.0 - 40.0) / 2.0 - 40.0);
}

TEST(ArrangePanels, StacksTheHigherTablesOfAnUndrainedTest) {
    CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodCU, 5, 6); // a grid lower than the summary table
    chart.ArrangePanels();
    const double dAir = (257.0 - 15.0 - 80.0 - 64.0 - 86.0) / 4.0;
    EXPECT_DOUBLE_EQ(chart.m_ptCurveOrigin.y, g_dBaseY - 15.0 - dAir - 80.0);
    EXPECT_DOUBLE_EQ(chart.m_ptSummaryOrigin.y, chart.m_ptTableOrigin.y - dAir - 86.0);
    EXPECT_DOUBLE_EQ(chart.m_ptMohrOrigin.y, chart.m_ptSummaryOrigin.y - (64.0 - 60.0) / 2.0 - 60.0);
}

TEST(ArrangePanels, StacksWhenTheWidthIsExactlyUsedUp) {
    CTestDrawing drawing;
    CBRENChart chart; // 83 + 75 + 18 is 176
    Prepare(chart, g_pMethodUU, 4, 6);
    chart.m_nCurveRows = 83;
    chart.m_nCurveCellH = 1;
    chart.ArrangePanels();
    EXPECT_EQ(chart.m_ptTableOrigin.x, g_dBaseX + (176.0 - 75.0) / 2.0);
}

TEST(ArrangePanels, GivesTheSameAirWhereGridAndSummaryTableAreEquallyHigh) {
    CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodUU, 5, 6);
    chart.m_nMohrCellH = 8; // 48, as the table
    chart.ArrangePanels();
    EXPECT_EQ(chart.m_ptSummaryOrigin.x, g_dBaseX + 176.0 - (176.0 - 145.0) / 2.0 - 30.0);
    EXPECT_DOUBLE_EQ(chart.m_ptMohrOrigin.y, chart.m_ptSummaryOrigin.y - 48.0);
}

TEST(ArrangePanels, TurnsTheAngleIntoDegreesAndSeedsTheValueSets) {
    CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodUU, 3, 6);
    g_bChartDataChanged = 1;
    chart.ArrangePanels();
    EXPECT_NEAR(chart.m_dGraphPhi, 0.3 / 3.1415926 * 180.0, 1e-9);
    EXPECT_NEAR(chart.m_dGraphC, 20.0, 1e-9);
    EXPECT_EQ(chart.m_dCalcPhi, chart.m_dGraphPhi);
    EXPECT_EQ(chart.m_dAdoptPhi, chart.m_dGraphPhi);
    EXPECT_EQ(chart.m_dCalcC, chart.m_dGraphC);
    EXPECT_EQ(chart.m_dAdoptC, chart.m_dGraphC);
    EXPECT_EQ(chart.m_dCalcCEff, 0.0);
    EXPECT_EQ(g_bChartDataChanged, 0);
}

TEST(ArrangePanels, SeedsTheEffectiveSetOfAnUndrainedTestFromItsOwnLine) {
    CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodCU, 3, 6);
    chart.m_dGraphPhiEff = 0.4;
    chart.m_dGraphCEff = 10.0;
    chart.ArrangePanels();
    EXPECT_NEAR(chart.m_dGraphPhiEff, 0.4 / 3.1415926 * 180.0, 1e-9);
    EXPECT_NEAR(chart.m_dGraphCEff, 10.0, 1e-9);
    EXPECT_EQ(chart.m_dCalcPhiEff, chart.m_dGraphPhiEff);
    EXPECT_EQ(chart.m_dAdoptPhiEff, chart.m_dGraphPhiEff);
    EXPECT_EQ(chart.m_dCalcCEff, chart.m_dGraphCEff);
    EXPECT_EQ(chart.m_dAdoptCEff, chart.m_dGraphCEff);
    EXPECT_NEAR(chart.m_dAdoptC, 20.0, 1e-9);
}

TEST(ArrangePanels, LaysTheLineOfTooFewCirclesOnTheSigmaAxis) {
    CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodUU, 1, 6);
    chart.m_bNoEnvelope = 1;
    chart.m_dGraphPhi = chart.m_dGraphC = 0.0;
    chart.ArrangePanels();
    EXPECT_EQ(chart.m_ptEnvStart.y, chart.m_ptMohrOrigin.y);
    EXPECT_EQ(chart.m_ptEnvEnd.y, chart.m_ptMohrOrigin.y);
    EXPECT_EQ(chart.m_dAdoptC, 0.0);
    EXPECT_EQ(chart.m_dAdoptPhi, 0.0);
}

TEST(ArrangePanels, SurvivesAnyNumberOfRows) {
    CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodUU, 5, -2147483647);
    chart.ArrangePanels();
    EXPECT_EQ(chart.m_ptSummaryOrigin.z, 0.0);
}
