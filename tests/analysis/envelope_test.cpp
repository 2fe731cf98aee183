#include "analysis/numbers.h"
#include "chart/chart_entity.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {
/// Mohr panel at (100, 50), ten units a cell of 25 kPa, six rows.
void Prepare(CBRENChart& chart) {
    chart.m_ptMohrOrigin.set(100.0, 50.0, 0.0);
    chart.m_dMohrStepX = chart.m_dMohrStepY = 25.0;
    chart.m_nMohrRows = 6;
    chart.m_dMaxSigma1 = 200.0;
    chart.m_strSYFF = g_pMethodUU;
}
} // namespace

TEST(FitEnvelopeLine, RunsFromTheTauAxisAsFarAsTheGreatestSigma) {
    CBRENChart chart;
    Prepare(chart);
    AcGePoint3d ptStart, ptEnd;
    chart.FitEnvelopeLine(ptStart, ptEnd, 0.3, 20.0);
    EXPECT_EQ(ptStart.x, 100.0);
    EXPECT_EQ(ptStart.y, 50.0 + 20.0 / 25.0 * 10);
    EXPECT_EQ(ptEnd.x, 100.0 + 80.0);
    EXPECT_EQ(ptEnd.y, 50.0 + (80.0 * std::tan(0.3) + 8.0));
}

TEST(FitEnvelopeLine, StopsBelowTheTopOfTheGridAndKeepsItsSlope) {
    CBRENChart chart;
    Prepare(chart);
    AcGePoint3d ptStart, ptEnd;
    chart.FitEnvelopeLine(ptStart, ptEnd, 0.7, 20.0);
    EXPECT_NEAR(ptEnd.y, 50.0 + 58.0, 1e-12);
    EXPECT_NEAR((ptEnd.y - ptStart.y) / (ptEnd.x - ptStart.x), std::tan(0.7), 1e-12);
}

TEST(FitEnvelopeLine, ThatIsLevelAboveTheGridEndsNowhere) {
    CBRENChart chart;
    Prepare(chart);
    AcGePoint3d ptStart, ptEnd;
    chart.FitEnvelopeLine(ptStart, ptEnd, 0.0, 1000.0);
    EXPECT_FALSE(std::isfinite(ptEnd.x));
}

TEST(ReadEnvelopeValues, ReadsBackWhatWasFitted) {
    CBRENChart chart;
    Prepare(chart);
    for (const double dPhi : {0.1, 0.3, 0.7}) { // the last one is clipped
        chart.FitEnvelopeLine(chart.m_ptEnvStart, chart.m_ptEnvEnd, dPhi, 20.0);
        chart.ReadEnvelopeValues();
        EXPECT_NEAR(chart.m_dGraphPhi, dPhi / g_dPi * 180.0, 1e-9);
        EXPECT_NEAR(chart.m_dGraphC, 20.0, 1e-9);
    }
}

TEST(ReadEnvelopeValues, ExtendsTheLineToTheTauAxis) {
    CBRENChart chart;
    Prepare(chart);
    chart.m_ptEnvStart.set(110.0, 60.0, 0.0);
    chart.m_ptEnvEnd.set(130.0, 80.0, 0.0);
    chart.ReadEnvelopeValues();
    EXPECT_EQ(chart.m_dGraphC, 0.0);
    EXPECT_EQ(chart.m_dGraphPhi, std::atan2(20.0, 20.0) / 3.1415926 * 180.0);
}

TEST(ReadEnvelopeValues, ShowsWhatAnUprightLineGives) {
    CBRENChart chart;
    Prepare(chart);
    chart.m_ptEnvStart.set(110.0, 60.0, 0.0);
    chart.m_ptEnvEnd.set(110.0, 80.0, 0.0);
    chart.ReadEnvelopeValues();
    EXPECT_FALSE(std::isfinite(chart.m_dGraphC));
}

TEST(ReadEnvelopeValues, ReadsTheEffectiveLineOfAConsolidatedUndrainedTestOnly) {
    CBRENChart chart;
    Prepare(chart);
    chart.m_ptEnvEnd.set(180.0, 60.0, 0.0);
    chart.m_ptEnvStartEff.set(100.0, 60.0, 0.0);
    chart.m_ptEnvEndEff.set(180.0, 60.0, 0.0);
    chart.m_dGraphCEff = -1.0;
    chart.ReadEnvelopeValues();
    EXPECT_EQ(chart.m_dGraphCEff, -1.0);
    chart.m_strSYFF = g_pMethodCU;
    chart.ReadEnvelopeValues();
    EXPECT_EQ(chart.m_dGraphCEff, 25.0);
    EXPECT_EQ(chart.m_dGraphPhiEff, 0.0);
}
