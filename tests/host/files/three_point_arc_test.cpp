#include "host/files/three_point_arc.h"

#include <gtest/gtest.h>

#include <numbers>

TEST(ArcThrough, RunsFromTheFirstPointOverTheSecondToTheThird) {
    const auto quarter =
        ArcThrough({6, 2, 3}, {1 + 5 * std::sqrt(0.5), 2 + 5 * std::sqrt(0.5), 3}, {1, 7, 3});
    ASSERT_TRUE(quarter);
    EXPECT_NEAR(quarter->m_ptCenter.distanceTo({1, 2, 3}), 0.0, 1e-12);
    EXPECT_NEAR(quarter->m_dRadius, 5.0, 1e-12);
    EXPECT_NEAR(quarter->m_dSweep, std::numbers::pi / 2, 1e-12);
    EXPECT_NEAR(CArcFrame(*quarter).At(quarter->m_dSweep).distanceTo({1, 7, 3}), 0.0, 1e-12);
    const auto rest = ArcThrough({6, 2, 3}, {-4, 2, 3}, {1, 7, 3}); // the other way round
    ASSERT_TRUE(rest);
    EXPECT_NEAR(rest->m_dSweep, std::numbers::pi * 1.5, 1e-12);
}

TEST(ArcThrough, GivesNothingForPointsInALine) {
    EXPECT_FALSE(ArcThrough({0, 0, 0}, {1, 1, 0}, {2, 2, 0}));
    EXPECT_FALSE(ArcThrough({0, 0, 0}, {0, 0, 0}, {2, 2, 0}));
    EXPECT_FALSE(ArcThrough({0, 0, 0}, {1e300, 0, 0}, {0, 1e300, 0}));
}
