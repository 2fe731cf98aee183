#include "platform/acad/spline_crossings.h"

#include "platform/acad/spline_curve.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <random>

namespace {

using CPoints = std::vector<AcGePoint3d>;

CPoints Sampled(const std::function<double(double)>& y, double from, double to, int count) {
    CPoints points;
    for (int i = 0; i < count; ++i) {
        const double x = from + (to - from) * i / (count - 1);
        points.emplace_back(x, y(x), 0.0);
    }
    return points;
}

std::vector<AcGePoint2d> CrossingsOf(const CPoints& a, const CPoints& b) {
    return Crossings(NaturalSpline(a), NaturalSpline(b));
}

/// Distance of a point from a curve: the least over dense samples, then halving about the best one.
double DistanceTo(const std::vector<CBezier>& curve, const AcGePoint2d& point) {
    double best = std::numeric_limits<double>::infinity();
    for (const CBezier& piece : curve) {
        constexpr int steps = 200;
        int nearest = 0;
        for (int i = 0; i <= steps; ++i)
            if (piece.At(1.0 * i / steps).distanceTo(point) <
                piece.At(1.0 * nearest / steps).distanceTo(point))
                nearest = i;
        double low = std::max(0.0, (nearest - 1.0) / steps), high = std::min(1.0, (nearest + 1.0) / steps);
        for (int round = 0; round < 200; ++round) {
            const double third = (high - low) / 3.0;
            if (piece.At(low + third).distanceTo(point) < piece.At(high - third).distanceTo(point)) {
                high -= third;
            } else {
                low += third;
            }
        }
        best = std::min(best, piece.At((low + high) / 2.0).distanceTo(point));
    }
    return best;
}

void ExpectOnBoth(const std::vector<AcGePoint2d>& found, const CPoints& a, const CPoints& b) {
    for (const AcGePoint2d& point : found) {
        EXPECT_LE(DistanceTo(NaturalSpline(a), point), 1e-9);
        EXPECT_LE(DistanceTo(NaturalSpline(b), point), 1e-9);
    }
}

CPoints Reversed(CPoints points) {
    std::reverse(points.begin(), points.end());
    return points;
}

CPoints Moved(CPoints points, double dx, double dy) {
    for (AcGePoint3d& point : points)
        point.set(point.x + dx, point.y + dy, point.z);
    return points;
}

/// Crossings of the chords of two curves, each piece cut into many: a plain search to compare with.
std::vector<AcGePoint2d> ChordCrossings(const std::vector<CBezier>& a, const std::vector<CBezier>& b) {
    constexpr int steps = 100;
    const auto chords = [](const std::vector<CBezier>& curve) {
        std::vector<AcGePoint2d> points{curve.front().At(0.0)};
        for (const CBezier& piece : curve)
            for (int i = 1; i <= steps; ++i)
                points.push_back(piece.At(1.0 * i / steps));
        return points;
    };
    const std::vector<AcGePoint2d> p = chords(a), q = chords(b);
    std::vector<AcGePoint2d> found;
    for (std::size_t i = 1; i < p.size(); ++i) {
        std::vector<std::pair<double, AcGePoint2d>> onChord;
        for (std::size_t j = 1; j < q.size(); ++j) {
            const double ax = p[i].x - p[i - 1].x, ay = p[i].y - p[i - 1].y;
            const double bx = q[j].x - q[j - 1].x, by = q[j].y - q[j - 1].y;
            const double cx = q[j - 1].x - p[i - 1].x, cy = q[j - 1].y - p[i - 1].y;
            const double det = ax * by - ay * bx;
            const double s = (cx * by - cy * bx) / det, t = (cx * ay - cy * ax) / det;
            if (s >= 0.0 && s < 1.0 && t >= 0.0 && t < 1.0)
                onChord.push_back({s, AcGePoint2d(p[i - 1].x + ax * s, p[i - 1].y + ay * s)});
        }
        std::sort(onChord.begin(), onChord.end(),
                  [](const auto& x, const auto& y) { return x.first < y.first; });
        for (const auto& [s, point] : onChord)
            found.push_back(point);
    }
    return found;
}

} // namespace

TEST(Crossings, OfStraightLinesIsTheirPoint) {
    const CPoints a = {{0, 0, 0}, {10, 10, 0}}, b = {{0, 8, 0}, {8, 0, 0}};
    const auto found = CrossingsOf(a, b);
    ASSERT_EQ(found.size(), 1u);
    EXPECT_NEAR(found[0].x, 4.0, 1e-12);
    EXPECT_NEAR(found[0].y, 4.0, 1e-12);
    EXPECT_TRUE(CrossingsOf(a, {{0, 1, 0}, {10, 11, 0}}).empty());
    EXPECT_TRUE(CrossingsOf(a, {{6, 5, 0}, {9, 0, 0}}).empty());
}

TEST(Crossings, OfAnArchWithALineComeInOrderAlongTheFirst) {
    // The natural spline through (0,0), (3,4), (6,0) is y = 6 t - 2 t^3, x = 3 t for t up to 1, then its
    // mirror image; it is at height 2.75 for t = 0.5.
    const CPoints arch = {{0, 0, 0}, {3, 4, 0}, {6, 0, 0}}, line = {{-1, 2.75, 0}, {7, 2.75, 0}};
    const auto found = CrossingsOf(arch, line);
    ASSERT_EQ(found.size(), 2u);
    EXPECT_NEAR(found[0].x, 1.5, 1e-12);
    EXPECT_NEAR(found[1].x, 4.5, 1e-12);
    const auto backwards = CrossingsOf(Reversed(arch), line);
    ASSERT_EQ(backwards.size(), 2u);
    EXPECT_NEAR(backwards[0].x, 4.5, 1e-12);
    const auto swapped = CrossingsOf(line, arch);
    ASSERT_EQ(swapped.size(), 2u);
    EXPECT_NEAR(swapped[0].x, 1.5, 1e-12);
}

TEST(Crossings, OfParabolasThroughManyPointsLieWhereTheParabolasCross) {
    const CPoints a = Sampled([](double x) { return x * x; }, -2.0, 2.0, 401);
    const CPoints b = Sampled([](double x) { return 2.0 - x * x; }, -2.0, 2.0, 401);
    const auto found = CrossingsOf(a, b);
    ASSERT_EQ(found.size(), 2u);
    EXPECT_NEAR(found[0].x, -1.0, 1e-9); // a common fit point
    EXPECT_NEAR(found[0].y, 1.0, 1e-9);
    EXPECT_NEAR(found[1].x, 1.0, 1e-9);
    ExpectOnBoth(found, a, b);
}

TEST(Crossings, OfWavesAreAllFoundInOrder) {
    const CPoints a = Sampled([](double x) { return std::sin(x); }, 0.1, 30.0, 300);
    const CPoints b = Sampled([](double x) { return 0.3 * std::cos(x); }, 0.1, 30.0, 211);
    const auto found = CrossingsOf(a, b);
    ASSERT_EQ(found.size(), 10u); // tan x = 0.3, once in each half period
    for (std::size_t i = 0; i < found.size(); ++i)
        EXPECT_NEAR(found[i].x, std::atan(0.3) + 3.14159265358979 * static_cast<double>(i), 1e-3);
    ExpectOnBoth(found, a, b);
}

TEST(Crossings, AtACommonFitPointOfBothCountOnce) {
    const CPoints a = {{0, 0, 0}, {5, 5, 0}, {10, 0, 0}}, b = {{0, 10, 0}, {5, 5, 0}, {6, 0, 0}};
    const auto found = CrossingsOf(a, b);
    ASSERT_EQ(found.size(), 1u);
    EXPECT_NEAR(found[0].distanceTo({5, 5}), 0.0, 1e-9);
}

TEST(Crossings, LeaveOutAMereCommonEndPoint) {
    const CPoints a = {{0, 0, 0}, {1, 3, 0}, {4, 5, 0}};
    EXPECT_TRUE(CrossingsOf(a, {{0, 0, 0}, {2, 1, 0}, {5, 2, 0}}).empty());
    EXPECT_TRUE(CrossingsOf(a, {{5, 2, 0}, {2, 1, 0}, {0, 0, 0}}).empty());
    EXPECT_TRUE(CrossingsOf(a, {{4, 5, 0}, {6, 4, 0}, {8, 7, 0}}).empty());
    // A real crossing besides stays.
    const auto found = CrossingsOf({{0, 0, 0}, {4, 4, 0}, {8, 4, 0}}, {{0, 0, 0}, {4, 1, 0}, {8, 8, 0}});
    ASSERT_EQ(found.size(), 1u);
    EXPECT_GT(found[0].x, 4.0);
}

TEST(Crossings, LeaveOutACommonEndWhereTheCurvesStartAlongEachOther) {
    const std::vector<CBezier> cubic = {{{AcGePoint2d(0, 0), {1, 0}, {2, 0}, {3, 1}}}}; // y = (x / 3)^3
    const std::vector<CBezier> line = NaturalSpline({{0, 0, 0}, {1, 0, 0}, {3, 0, 0}});
    EXPECT_TRUE(Crossings(cubic, line).empty());
    EXPECT_TRUE(Crossings(line, cubic).empty());
}

TEST(Crossings, OfNearlyEqualCurvesAreAtTheirCommonFitPoint) {
    const CPoints a = {{0, 0, 0}, {1, 3, 0}, {4, 5, 0}}, b = {{0, 0, 0}, {1, 3, 0}, {4, 5.0001, 0}};
    const auto found = CrossingsOf(a, b); // one is above before it, the other one after it
    ASSERT_EQ(found.size(), 1u);
    EXPECT_LE(found[0].distanceTo({1, 3}), 1e-9);
}

TEST(Crossings, CountAnEndOfOneOnTheInsideOfTheOther) {
    const CPoints line = {{0, 0, 0}, {10, 0, 0}}, post = {{4, 0, 0}, {4, 7, 0}};
    for (const auto& [a, b] :
         {std::pair(line, post), std::pair(post, line), std::pair(line, Reversed(post))}) {
        const auto found = CrossingsOf(a, b);
        ASSERT_EQ(found.size(), 1u);
        EXPECT_NEAR(found[0].distanceTo({4, 0}), 0.0, 1e-9);
    }
    const CPoints arch = {{0, 0, 0}, {3, 4, 0}, {6, 0, 0}};
    const CPoints onIt = {{3, 4, 0}, {3, 9, 0}}; // upon a fit point, at a right angle
    EXPECT_EQ(CrossingsOf(arch, onIt).size(), 1u);
    EXPECT_TRUE(CrossingsOf(line, {{4, 1e-6, 0}, {4, 7, 0}}).empty());
}

TEST(Crossings, CountAContactAlongATangentOnlyWhereTheSidesChange) {
    const CPoints level = {{-3, 0, 0}, {3, 0, 0}};
    const CPoints bowl = {{-3, 9, 0}, {0, 0, 0}, {3, 9, 0}}; // touches from above
    EXPECT_TRUE(CrossingsOf(bowl, level).empty());
    EXPECT_TRUE(CrossingsOf(level, bowl).empty());
    const std::vector<CBezier> snake = {
        {{AcGePoint2d(-1, -1), {-1.0 / 3, 1}, {1.0 / 3, -1}, {1, 1}}}}; // y = x^3
    for (const CPoints& axis : {CPoints{{-2, 0, 0}, {2, 0, 0}}, CPoints{{-2, 0, 0}, {0, 0, 0}, {2, 0, 0}}}) {
        const auto found = Crossings(snake, NaturalSpline(axis));
        ASSERT_EQ(found.size(), 1u);
        EXPECT_NEAR(found[0].y, 0.0, 1e-9);
        EXPECT_LE(DistanceTo(snake, found[0]), 1e-9);
        EXPECT_EQ(Crossings(NaturalSpline(axis), snake).size(), 1u);
    }
}

TEST(Crossings, OfTwoNearlyTouchingCurvesAreBothFound) {
    const CPoints bowl = {{-3, 9, 0}, {0, 0, 0}, {3, 9, 0}};
    const CPoints level = {{-3, 1e-6, 0}, {3, 1e-6, 0}};
    const auto found = CrossingsOf(bowl, level);
    ASSERT_EQ(found.size(), 2u);
    EXPECT_LT(found[0].x, 0.0);
    EXPECT_NEAR(found[0].x, -found[1].x, 1e-9);
    ExpectOnBoth(found, bowl, level);
}

TEST(Crossings, AreNoneWhereCurvesRunAlongEachOther) {
    CPoints wave = Sampled([](double x) { return std::sin(x); }, 0.0, 12.0, 80);
    EXPECT_TRUE(CrossingsOf(wave, wave).empty());
    EXPECT_TRUE(CrossingsOf(wave, Reversed(wave)).empty());
    EXPECT_TRUE(CrossingsOf({{0, 0, 0}, {10, 0, 0}}, {{4, 0, 0}, {20, 0, 0}}).empty());
    EXPECT_TRUE(CrossingsOf({{0, 0, 0}, {10, 5, 0}}, {{12, 6, 0}, {-2, -1, 0}}).empty());
    EXPECT_TRUE(CrossingsOf({{0, 0, 0}, {3, 1, 0}, {9, 3, 0}}, {{3, 1, 0}, {6, 2, 0}}).empty());
    // Beside the stretch a real crossing stays: two straight pieces, then one that comes back across.
    const std::vector<CBezier> line = NaturalSpline({{0, 0, 0}, {10, 0, 0}});
    std::vector<CBezier> bent = NaturalSpline({{1, 0, 0}, {4, 0, 0}});
    bent.push_back({{AcGePoint2d(4, 0), {5, 0}, {5, 2}, {6, 2}}});
    bent.push_back({{AcGePoint2d(6, 2), {7, 2}, {7, -2}, {8, -2}}});
    const auto found = Crossings(line, bent);
    ASSERT_EQ(found.size(), 1u);
    EXPECT_NEAR(found[0].x, 7.0, 1e-9);
}

TEST(Crossings, FarFromTheOriginAreAsNear) {
    const CPoints a =
        Moved(Sampled([](double x) { return std::sin(x); }, 0.1, 12.0, 40), 500000.0, 3000000.0);
    const CPoints b =
        Moved(Sampled([](double x) { return std::cos(x); }, 0.1, 12.0, 33), 500000.0, 3000000.0);
    const auto found = CrossingsOf(a, b);
    EXPECT_EQ(found.size(), 4u);
    const auto near = CrossingsOf(Moved(a, -500000.0, -3000000.0), Moved(b, -500000.0, -3000000.0));
    ASSERT_EQ(near.size(), found.size());
    for (std::size_t i = 0; i < near.size(); ++i)
        EXPECT_LE(found[i].distanceTo({near[i].x + 500000.0, near[i].y + 3000000.0}), 2e-9);
}

TEST(Crossings, OfRandomCurvesAreThoseOfADenseSearch) {
    std::mt19937 random(20240309);
    std::uniform_real_distribution<double> coordinate(0.0, 100.0);
    std::size_t total = 0;
    for (int round = 0; round < 50; ++round) {
        CPoints a, b;
        for (int i = 0; i < 8; ++i) {
            a.emplace_back(coordinate(random), coordinate(random), 0.0);
            b.emplace_back(coordinate(random), coordinate(random), 0.0);
        }
        const auto found = CrossingsOf(a, b);
        const auto expected = ChordCrossings(NaturalSpline(a), NaturalSpline(b));
        ASSERT_EQ(found.size(), expected.size()) << "round " << round;
        for (std::size_t i = 0; i < found.size(); ++i)
            EXPECT_LT(found[i].distanceTo(expected[i]), 0.5) << "round " << round;
        ExpectOnBoth(found, a, b);
        total += found.size();
    }
    EXPECT_GT(total, 200u);
}

TEST(Crossings, EndSoonForHugeAndDegenerateInput) {
    CPoints zigzag, across;
    for (int i = 0; i < 3000; ++i) {
        zigzag.emplace_back(i, i % 2 ? 1000.0 : -1000.0, 0.0);
        across.emplace_back(i % 2 ? 3000.0 : 0.0, i * 0.3 - 500.0, 0.0);
    }
    const auto many = CrossingsOf(zigzag, across);
    EXPECT_GT(many.size(), 1000u);
    CPoints thin;
    for (int i = 0; i < 20000; ++i)
        thin.emplace_back(i * 1e-9, (i % 3) * 1e-9, 0.0);
    EXPECT_NO_FATAL_FAILURE(CrossingsOf(thin, Reversed(thin)));
    const CPoints dense = Sampled([](double x) { return std::sin(x); }, 0.0, 200.0, 20000);
    EXPECT_TRUE(CrossingsOf(dense, dense).empty());
    EXPECT_TRUE(CrossingsOf(dense, Reversed(dense)).empty());
    const CPoints huge = {{-1e150, 0, 0}, {1e150, 1e150, 0}, {0, -1e150, 0}};
    EXPECT_NO_FATAL_FAILURE(CrossingsOf(huge, {{-1e150, 1e149, 0}, {1e150, 1e149, 0}}));
    EXPECT_TRUE(Crossings({}, NaturalSpline(zigzag)).empty());
    std::vector<CBezier> broken = NaturalSpline(across);
    broken[7].m_arPoints[1].x = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(Crossings(broken, NaturalSpline(zigzag)).empty());
}
