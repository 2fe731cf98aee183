#include "ui/chart_titles.h"

#include <gtest/gtest.h>

TEST(MatchBorehole, FindsTheBoreholeStraightBehindThePrefix) {
    EXPECT_EQ(MatchBorehole("K1", "BRK1-2~3"), 1);
    EXPECT_EQ(MatchBorehole("K1", "BRXK1-2"), 0);
    EXPECT_EQ(MatchBorehole("K1", "BRK1"), 0);
    EXPECT_EQ(MatchBorehole("k1", "BRK1-2"), 0);
    EXPECT_EQ(MatchBorehole("全部", "BR全部-全部试样"), 1);
}

TEST(MatchBorehole, TellsABoreholeFromALongerNumber) {
    EXPECT_EQ(MatchBorehole("ZK1", "BRZK10-1"), 0);
    EXPECT_EQ(MatchBorehole("1", "BR12-1"), 0);
}

TEST(MatchBorehole, GivesATitleToBothBoreholesThatAHyphenMakesOfIt) {
    EXPECT_EQ(MatchBorehole("A-1", "BRA-1-2"), 1);
    EXPECT_EQ(MatchBorehole("A", "BRA-1-2"), 1);
}

TEST(MatchBorehole, CountsTheFirstPlaceOnly) {
    EXPECT_EQ(MatchBorehole("R", "BR-R-1"), 0); // "R-" stands at place 1 already
    EXPECT_EQ(MatchBorehole("1", "BR1-1-1"), 1);
}

TEST(DisplayName, JoinsTheSamples) {
    EXPECT_STREQ(DisplayName("BRZK1-3~4"), "试样ZK1-3和4");
    EXPECT_STREQ(DisplayName("BRZK1-3~4~5"), "试样ZK1-3和4和5");
    EXPECT_STREQ(DisplayName("BRZK1-3"), "试样ZK1-3");
    EXPECT_STREQ(DisplayName("BR全部-全部试样"), "试样全部-全部试样");
}
