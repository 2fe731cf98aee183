#include "host/datamanager/window/axis_ticks.h"

#include <QtCore/QStringList>
#include <gtest/gtest.h>

#include <string>

namespace {

/// The labels joined by blanks.
std::string Labels(double dLowest, double dHighest, int nSteps) {
    const CAxisTicks ticks = RoundTicks(dLowest, dHighest, nSteps);
    QStringList arLabels;
    for (int i = 0; i < ticks.m_nCount; ++i)
        arLabels.append(ticks.Label(i));
    return arLabels.join(u' ').toStdString();
}

} // namespace

TEST(RoundTicks, StandAtOneTwoOrFiveTimesAPowerOfTen) {
    EXPECT_EQ(Labels(0.0, 100.0, 5), "0 20 40 60 80 100");
    EXPECT_EQ(Labels(0.0, 463.9, 5), "0 100 200 300 400 500");
    EXPECT_EQ(Labels(0.0, 12.0, 8), "0 2 4 6 8 10 12");
    EXPECT_EQ(Labels(0.0, 17.0, 4), "0 5 10 15 20");
    EXPECT_EQ(Labels(0.0, 2500000.0, 3), "0 1000000 2000000 3000000");
}

TEST(RoundTicks, EncloseNegativeValues) {
    EXPECT_EQ(Labels(-35.0, 80.0, 3), "-50 0 50 100");
    EXPECT_EQ(Labels(-7.0, 0.0, 4), "-8 -6 -4 -2 0");
}

TEST(RoundTicks, LabelFractionsWithTheDecimalsOfTheirStep) {
    EXPECT_EQ(Labels(0.0, 0.3, 3), "0.0 0.1 0.2 0.3");
    EXPECT_EQ(Labels(0.0, 0.012, 3), "0.000 0.005 0.010 0.015");
}

TEST(RoundTicks, GiveARangeWithoutExtentOne) {
    EXPECT_EQ(Labels(0.0, 0.0, 5), "0.0 0.2 0.4 0.6 0.8 1.0");
}

TEST(RoundTicks, EncloseTheRangeWithAboutAsManyStepsAsAsked) {
    for (double dHighest = 1e-6; dHighest < 1e9; dHighest *= 1.37)
        for (int nSteps = 2; nSteps <= 10; ++nSteps) {
            const CAxisTicks ticks = RoundTicks(0.0, dHighest, nSteps);
            EXPECT_EQ(ticks.m_dFirst, 0.0);
            EXPECT_GE(ticks.Last(), dHighest * (1.0 - 1e-8));
            EXPECT_LT(ticks.Last() - ticks.m_dStep, dHighest * (1.0 + 1e-8));
            EXPECT_LE(ticks.m_nCount - 1, nSteps) << dHighest;
        }
}
