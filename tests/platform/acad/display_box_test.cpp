// Pictures in a box.

#include "platform/acad/display_list.h"
#include "tests/platform/acad/sample_entity.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

const AcGePoint3d g_low(0.0, 0.0, 0.0), g_high(10.0, 10.0, 0.0);

template <class Shape>
CDisplayList Picture(const Shape& shape) {
    CPrimitive primitive;
    primitive.m_shape = shape;
    return {primitive};
}

bool Passes(const CDisplayList& list) {
    return PassesThrough(list, g_low, g_high);
}

} // namespace

TEST(PassesThrough, ALineThatCrossesACornerOrTouchesAnEdgePasses) {
    EXPECT_TRUE(Passes(Picture(CPolylinePrimitive{{{-5, 1, 0}, {1, -5, 0}, {1, -9, 0}, {9, 1, 0}}})));
    EXPECT_FALSE(Passes(Picture(CPolylinePrimitive{{{-5, 1, 0}, {1, -5, 0}}})));
    EXPECT_TRUE(Passes(Picture(CPolylinePrimitive{{{10, -5, 0}, {10, 15, 0}}})));
    EXPECT_FALSE(Passes(Picture(CPolylinePrimitive{{{10.001, -5, 0}, {10.001, 15, 0}}})));
    EXPECT_TRUE(Passes(Picture(CPolylinePrimitive{{{5, 5, 0}}})));
    EXPECT_FALSE(Passes({}));
}

TEST(PassesThrough, WhatIsNoNumberPassesNowhere) {
    EXPECT_FALSE(Passes(Picture(CPolylinePrimitive{{{NAN, 5, 0}, {5, 5, 0}}})));
    EXPECT_FALSE(Passes(Picture(CPolylinePrimitive{{{-INFINITY, 5, 0}, {5, 5, 0}}})));
}

TEST(PassesThrough, AnArcPassesWhereItsCurveDoes) {
    CArcPrimitive arc;
    arc.m_ptCenter = {5, 5, 0};
    arc.m_vecNormal = AcGeVector3d::kZAxis;
    arc.m_vecStart = AcGeVector3d::kXAxis;
    arc.m_dSweep = 2.0 * std::numbers::pi;
    arc.m_dRadius = 20.0; // all around the box
    EXPECT_FALSE(Passes(Picture(arc)));
    arc.m_dRadius = 6.0;
    EXPECT_TRUE(Passes(Picture(arc)));
}

TEST(PassesThrough, ABulgeOfAPolylineCounts) {
    CPlinePrimitive pline;
    pline.m_arVertices = {{{-1, 0}}, {{-1, 10}}};
    EXPECT_FALSE(Passes(Picture(pline)));
    pline.m_arVertices[0].m_dBulge = 1.0; // a half circle to the right of the way up
    EXPECT_TRUE(Passes(Picture(pline)));
    pline.m_arVertices = {{{-2, -2}}, {{-2, 12}}, {{-1, -2}}};
    EXPECT_FALSE(Passes(Picture(pline)));
}

TEST(PassesThrough, ATextFillsItsRectangleAndASplineIsItsCurve) {
    const CFixedMetrics metrics;
    CTextPrimitive text;
    text.m_ptPosition = {-50, -50, 0};
    text.m_vecNormal = AcGeVector3d::kZAxis;
    text.m_vecDirection = AcGeVector3d::kXAxis;
    text.m_strText = "wide";
    text.m_dHeight = 100.0; // 200 wide
    EXPECT_TRUE(Passes(Picture(text)));
    text.m_ptPosition = {-50, 11, 0};
    EXPECT_FALSE(Passes(Picture(text)));
    CSplinePrimitive spline;
    spline.m_arFitPoints = {{-20, 0, 0}, {5, 20, 0}, {30, 0, 0}};
    EXPECT_FALSE(Passes(Picture(spline)));
    spline.m_arFitPoints[1].y = 9.0;
    EXPECT_TRUE(Passes(Picture(spline)));
}

TEST(LiesWithin, TakesAllOfThePictureAndSomething) {
    EXPECT_FALSE(LiesWithin({}, g_low, g_high));
    EXPECT_TRUE(LiesWithin(Picture(CPolylinePrimitive{{{0, 0, 0}, {10, 10, 0}}}), g_high, g_low));
    EXPECT_FALSE(LiesWithin(Picture(CPolylinePrimitive{{{0, 0, 0}, {10, 10.1, 0}}}), g_low, g_high));
}
