#include "platform/acad/bulge_arc.h"

#include <gtest/gtest.h>

#include <limits>
#include <numbers>

using std::numbers::pi;

TEST(ArcOfBulge, OfOneIsAHalfCircleToTheRight) {
    const auto arc = ArcOfBulge({0, 0}, {4, 0}, 1.0);
    ASSERT_TRUE(arc);
    EXPECT_NEAR(arc->m_ptCenter.distanceTo({2, 0}), 0.0, 1e-12);
    EXPECT_NEAR(arc->m_dRadius, 2.0, 1e-12);
    EXPECT_NEAR(arc->m_dStart, pi, 1e-12);
    EXPECT_NEAR(arc->m_dSweep, pi, 1e-12);
}

TEST(ArcOfBulge, HasItsAngleAsFourTimesTheArcTangent) {
    const double bulge = std::tan(pi / 8); // a quarter circle
    const auto left = ArcOfBulge({1, 0}, {0, 1}, bulge);
    ASSERT_TRUE(left);
    EXPECT_NEAR(left->m_ptCenter.distanceTo({0, 0}), 0.0, 1e-12);
    EXPECT_NEAR(left->m_dRadius, 1.0, 1e-12);
    EXPECT_NEAR(left->m_dSweep, pi / 2, 1e-12);
    const auto right = ArcOfBulge({1, 0}, {0, 1}, -bulge);
    ASSERT_TRUE(right);
    EXPECT_NEAR(right->m_ptCenter.distanceTo({1, 1}), 0.0, 1e-12);
    EXPECT_NEAR(right->m_dSweep, -pi / 2, 1e-12);
}

TEST(ArcOfBulge, IsNoneForStraightDegenerateOrEndlessSegments) {
    const double inf = std::numeric_limits<double>::infinity();
    EXPECT_FALSE(ArcOfBulge({0, 0}, {4, 0}, 0.0));
    EXPECT_FALSE(ArcOfBulge({1, 1}, {1, 1}, 1.0));
    EXPECT_FALSE(ArcOfBulge({0, 0}, {4, 0}, inf));
    EXPECT_FALSE(ArcOfBulge({0, 0}, {4, 0}, std::numeric_limits<double>::quiet_NaN()));
    EXPECT_FALSE(ArcOfBulge({0, 0}, {inf, 0}, 1.0));
    EXPECT_FALSE(ArcOfBulge({0, 0}, {4, 0}, 1e-320));
}

TEST(BulgeArc, RunsFromVertexToVertexThroughItsMiddle) {
    const auto arc = ArcOfBulge({0, 0}, {4, 0}, 1.0);
    ASSERT_TRUE(arc);
    EXPECT_NEAR(arc->At(0.0).distanceTo({0, 0}), 0.0, 1e-12);
    EXPECT_NEAR(arc->At(0.5).distanceTo({2, -2}), 0.0, 1e-12);
    EXPECT_NEAR(arc->At(1.0).distanceTo({4, 0}), 0.0, 1e-12);
    EXPECT_NEAR(arc->At(0.5, 0.5).distanceTo({2, -2.5}), 0.0, 1e-12);
    EXPECT_NEAR(arc->At(0.5, -0.5).distanceTo({2, -1.5}), 0.0, 1e-12);
}

TEST(PlaceInSweep, CountsInTheSweepsOwnDirection) {
    EXPECT_NEAR(PlaceInSweep(pi / 2, 0.0, pi).value(), 0.5, 1e-12);
    EXPECT_NEAR(PlaceInSweep(-3 * pi / 2, 0.0, pi).value(), 0.5, 1e-12);
    EXPECT_NEAR(PlaceInSweep(pi / 2, pi, -pi).value(), 0.5, 1e-12);
    EXPECT_FALSE(PlaceInSweep(-pi / 2, 0.0, pi));
    EXPECT_FALSE(PlaceInSweep(pi / 2, 0.0, -pi));
    EXPECT_FALSE(PlaceInSweep(std::numeric_limits<double>::quiet_NaN(), 0.0, pi));
    EXPECT_EQ(PlaceInSweep(1.0, 1.0, 0.0).value(), 0.0);
}
