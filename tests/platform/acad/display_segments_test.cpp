#include "platform/acad/display_segments.h"

#include "tests/platform/acad/sample_entity.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

bool Lies(const AcGePoint2d& point, const AcGePoint2d& at) {
    return point.x == at.x && point.y == at.y;
}

} // namespace

TEST(Segments, OfAPolylineJoinItsPointsAndALonePointIsOneOfNoLength) {
    EXPECT_TRUE(Segments(CPolylinePrimitive{}).empty());
    const std::vector<CSegment> lone = Segments(CPolylinePrimitive{{{1, 2, 3}}});
    ASSERT_EQ(lone.size(), 1u);
    EXPECT_TRUE(Lies(lone[0].m_ptTo, {1, 2}));
    const std::vector<CSegment> segments = Segments(CPolylinePrimitive{{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}}});
    ASSERT_EQ(segments.size(), 2u);
    EXPECT_TRUE(Lies(segments[1].m_ptFrom, {1, 0}));
    EXPECT_TRUE(Lies(segments[1].m_ptTo, {1, 1}));
}

TEST(Segments, OfAClosedPlineLeadBackAndABulgeIsChordsOnItsCircle) {
    CPlinePrimitive pline;
    EXPECT_TRUE(Segments(pline).empty());
    pline.m_arVertices = {{{0, 0}}};
    EXPECT_EQ(Segments(pline).size(), 1u);
    pline.m_arVertices = {{{0, 0}}, {{10, 0}}, {{10, 10}}};
    EXPECT_EQ(Segments(pline).size(), 2u);
    pline.m_bClosed = true;
    ASSERT_EQ(Segments(pline).size(), 3u);
    EXPECT_TRUE(Lies(Segments(pline)[2].m_ptTo, {0, 0}));
    pline = {};
    pline.m_arVertices = {{{0, 0}, 1.0}, {{10, 0}}};
    for (const CSegment& segment : Segments(pline))
        EXPECT_NEAR(segment.m_ptTo.distanceTo({5, 0}), 5.0, 1e-9);
}

TEST(Segments, OfAnArcFollowItFromItsStart) {
    CArcPrimitive arc;
    arc.m_dRadius = 2.0;
    arc.m_vecNormal = AcGeVector3d::kZAxis;
    arc.m_vecStart = AcGeVector3d::kXAxis;
    arc.m_dSweep = std::numbers::pi / 2.0;
    const std::vector<CSegment> segments = Segments(arc);
    EXPECT_TRUE(Lies(segments.front().m_ptFrom, {2, 0}));
    EXPECT_NEAR(segments.back().m_ptTo.distanceTo({0, 2}), 0.0, 1e-12);
}

TEST(Segments, OfATextAreTheEdgesOfItsRectangleAndNoneWithoutMetrics) {
    CTextPrimitive text;
    text.m_vecNormal = AcGeVector3d::kZAxis;
    text.m_vecDirection = AcGeVector3d::kXAxis;
    text.m_strText = "ab";
    EXPECT_TRUE(Segments(text).empty());
    const CFixedMetrics metrics;
    const std::vector<CSegment> edges = Segments(text);
    ASSERT_EQ(edges.size(), 4u);
    EXPECT_TRUE(Lies(edges[1].m_ptTo, {1, 1}));
}

TEST(Segments, OfASplineEndAtItsLastFitPoint) {
    CSplinePrimitive spline;
    spline.m_arFitPoints = {{0, 0, 0}, {5, 5, 0}, {10, 0, 0}};
    const std::vector<CSegment> segments = Segments(spline);
    EXPECT_TRUE(Lies(segments.front().m_ptFrom, {0, 0}));
    EXPECT_TRUE(Lies(segments.back().m_ptTo, {10, 0}));
}

TEST(IsInside, TellsSidesOfARectangleGivenInEitherSense) {
    const std::vector<CSegment> square = {
        {{0, 0}, {2, 0}}, {{2, 0}, {2, 2}}, {{2, 2}, {0, 2}}, {{0, 2}, {0, 0}}};
    const std::vector<CSegment> turned = {
        {{0, 0}, {0, 2}}, {{0, 2}, {2, 2}}, {{2, 2}, {2, 0}}, {{2, 0}, {0, 0}}};
    EXPECT_TRUE(IsInside(square, {1, 1}));
    EXPECT_TRUE(IsInside(turned, {1, 1}));
    EXPECT_FALSE(IsInside(square, {3, 1}));
    EXPECT_FALSE(IsInside(turned, {1, -1}));
    EXPECT_FALSE(IsInside({}, {1, 1}));
}
