#include "host/datamanager/window/sample_curves.h"

#include <gtest/gtest.h>

namespace {

/// 39.1 mm by 80 mm, 100 divisions of 2 N, 8 mm of deformation: 149.91 kPa at 10 % by hand.
CTestReading Reading(double dWY, Adesk::Int8 nJLLX = 0) {
    CTestReading reading;
    reading.m_dWY = dWY;
    reading.m_dSYGD = 80.0;
    reading.m_dSYZJ = 39.1;
    reading.m_dCLHXS = 2.0;
    reading.m_dCLHDS = 100.0;
    reading.m_dZXBX = 800.0;
    reading.m_nJLLX = nJLLX;
    return reading;
}

} // namespace

TEST(SampleCurves, ReduceReadingsAsASheetDoes) {
    const CTestReading reading = Reading(50.0);
    const auto arCurves = SampleCurves({&reading, 1}, CTestMethod::UU);
    ASSERT_EQ(arCurves.size(), 1U);
    EXPECT_EQ(arCurves[0].m_dCellPressure, 50.0);
    ASSERT_EQ(arCurves[0].m_arPoints.size(), 1U);
    EXPECT_DOUBLE_EQ(arCurves[0].m_arPoints[0].m_dStrain, 10.0);
    EXPECT_EQ(arCurves[0].m_arPoints[0].m_dDeviator, 149.91);
}

TEST(SampleCurves, BeginAnewWhereTheCellPressureChanges) {
    const std::vector<CTestReading> arReadings = {Reading(50.0), Reading(50.0), Reading(100.0),
                                                  Reading(50.0)};
    const auto arCurves = SampleCurves(arReadings, CTestMethod::UU);
    ASSERT_EQ(arCurves.size(), 3U);
    EXPECT_EQ(arCurves[0].m_arPoints.size(), 2U);
    EXPECT_EQ(arCurves[1].m_dCellPressure, 100.0);
    EXPECT_EQ(arCurves[2].m_dCellPressure, 50.0);
}

TEST(SampleCurves, TellPointsOfTheCurveFromFailureStates) {
    const std::vector<CTestReading> arReadings = {Reading(50.0, 0), Reading(50.0, 1), Reading(50.0, 2)};
    const auto arPoints = SampleCurves(arReadings, CTestMethod::UU)[0].m_arPoints;
    EXPECT_TRUE(arPoints[0].m_bOnCurve && !arPoints[0].m_bFailure);
    EXPECT_TRUE(!arPoints[1].m_bOnCurve && arPoints[1].m_bFailure);
    EXPECT_TRUE(arPoints[2].m_bOnCurve && arPoints[2].m_bFailure);
}

TEST(SampleCurves, LeaveOutWhatReducesToNoFiniteNumber) {
    CTestReading without = Reading(50.0);
    without.m_dSYGD = 0.0;
    const std::vector<CTestReading> arReadings = {without, Reading(50.0)};
    const auto arCurves = SampleCurves(arReadings, CTestMethod::UU);
    ASSERT_EQ(arCurves.size(), 1U);
    EXPECT_EQ(arCurves[0].m_arPoints.size(), 1U);
    EXPECT_TRUE(SampleCurves({&without, 1}, CTestMethod::UU).empty());
}

TEST(SampleCurves, KnowWhetherPorePressureWasMeasured) {
    std::vector<CTestReading> arReadings = {Reading(50.0), Reading(100.0)};
    EXPECT_FALSE(HavePorePressure(SampleCurves(arReadings, CTestMethod::CU)));
    arReadings[1].m_dKXYL = 12.5;
    const auto arCurves = SampleCurves(arReadings, CTestMethod::CU);
    EXPECT_TRUE(HavePorePressure(arCurves));
    EXPECT_EQ(arCurves[1].m_arPoints[0].m_dPore, 12.5);
}

TEST(SampleCurves, KnowWhetherAnyReadingFeedsACircle) {
    std::vector<CTestReading> arReadings = {Reading(50.0, 0), Reading(100.0, 0)};
    EXPECT_FALSE(HaveFailureState(SampleCurves(arReadings, CTestMethod::UU)));
    arReadings[1].m_nJLLX = 1;
    EXPECT_TRUE(HaveFailureState(SampleCurves(arReadings, CTestMethod::UU)));
}
