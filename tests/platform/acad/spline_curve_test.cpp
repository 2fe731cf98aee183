#include "platform/acad/spline_curve.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

const double g_dNan = std::numeric_limits<double>::quiet_NaN();

double Bend(double p0, double p1, double p2) {
    return p0 - 2.0 * p1 + p2;
}

} // namespace

TEST(NaturalSpline, PassesThroughItsPoints) {
    const std::vector<AcGePoint3d> points = {{0, 0, 0}, {1, 3, 0}, {4, 2, 0}, {5, -1, 0}, {9, 0, 0}};
    const std::vector<CBezier> pieces = NaturalSpline(points);
    ASSERT_EQ(pieces.size(), 4u);
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        EXPECT_EQ(pieces[i].At(0.0).distanceTo({points[i].x, points[i].y}), 0.0);
        EXPECT_EQ(pieces[i].At(1.0).distanceTo({points[i + 1].x, points[i + 1].y}), 0.0);
    }
}

TEST(NaturalSpline, IsSmoothAtTheJointsAndStraightAtTheEnds) {
    const std::vector<AcGePoint3d> points = {{0, 0, 0}, {1, 3, 0}, {4, 2, 0}, {5, -1, 0}, {9, 0, 0}};
    const std::vector<CBezier> pieces = NaturalSpline(points);
    ASSERT_EQ(pieces.size(), 4u);
    for (std::size_t i = 1; i < pieces.size(); ++i) {
        const double h0 = points[i - 1].distanceTo(points[i]), h1 = points[i].distanceTo(points[i + 1]);
        const auto &p = pieces[i - 1].m_arPoints, &q = pieces[i].m_arPoints;
        EXPECT_NEAR((p[3].x - p[2].x) / h0, (q[1].x - q[0].x) / h1, 1e-13);
        EXPECT_NEAR((p[3].y - p[2].y) / h0, (q[1].y - q[0].y) / h1, 1e-13);
        EXPECT_NEAR(Bend(p[1].x, p[2].x, p[3].x) / (h0 * h0), Bend(q[0].x, q[1].x, q[2].x) / (h1 * h1),
                    1e-13);
        EXPECT_NEAR(Bend(p[1].y, p[2].y, p[3].y) / (h0 * h0), Bend(q[0].y, q[1].y, q[2].y) / (h1 * h1),
                    1e-13);
    }
    const auto &first = pieces.front().m_arPoints, &last = pieces.back().m_arPoints;
    EXPECT_NEAR(Bend(first[0].x, first[1].x, first[2].x), 0.0, 1e-13);
    EXPECT_NEAR(Bend(first[0].y, first[1].y, first[2].y), 0.0, 1e-13);
    EXPECT_NEAR(Bend(last[1].x, last[2].x, last[3].x), 0.0, 1e-13);
    EXPECT_NEAR(Bend(last[1].y, last[2].y, last[3].y), 0.0, 1e-13);
}

TEST(NaturalSpline, OfThreePointsHasTheHandComputedMiddleSlope) {
    // Both chords are 5 long; the second derivative of y at the middle is 3 * (-4 - 4) / (2 * 25) by hand.
    const std::vector<CBezier> pieces = NaturalSpline({{0, 0, 0}, {3, 4, 0}, {6, 0, 0}});
    ASSERT_EQ(pieces.size(), 2u);
    EXPECT_NEAR(pieces[0].m_arPoints[2].x, 2.0, 1e-14);
    EXPECT_NEAR(pieces[0].m_arPoints[2].y, 4.0, 1e-14); // level at the top
    EXPECT_NEAR(pieces[0].m_arPoints[1].y, 2.0, 1e-14); // slope at the start: 4 / 5 + 5 * 0.48 / 6 a unit
    EXPECT_NEAR(pieces[0].At(0.5).y, 2.75, 1e-14);
}

TEST(NaturalSpline, TakesEqualNeighboursOnce) {
    const std::vector<CBezier> plain = NaturalSpline({{0, 0, 0}, {1, 3, 0}, {4, 2, 0}});
    const std::vector<CBezier> doubled =
        NaturalSpline({{0, 0, 0}, {0, 0, 0}, {1, 3, 0}, {1, 3, 9}, {1, 3, 0}, {4, 2, 0}, {4, 2, 0}});
    ASSERT_EQ(plain.size(), 2u);
    ASSERT_EQ(doubled.size(), 2u);
    for (std::size_t i = 0; i < 2; ++i)
        for (std::size_t k = 0; k < 4; ++k)
            EXPECT_EQ(plain[i].m_arPoints[k].distanceTo(doubled[i].m_arPoints[k]), 0.0);
}

TEST(NaturalSpline, OfTwoPointsIsAStraightPieceAndOfFewerNothing) {
    const std::vector<CBezier> pieces = NaturalSpline({{1, 1, 0}, {4, 7, 0}});
    ASSERT_EQ(pieces.size(), 1u);
    EXPECT_NEAR(pieces[0].At(1.0 / 3.0).x, 2.0, 1e-14);
    EXPECT_NEAR(pieces[0].At(1.0 / 3.0).y, 3.0, 1e-14);
    EXPECT_TRUE(NaturalSpline({}).empty());
    EXPECT_TRUE(NaturalSpline({{1, 1, 0}}).empty());
    EXPECT_TRUE(NaturalSpline({{1, 1, 0}, {1, 1, 0}, {1, 1, 5}}).empty());
}

TEST(NaturalSpline, OfANumberThatIsNoneOrTooLargeIsNothing) {
    EXPECT_TRUE(NaturalSpline({{0, 0, 0}, {g_dNan, 1, 0}, {2, 2, 0}}).empty());
    EXPECT_TRUE(NaturalSpline({{0, 0, 0}, {1, 1, g_dNan}, {2, 2, 0}}).empty());
    EXPECT_TRUE(NaturalSpline({{0, 0, 0}, {1, std::numeric_limits<double>::infinity(), 0}}).empty());
    EXPECT_TRUE(NaturalSpline({{-1.7e308, 0, 0}, {1.7e308, 0, 0}, {0, 1.7e308, 0}}).empty());
}
