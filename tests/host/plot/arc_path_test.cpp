#include "host/plot/arc_path.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

void ExpectNear(const QPointF& a, const QPointF& b, double dTolerance = 1e-12) {
    EXPECT_NEAR(a.x(), b.x(), dTolerance);
    EXPECT_NEAR(a.y(), b.y(), dTolerance);
}

} // namespace

TEST(ArcOfBulge, OfOneIsTheHalfCircleOverTheChord) {
    const auto arc = ArcOfBulge({0.0, 0.0}, {4.0, 0.0}, 1.0);
    ASSERT_TRUE(arc);
    EXPECT_DOUBLE_EQ(arc->m_dRadius, 2.0);
    EXPECT_DOUBLE_EQ(arc->m_dSweep, std::numbers::pi);
    ExpectNear(arc->At(0.0), {0.0, 0.0});
    ExpectNear(arc->At(arc->m_dSweep / 2.0), {2.0, -2.0}); // counter-clockwise: below a chord to the right
    ExpectNear(arc->At(arc->m_dSweep), {4.0, 0.0});
}

TEST(ArcOfBulge, TurnsTheOtherWayForANegativeOne) {
    const auto arc = ArcOfBulge({0.0, 0.0}, {4.0, 0.0}, std::tan(-std::numbers::pi / 8.0)); // a quarter turn
    ASSERT_TRUE(arc);
    EXPECT_NEAR(arc->m_dRadius, 2.0 * std::numbers::sqrt2, 1e-12);
    ExpectNear(arc->At(arc->m_dSweep / 2.0), {2.0, 2.0 * std::numbers::sqrt2 - 2.0});
    ExpectNear(arc->At(arc->m_dSweep), {4.0, 0.0});
}

TEST(ArcOfBulge, IsNoneForAStraightPieceAndForNoPiece) {
    EXPECT_FALSE(ArcOfBulge({0.0, 0.0}, {4.0, 0.0}, 0.0));
    EXPECT_FALSE(ArcOfBulge({0.0, 0.0}, {4.0, 0.0}, 1e-12));
    EXPECT_FALSE(ArcOfBulge({1.0, 1.0}, {1.0, 1.0}, 1.0));
}

TEST(AppendArc, StaysOnTheCircle) {
    const CPlaneArc arc{{10.0, 20.0}, {1.0, 0.0}, {0.0, 1.0}, 40.0, 5.0};
    QPainterPath path(arc.At(0.0));
    AppendArc(path, arc);
    ExpectNear(path.currentPosition(), arc.At(5.0), 1e-9);
    for (int i = 0; i <= 100; ++i) {
        const QPointF radius = path.pointAtPercent(i / 100.0) - arc.m_center;
        EXPECT_NEAR(std::hypot(radius.x(), radius.y()), 40.0, 40.0 * 3e-4);
    }
}

TEST(AppendArc, DrawsAnArcThatStandsAskewAsAnEllipse) {
    const CPlaneArc arc{{0.0, 0.0}, {1.0, 0.0}, {0.0, 0.5}, 10.0, 2.0 * std::numbers::pi};
    QPainterPath path(arc.At(0.0));
    AppendArc(path, arc);
    EXPECT_NEAR(path.boundingRect().width(), 20.0, 0.01);
    EXPECT_NEAR(path.boundingRect().height(), 10.0, 0.01);
}
