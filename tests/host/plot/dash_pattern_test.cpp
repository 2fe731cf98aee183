#include "host/plot/dash_pattern.h"

#include <gtest/gtest.h>

#include <limits>

using Lengths = std::vector<double>;

TEST(MakeDashes, ScalesStrokesAndGaps) {
    const CDashes dashes = MakeDashes({0.25, -0.125}, 10.0);
    EXPECT_EQ(dashes.m_arLengths, (Lengths{2.5, 1.25}));
    EXPECT_EQ(dashes.m_dPhase, 0.0);
}

TEST(MakeDashes, GivesADotTheLengthOfALinesWidthWhateverTheScale) {
    EXPECT_EQ(MakeDashes({1.0, -0.5, 0.0, -0.5}, 4.0).m_arLengths, (Lengths{4.0, 2.0, THIN_LINE, 2.0}));
}

TEST(MakeDashes, BeginsInTheGapWhereTheTypeBeginsWithOne) {
    const CDashes dashes = MakeDashes({-1.0, 3.0}, 1.0);
    EXPECT_EQ(dashes.m_arLengths, (Lengths{3.0, 1.0}));
    EXPECT_EQ(dashes.m_dPhase, 3.0);
}

TEST(MakeDashes, JoinsStrokesThatMeetAcrossTheRowsEnd) {
    const CDashes dashes = MakeDashes({2.0, -1.0, 3.0}, 1.0);
    EXPECT_EQ(dashes.m_arLengths, (Lengths{5.0, 1.0}));
    EXPECT_EQ(dashes.m_dPhase, 3.0);
}

TEST(MakeDashes, JoinsGapsThatMeetAcrossTheRowsEnd) {
    const CDashes dashes = MakeDashes({-1.0, 4.0, -2.0}, 1.0);
    EXPECT_EQ(dashes.m_arLengths, (Lengths{4.0, 3.0}));
    EXPECT_EQ(dashes.m_dPhase, 6.0); // one unit of gap is left
}

TEST(MakeDashes, IsContinuousWithoutAGapOrAStroke) {
    EXPECT_TRUE(MakeDashes({}, 1.0).m_arLengths.empty());
    EXPECT_TRUE(MakeDashes({1.0, 2.0}, 1.0).m_arLengths.empty());
    EXPECT_TRUE(MakeDashes({-1.0}, 1.0).m_arLengths.empty());
}

TEST(MakeDashes, IsContinuousWhenTooFineOrScaledByNothing) {
    const double dInf = std::numeric_limits<double>::infinity();
    for (const double dScale : {1e-6, 0.0, -1.0, dInf, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_TRUE(MakeDashes({0.25, -0.125}, dScale).m_arLengths.empty()) << dScale;
    EXPECT_TRUE(MakeDashes({dInf, -1.0}, 1.0).m_arLengths.empty());
}
