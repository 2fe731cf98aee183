#include "analysis/scales.h"

#include <cmath>
#include <gtest/gtest.h>

TEST(ChooseScales, TakesTheFirstStepThatHoldsTheGreatestValueStrictly) {
    EXPECT_EQ(ChooseScales(7.99, 79.99, 96.99, 1).m_dStrainStep, 1.0);
    EXPECT_EQ(ChooseScales(8.0, 79.99, 96.99, 1).m_dStrainStep, 2.0); // exactly 8 percent is past the grid
    EXPECT_EQ(ChooseScales(1, 79.99, 96.99, 1).m_dDeviatorStep, 10.0);
    EXPECT_EQ(ChooseScales(1, 80.0, 96.99, 1).m_dDeviatorStep, 20.0);
    EXPECT_EQ(ChooseScales(1, 1, 96.99, 1).m_dSigmaStep, 10.0);
    EXPECT_EQ(ChooseScales(1, 1, 97.0, 1).m_dSigmaStep, 20.0);
    EXPECT_EQ(ChooseScales(0.79, 1, 1, 1).m_dStrainStep, 0.1);
    EXPECT_EQ(ChooseScales(0.8, 1, 1, 1).m_dStrainStep, 0.25);
}

TEST(ChooseScales, StaysAtTheLastStepWhenNoneHolds) {
    const CPanelScales scales = ChooseScales(500.0, 1e9, 1e9, 5e8);
    EXPECT_EQ(scales.m_dStrainStep, 15.0);
    EXPECT_EQ(scales.m_dDeviatorStep, 1e6);
    EXPECT_EQ(scales.m_dSigmaStep, 1e6);
    EXPECT_EQ(ChooseScales(HUGE_VAL, 1, 1, 1).m_dStrainStep, 15.0);
}

TEST(ChooseScales, LeavesOneRowOfAirAboveTheGreatestCircle) {
    // σ per cell is 100 with a greatest σ1 of 800.
    EXPECT_EQ(ChooseScales(1, 1, 800, 300).m_nMohrRows, 5);
    EXPECT_EQ(ChooseScales(1, 1, 800, 370).m_nMohrRows, 3 + (370.0 / 100.0 - 3 <= 0.7 ? 2 : 3));
    EXPECT_EQ(ChooseScales(1, 1, 800, 360).m_nMohrRows, 5);
    EXPECT_EQ(ChooseScales(1, 1, 800, 375).m_nMohrRows, 6);
    EXPECT_EQ(ChooseScales(1, 1, 800, 0).m_nMohrRows, 2);
}

TEST(ChooseScales, TakesTheHalfCellAsPartOfSevenTenths) {
    EXPECT_EQ(ChooseScales(1, 1, 90, 25.0).m_nMohrRows, 4); // 2.5 cells
    EXPECT_EQ(ChooseScales(1, 1, 90, 27.5).m_nMohrRows, 5); // 2.75 cells
}

TEST(ChooseScales, SurvivesStressesThatAreNoFiniteNumber) {
    EXPECT_LT(ChooseScales(1, HUGE_VAL, HUGE_VAL, HUGE_VAL).m_nMohrRows, 0);
}
