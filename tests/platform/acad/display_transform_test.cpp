#include "platform/acad/display_transform.h"

#include <gtest/gtest.h>

#include <numbers>

namespace {

constexpr double g_dPi = std::numbers::pi;

const AcGeMatrix3d g_doubledAndMoved =
    AcGeMatrix3d::translation({100, 0, 0}) * AcGeMatrix3d::scaling(2.0, AcGePoint3d::kOrigin);
const AcGeMatrix3d g_stretched = AcGeMatrix3d::scaling(AcGeScale3d(4.0, 1.0, 1.0), AcGePoint3d::kOrigin);
const AcGeMatrix3d g_mirrored = AcGeMatrix3d::mirroring(AcGePoint3d::kOrigin, AcGeVector3d::kXAxis);

template <class Image, class Shape>
Image ImageOf(const Shape& shape, const AcGeMatrix3d& xform) {
    CPrimitive primitive;
    primitive.m_shape = shape;
    const CDisplayList list = Transformed({primitive}, xform);
    return std::get<Image>(list.at(0).m_shape);
}

AcDbExtents Box(const CArcPrimitive& arc) {
    CPrimitive primitive;
    primitive.m_shape = arc;
    return ExtentsOf({primitive});
}

/// The upper half of a circle, clockwise and growing wider.
const CPlinePrimitive g_halfCircle{{{{-1, 0}, -1.0, 0.25, 0.5}, {{1, 0}}}, false};

} // namespace

TEST(Transformed, KeepsTheTraits) {
    CPrimitive primitive;
    primitive.m_nColor = 3;
    primitive.m_strLinetype = "Dashed2";
    primitive.m_nMarker = 4;
    const CDisplayList list = Transformed({primitive, CPrimitive()}, g_mirrored);
    ASSERT_EQ(list.size(), 2U);
    EXPECT_EQ(list[0].m_nColor, 3);
    EXPECT_EQ(list[0].m_strLinetype, "Dashed2");
    EXPECT_EQ(list[0].m_nMarker, 4);
}

TEST(Transformed, MovesThePointsOfAPolyline) {
    const auto image =
        ImageOf<CPolylinePrimitive>(CPolylinePrimitive{{{1, 2, 3}, {4, 5, 6}}}, g_doubledAndMoved);
    ASSERT_EQ(image.m_arPoints.size(), 2U);
    EXPECT_EQ(image.m_arPoints[0], AcGePoint3d(102, 4, 6));
    EXPECT_EQ(image.m_arPoints[1], AcGePoint3d(108, 10, 12));
}

TEST(Transformed, KeepsBulgesAndScalesWidths) {
    const auto image = ImageOf<CPlinePrimitive>(g_halfCircle, g_doubledAndMoved);
    ASSERT_EQ(image.m_arVertices.size(), 2U);
    EXPECT_EQ(image.m_arVertices[0].m_pt.x, 98.0);
    EXPECT_EQ(image.m_arVertices[0].m_dBulge, -1.0);
    EXPECT_EQ(image.m_arVertices[0].m_dEndWidth, 1.0);
    EXPECT_EQ(image.m_arVertices[1].m_dStartWidth, -1.0);
    EXPECT_EQ(ImageOf<CPlinePrimitive>(g_halfCircle, g_mirrored).m_arVertices[0].m_dBulge, 1.0);
}

TEST(Transformed, HasChordsWhereABulgeWouldBecomeAnEllipse) {
    const auto image = ImageOf<CPlinePrimitive>(g_halfCircle, g_stretched);
    EXPECT_EQ(image.m_arVertices.size(), 65U);
    EXPECT_EQ(image.m_arVertices[0].m_dStartWidth, 0.5); // by the mean of 4 and 1
    EXPECT_NEAR(image.m_arVertices[63].m_dEndWidth, 1.0, 1e-12);
    EXPECT_EQ(image.m_arVertices[64].m_dStartWidth, -1.0);
    for (const CPolylineVertex& vertex : image.m_arVertices) {
        EXPECT_EQ(vertex.m_dBulge, 0.0);
        EXPECT_NEAR(std::hypot(vertex.m_pt.x / 4.0, vertex.m_pt.y), 1.0, 1e-12);
        EXPECT_GE(vertex.m_pt.y, -1e-12);
    }
    CPlinePrimitive circle = g_halfCircle;
    circle.m_bClosed = true;
    circle.m_arVertices[1].m_dBulge = -1.0;
    EXPECT_EQ(ImageOf<CPlinePrimitive>(circle, g_stretched).m_arVertices.size(), 128U);
}

TEST(Transformed, KeepsArcsOfCirclesInAMirrorToo) {
    const CArcPrimitive arc{{5, 0, 0}, 2.0, AcGeVector3d::kZAxis, AcGeVector3d::kXAxis, g_dPi / 2};
    const auto doubled = ImageOf<CArcPrimitive>(arc, g_doubledAndMoved);
    EXPECT_EQ(doubled.m_ptCenter, AcGePoint3d(110, 0, 0));
    EXPECT_EQ(doubled.m_dRadius, 4.0);
    EXPECT_EQ(doubled.m_vecNormal, AcGeVector3d::kZAxis);
    EXPECT_EQ(doubled.m_dSweep, g_dPi / 2);
    const AcDbExtents box = Box(ImageOf<CArcPrimitive>(arc, g_mirrored)); // the upper left quarter
    EXPECT_NEAR(box.minPoint().x, -7.0, 1e-12);
    EXPECT_NEAR(box.maxPoint().x, -5.0, 1e-12);
    EXPECT_NEAR(box.minPoint().y, 0.0, 1e-12);
    EXPECT_NEAR(box.maxPoint().y, 2.0, 1e-12);
}

TEST(Transformed, HasChordsForEllipses) {
    const CArcPrimitive circle{{0, 0, 0}, 1.0, AcGeVector3d::kZAxis, AcGeVector3d::kXAxis, 2.0 * g_dPi};
    const auto image = ImageOf<CPolylinePrimitive>(circle, g_stretched);
    EXPECT_EQ(image.m_arPoints.size(), 129U);
    for (const AcGePoint3d& point : image.m_arPoints)
        EXPECT_NEAR(std::hypot(point.x / 4.0, point.y), 1.0, 1e-12);
}

TEST(Transformed, SizesTextsByTheScaleAlongAndAcrossThem) {
    CTextPrimitive text;
    text.m_ptPosition.set(1, 1, 0);
    text.m_vecNormal = AcGeVector3d::kZAxis;
    text.m_vecDirection = AcGeVector3d::kXAxis;
    text.m_dHeight = 3.0;
    text.m_dXScale = 0.7;
    const auto doubled = ImageOf<CTextPrimitive>(text, g_doubledAndMoved);
    EXPECT_EQ(doubled.m_ptPosition, AcGePoint3d(102, 2, 0));
    EXPECT_EQ(doubled.m_dHeight, 6.0);
    EXPECT_EQ(doubled.m_dXScale, 0.7);
    const auto stretched = ImageOf<CTextPrimitive>(text, g_stretched);
    EXPECT_EQ(stretched.m_dHeight, 3.0);
    EXPECT_NEAR(stretched.m_dXScale, 2.8, 1e-12);
    const auto mirrored = ImageOf<CTextPrimitive>(text, g_mirrored);
    EXPECT_EQ(mirrored.m_vecDirection, AcGeVector3d(-1, 0, 0));
    EXPECT_EQ(mirrored.m_vecNormal, AcGeVector3d(0, 0, -1)); // seen from behind
}

TEST(Transformed, MovesTheFitPointsOfASpline) {
    CSplinePrimitive spline;
    spline.m_arFitPoints = {{0, 0, 0}, {1, 1, 0}};
    const auto image = ImageOf<CSplinePrimitive>(spline, g_doubledAndMoved);
    ASSERT_EQ(image.m_arFitPoints.size(), 2U);
    EXPECT_EQ(image.m_arFitPoints[1], AcGePoint3d(102, 2, 0));
}
