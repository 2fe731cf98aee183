#include "platform/acad/display_list.h"

#include "tests/platform/acad/sample_entity.h"

#include <gtest/gtest.h>

#include <limits>
#include <numbers>

namespace {

using std::numbers::pi;
const double g_dNan = std::numeric_limits<double>::quiet_NaN();
const double g_dInf = std::numeric_limits<double>::infinity();

template <class Shape>
CDisplayList One(Shape shape) {
    CDisplayList list(1);
    list[0].m_shape = std::move(shape);
    return list;
}

void ExpectBox(const CDisplayList& list, double minX, double minY, double maxX, double maxY) {
    const AcDbExtents box = ExtentsOf(list);
    ASSERT_FALSE(box.isEmpty());
    EXPECT_NEAR(box.minPoint().x, minX, 1e-12);
    EXPECT_NEAR(box.minPoint().y, minY, 1e-12);
    EXPECT_NEAR(box.maxPoint().x, maxX, 1e-12);
    EXPECT_NEAR(box.maxPoint().y, maxY, 1e-12);
}

CArcPrimitive Arc(double start, double sweep) {
    return {{10, 10, 0}, 2.0, AcGeVector3d::kZAxis, {std::cos(start), std::sin(start), 0}, sweep};
}

} // namespace

TEST(ExtentsOf, NothingIsEmpty) {
    EXPECT_TRUE(ExtentsOf({}).isEmpty());
    EXPECT_TRUE(ExtentsOf(One(CPolylinePrimitive{})).isEmpty());
    EXPECT_TRUE(ExtentsOf(One(CPlinePrimitive{})).isEmpty());
}

TEST(ExtentsOf, LeavesOutPointsThatAreNone) {
    ExpectBox(One(CPolylinePrimitive{{{1, 2, 0}, {g_dNan, 100, 0}, {g_dInf, 0, 0}, {3, 1, 0}}}), 1, 1, 3, 2);
    ExpectBox(One(CPlinePrimitive{{{{1, 2}, g_dNan, 1.0, g_dInf}, {{3, g_dNan}, 1.0}, {{3, 4}}}, true}), 1, 2,
              3, 4);
    EXPECT_TRUE(
        ExtentsOf(One(CArcPrimitive{{g_dNan, 0, 0}, 1, AcGeVector3d::kZAxis, {1, 0, 0}, 1})).isEmpty());
    EXPECT_TRUE(ExtentsOf(One(CSplinePrimitive{{{0, 0, 0}, {g_dInf, 1, 0}}, 4, 0.0})).isEmpty());
}

TEST(ExtentsOf, CountsWidthsAcrossTheLine) {
    ExpectBox(One(CPlinePrimitive{{{{0, 0}, 0.0, 2.0, 4.0}, {{10, 0}}}, false}), 0, -2, 10, 2);
    ExpectBox(One(CPlinePrimitive{{{{0, 0}, 0.0, -1.0, -1.0}, {{10, 0}}}, false}), 0, 0, 10, 0);
    // The closing segment counts when the polyline is closed.
    const std::vector<CPolylineVertex> corner = {{{0, 0}}, {{10, 0}}, {{10, 10}, 0.0, 2.0, 2.0}};
    ExpectBox(One(CPlinePrimitive{corner, false}), 0, 0, 10, 10);
    const double half = std::sqrt(0.5);
    ExpectBox(One(CPlinePrimitive{corner, true}), -half, -half, 10 + half, 10 + half);
}

TEST(ExtentsOf, OfADotOfTwoWideHalfCirclesIsItsWholeDisc) {
    // Radius 0.25 with a band 0.5 wide fills a disc 1.0 across.
    const std::vector<CPolylineVertex> dot = {
        {{5, 5.25}, 1.0, 0.5, 0.5}, {{5, 4.75}, 1.0, 0.5, 0.5}, {{5, 5.25}, 1.0, 0.5, 0.5}};
    ExpectBox(One(CPlinePrimitive{dot, false}), 4.5, 4.5, 5.5, 5.5);
}

TEST(ExtentsOf, FollowsBulgesOverTheirTop) {
    const double quarter = std::tan(pi / 8);
    ExpectBox(One(CPlinePrimitive{{{{1, 0}, quarter}, {{0, 1}}}, false}), 0, 0, 1, 1);
    ExpectBox(One(CPlinePrimitive{{{{0, 0}, 1.0}, {{4, 0}}}, false}), 0, -2, 4, 0);
    ExpectBox(One(CPlinePrimitive{{{{0, 0}, -1.0}, {{4, 0}}}, false}), 0, 0, 4, 2);
}

TEST(ExtentsOf, OfATaperingBandGoesBeyondItsMiddleLine) {
    const AcDbExtents box = ExtentsOf(One(CPlinePrimitive{{{{0, 0}, -1.0, 2.0, 0.0}, {{4, 0}}}, false}));
    EXPECT_NEAR(box.minPoint().x, -1.0, 1e-12); // half of 2 at the start
    EXPECT_GT(box.maxPoint().y, 2.5);           // half of 1 at the top, and a little beside it
    EXPECT_LT(box.maxPoint().y, 2.6);
    EXPECT_NEAR(box.maxPoint().x, 4.0253, 0.001); // 2 + (2 + q) cos(pi q) at its greatest
}

TEST(ExtentsOf, OfAnArcHasTheQuartersItSweepsOver) {
    ExpectBox(One(Arc(0.0, pi / 2)), 10, 10, 12, 12);
    ExpectBox(One(Arc(0.0, -pi / 2)), 10, 8, 12, 10);
    ExpectBox(One(Arc(pi / 4, pi / 2)), 10 - std::sqrt(2.0), 10 + std::sqrt(2.0), 10 + std::sqrt(2.0), 12);
    ExpectBox(One(Arc(1.0, 2 * pi)), 8, 8, 12, 12);
    CArcPrimitive seenFromBelow = Arc(0.0, pi / 2);
    seenFromBelow.m_vecNormal = -AcGeVector3d::kZAxis;
    ExpectBox(One(seenFromBelow), 10, 8, 12, 10);
    CArcPrimitive upright = Arc(0.0, pi);
    upright.m_vecNormal = {0, -1, 0};
    EXPECT_NEAR(ExtentsOf(One(upright)).maxPoint().z, 2.0, 1e-12);
}

TEST(ExtentsOf, OfASplineFollowsTheCurve) {
    // y = 6 t - 2 t^3 and x = 3 t up to t = 1, then mirrored: the top is the middle point.
    ExpectBox(One(CSplinePrimitive{{{0, 0, 0}, {3, 4, 0}, {6, 0, 0}}, 4, 0.0}), 0, 0, 6, 4);
    ExpectBox(One(CSplinePrimitive{{{0, 0, 0}, {0, 0, 0}, {3, 4, 0}}, 4, 0.0}), 0, 0, 3, 4);
}

TEST(ExtentsOf, OfATextNeedsMetrics) {
    CTextPrimitive text;
    text.m_vecNormal = AcGeVector3d::kZAxis;
    text.m_vecDirection = AcGeVector3d::kXAxis;
    text.m_strText = "AB";
    text.m_dHeight = 3.0;
    EXPECT_TRUE(ExtentsOf(One(text)).isEmpty());
    const CFixedMetrics metrics;
    ExpectBox(One(text), 0, 0, 3, 3);
}

TEST(ExtentsOf, JoinsAllPrimitives) {
    CDisplayList list = One(CPolylinePrimitive{{{0, 0, 0}, {1, 1, 0}}});
    list.push_back(One(Arc(0.0, pi / 2))[0]);
    ExpectBox(list, 0, 0, 12, 12);
}
