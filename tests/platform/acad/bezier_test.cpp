#include "platform/acad/bezier.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

const CBezier g_piece = {{AcGePoint2d(0, 0), AcGePoint2d(0, 3), AcGePoint2d(6, 3), AcGePoint2d(6, 0)}};

} // namespace

TEST(Bezier, RunsFromItsFirstPointToItsLast) {
    EXPECT_EQ(g_piece.At(0.0).distanceTo({0, 0}), 0.0);
    EXPECT_EQ(g_piece.At(1.0).distanceTo({6, 0}), 0.0);
    EXPECT_NEAR(g_piece.At(0.5).distanceTo({3, 2.25}), 0.0, 1e-14); // the mean with weights 1, 3, 3, 1
}

TEST(Bezier, LeavesItsEndsAlongItsInnerPoints) {
    EXPECT_EQ(g_piece.SlopeAt(0.0).x, 0.0);
    EXPECT_EQ(g_piece.SlopeAt(0.0).y, 9.0);
    EXPECT_EQ(g_piece.SlopeAt(1.0).y, -9.0);
    EXPECT_NEAR(g_piece.SlopeAt(0.5).x, 9.0, 1e-14);
    EXPECT_NEAR(g_piece.SlopeAt(0.5).y, 0.0, 1e-14);
}

TEST(Bezier, IsFiniteWhenAllItsNumbersAre) {
    EXPECT_TRUE(g_piece.IsFinite());
    CBezier broken = g_piece;
    broken.m_arPoints[2].y = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE(broken.IsFinite());
    broken.m_arPoints[2].y = std::numeric_limits<double>::infinity();
    EXPECT_FALSE(broken.IsFinite());
}
