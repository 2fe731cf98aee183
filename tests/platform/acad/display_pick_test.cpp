#include "platform/acad/display_list.h"

#include "tests/platform/acad/sample_entity.h"

#include <gtest/gtest.h>

#include <limits>
#include <numbers>

namespace {

using std::numbers::pi;

template <class Shape>
CDisplayList PictureOf(Shape shape) {
    CDisplayList list(1);
    list[0].m_shape = std::move(shape);
    return list;
}

} // namespace

TEST(PassesNear, ALineBesideAndBeyondItsEnds) {
    const CDisplayList line = PictureOf(CPolylinePrimitive{{{0, 0, 0}, {10, 0, 50}}});
    EXPECT_TRUE(PassesNear(line, {5, 1, 0}, 1.0)); // heights don't count
    EXPECT_FALSE(PassesNear(line, {5, 1.001, 0}, 1.0));
    EXPECT_TRUE(PassesNear(line, {-0.7, 0.7, 0}, 1.0));
    EXPECT_FALSE(PassesNear(line, {-0.8, 0.8, 0}, 1.0));
    EXPECT_FALSE(PassesNear({}, {0, 0, 0}, 1.0));
    EXPECT_TRUE(PassesNear(PictureOf(CPolylinePrimitive{{{3, 3, 0}}}), {3, 3.5, 0}, 1.0));
}

TEST(PassesNear, AWideLineWithinItsWidth) {
    const CDisplayList arrow = PictureOf(CPlinePrimitive{{{{0, 0}, 0.0, 4.0, 0.0}, {{10, 0}}}, false});
    EXPECT_TRUE(PassesNear(arrow, {1, 2.5, 0}, 1.0));
    EXPECT_FALSE(PassesNear(arrow, {9, 2.5, 0}, 1.0));
    const std::vector<CPolylineVertex> corner = {{{0, 0}}, {{10, 0}}, {{10, 10}}};
    EXPECT_FALSE(PassesNear(PictureOf(CPlinePrimitive{corner, false}), {5, 5, 0}, 1.0));
    EXPECT_TRUE(PassesNear(PictureOf(CPlinePrimitive{corner, true}), {5, 5, 0}, 1.0));
}

TEST(PassesNear, ABulgeAtItsArcNotAtItsChord) {
    const CDisplayList half = PictureOf(CPlinePrimitive{{{{0, 0}, 1.0}, {{10, 0}}}, false});
    EXPECT_TRUE(PassesNear(half, {5, -5.5, 0}, 1.0));
    EXPECT_FALSE(PassesNear(half, {5, 0, 0}, 1.0));
    EXPECT_FALSE(PassesNear(half, {5, 5, 0}, 1.0)); // the other half of the circle
    EXPECT_TRUE(PassesNear(half, {10.5, 0.5, 0}, 1.0));
    const std::vector<CPolylineVertex> dot = {
        {{5, 5.25}, 1.0, 0.5, 0.5}, {{5, 4.75}, 1.0, 0.5, 0.5}, {{5, 5.25}}};
    EXPECT_TRUE(PassesNear(PictureOf(CPlinePrimitive{dot, false}), {5.2, 5, 0}, 0.01));
    EXPECT_FALSE(PassesNear(PictureOf(CPlinePrimitive{dot, false}), {5.6, 5, 0}, 0.05));
}

TEST(PassesNear, AnArcOverItsSweep) {
    const CDisplayList arc =
        PictureOf(CArcPrimitive{{0, 0, 0}, 10, AcGeVector3d::kZAxis, AcGeVector3d::kXAxis, pi});
    EXPECT_TRUE(PassesNear(arc, {0, 10.9, 0}, 1.0));
    EXPECT_FALSE(PassesNear(arc, {0, -10, 0}, 1.0));
    EXPECT_FALSE(PassesNear(arc, {0, 0, 0}, 1.0));
}

TEST(PassesNear, ASplineAtItsCurve) {
    const CDisplayList spline = PictureOf(CSplinePrimitive{{{0, 0, 0}, {3, 4, 0}, {6, 0, 0}}, 4, 0.0});
    EXPECT_TRUE(PassesNear(spline, {1.5, 2.75, 0}, 0.01));
    EXPECT_FALSE(PassesNear(spline, {1.5, 2.0, 0}, 0.3)); // on the chord
}

TEST(PassesNear, ATextInItsRectangle) {
    const CFixedMetrics metrics;
    CTextPrimitive text;
    text.m_vecNormal = AcGeVector3d::kZAxis;
    text.m_vecDirection = AcGeVector3d::kYAxis;
    text.m_strText = "ABCDEFGH";
    text.m_dHeight = 10.0; // 40 long, upwards
    EXPECT_TRUE(PassesNear(PictureOf(text), {-5, 20, 0}, 1.0));
    EXPECT_TRUE(PassesNear(PictureOf(text), {0.9, 20, 0}, 1.0));
    EXPECT_FALSE(PassesNear(PictureOf(text), {5, 20, 0}, 1.0));
    EXPECT_FALSE(PassesNear(PictureOf(text), {-5, 42, 0}, 1.0));
}

TEST(PassesNear, NothingThatIsNoNumber) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const CDisplayList line = PictureOf(CPolylinePrimitive{{{0, 0, 0}, {10, 0, 0}}});
    EXPECT_FALSE(PassesNear(line, {nan, 0, 0}, 1.0));
    EXPECT_FALSE(PassesNear(line, {5, 0, 0}, nan));
    EXPECT_FALSE(PassesNear(PictureOf(CPolylinePrimitive{{{nan, 0, 0}, {10, 0, 0}}}), {10, 0, 0}, 1.0));
    EXPECT_FALSE(PassesNear(PictureOf(CPlinePrimitive{{{{0, nan}, 1.0}, {{1, 1}}}, true}), {1, 5, 0}, 1.0));
    const CArcPrimitive endless{
        {0, 0, 0}, 1, AcGeVector3d::kZAxis, {1, 0, 0}, std::numeric_limits<double>::infinity()};
    EXPECT_FALSE(PassesNear(PictureOf(endless), {50, 0, 0}, 1.0));
}
