#include "analysis/reading.h"

#include "analysis/numbers.h"
#include "tests/analysis/sound_reading.h"

#include <cmath>
#include <gtest/gtest.h>

TEST(ReduceReading, GivesTheWorkedFigures) {
    const CReducedReading reduced = ReduceReading(Reading(), CTestMethod::UU);
    EXPECT_EQ(reduced.m_dStrain, 800.0 / (100.0 * 80.0));
    EXPECT_EQ(reduced.m_dDeviator, 149.91);
    const double dArea0 = 3.1415926 * 39.1 * 39.1 / 400.0;
    EXPECT_NEAR(dArea0, 12.0072, 0.00005);
    EXPECT_NEAR(dArea0 / (1.0 - reduced.m_dStrain), 13.3414, 0.0001);
}

TEST(ReduceReading, CorrectsAConsolidatedSpecimenForItsDrainedWater) {
    CTestReading r = Reading();
    r.m_dGJPS = 5.0;
    const double dArea0 = 3.1415926 * r.m_dSYZJ * r.m_dSYZJ / 400.0;
    const double k = 1.0 - 10.0 * 5.0 / (dArea0 * 80.0);
    const double dHeight = 80.0 * std::pow(k, 0.3333333333333333);
    const CReducedReading reduced = ReduceReading(r, CTestMethod::CU);
    EXPECT_EQ(reduced.m_dStrain, 800.0 / (100.0 * dHeight));
    const double dArea = dArea0 * std::pow(k, 0.6666666666666666) / (1.0 - reduced.m_dStrain);
    EXPECT_EQ(reduced.m_dDeviator, RoundToTwoDecimals(10.0 * 200.0 / dArea));
}

TEST(ReduceReading, TakesTheDrainedVolumeOffADrainedSpecimen) {
    CTestReading r = Reading();
    r.m_dGJPS = 5.0;
    r.m_dJQPS = 2.0;
    const double dArea0 = 3.1415926 * r.m_dSYZJ * r.m_dSYZJ / 400.0;
    const double dHeight = 80.0 * std::pow(1.0 - 10.0 * 5.0 / (dArea0 * 80.0), 0.3333333333333333);
    const double dArea = (dArea0 * 80.0 - 10.0 * 5.0 - 10.0 * 2.0) / (dHeight - 800.0 / 100.0);
    EXPECT_EQ(ReduceReading(r, CTestMethod::CD).m_dDeviator, RoundToTwoDecimals(10.0 * 200.0 / dArea));
}

TEST(ReduceReading, LetsANegativeConsolidationVolumeRaiseTheSpecimen) {
    CTestReading r = Reading();
    r.m_dGJPS = -40.0;
    EXPECT_FALSE(r.HasNegativeFault());
    EXPECT_LT(ReduceReading(r, CTestMethod::CU).m_dStrain, 0.1);
}

TEST(ReduceReading, GivesNoNumberWhenMoreWaterDrainedThanTheSpecimenHeld) {
    CTestReading r = Reading();
    r.m_dGJPS = 200.0;
    EXPECT_TRUE(std::isnan(ReduceReading(r, CTestMethod::CU).m_dStrain));
}

TEST(ReduceReading, DividesByAVanishedHeightAsArithmeticDoes) {
    CTestReading r = Reading();
    r.m_dZXBX = 8000.0;
    const CReducedReading reduced = ReduceReading(r, CTestMethod::UU);
    EXPECT_EQ(reduced.m_dStrain, 1.0);
    EXPECT_EQ(reduced.m_dDeviator, 0.0); // an endless area
}

TEST(NegativeCheck, PassesExactlyMinusOneHundredth) {
    double CTestReading::*const checked[] = {
        &CTestReading::m_dSYGD, &CTestReading::m_dSYZJ,  &CTestReading::m_dCLHXS,
        &CTestReading::m_dWY,   &CTestReading::m_dCLHDS, &CTestReading::m_dZXBX,
        &CTestReading::m_dJQPS, &CTestReading::m_dKXYL,  &CTestReading::m_dGJKXYL};
    for (double CTestReading::*pMember : checked) {
        CTestReading r = Reading();
        r.*pMember = -0.01;
        EXPECT_FALSE(r.HasNegativeFault());
        r.*pMember = -0.0100001;
        EXPECT_TRUE(r.HasNegativeFault());
    }
}
