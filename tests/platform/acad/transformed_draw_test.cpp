#include "platform/acad/transformed_draw.h"

#include "platform/acad/db_polyline.h"
#include "platform/acad/db_spline.h"
#include "platform/acad/display_recorder.h"

#include <gtest/gtest.h>

#include <functional>
#include <numbers>

namespace {

constexpr double g_dPi = std::numbers::pi;

const AcGeMatrix3d g_doubledAndMoved =
    AcGeMatrix3d::translation({100, 0, 0}) * AcGeMatrix3d::scaling(2.0, AcGePoint3d::kOrigin);
const AcGeMatrix3d g_stretched = AcGeMatrix3d::scaling(AcGeScale3d(4.0, 1.0, 1.0), AcGePoint3d::kOrigin);
const AcGeMatrix3d g_mirrored = AcGeMatrix3d::mirroring(AcGePoint3d::kOrigin, AcGeVector3d::kXAxis);

/// The shape that one call of a primitive gives through a transformation.
template <class Shape>
Shape Drawn(const AcGeMatrix3d& xform, const std::function<void(AcGiGeometry&)>& draw) {
    const AcDbPolyline entity;
    CDisplayRecorder recorder(entity);
    CTransformedDraw inner(recorder, xform);
    draw(*inner.rawGeometry());
    const CDisplayList list = recorder.Take();
    EXPECT_EQ(list.size(), 1U);
    return std::get<Shape>(list.at(0).m_shape);
}

AcDbExtents Box(decltype(CPrimitive::m_shape) shape) {
    CPrimitive primitive;
    primitive.m_shape = std::move(shape);
    return ExtentsOf({primitive});
}

void FillHalfCircle(AcDbPolyline& polyline) {
    polyline.addVertexAt(0, {-1, 0}, -1.0, 0.25, 0.5); // clockwise: the upper half
    polyline.addVertexAt(1, {1, 0});
}

} // namespace

TEST(TransformedDraw, HandsTheDragAndTheTraitsOn) {
    const AcDbPolyline entity;
    CDisplayRecorder recorder(entity, true);
    CTransformedDraw inner(recorder, AcGeMatrix3d());
    EXPECT_TRUE(inner.isDragging());
    inner.subEntityTraits().setColor(3);
    inner.rawGeometry()->polyline(0, nullptr);
    EXPECT_EQ(recorder.Take().at(0).m_nColor, 3);
}

TEST(TransformedDraw, MovesThePointsOfAPolyline) {
    const AcGePoint3d points[] = {{1, 2, 3}, {4, 5, 6}};
    const auto shape = Drawn<CPolylinePrimitive>(
        g_doubledAndMoved, [&](AcGiGeometry& geometry) { geometry.polyline(2, points); });
    ASSERT_EQ(shape.m_arPoints.size(), 2U);
    EXPECT_EQ(shape.m_arPoints[0], AcGePoint3d(102, 4, 6));
    EXPECT_EQ(shape.m_arPoints[1], AcGePoint3d(108, 10, 12));
}

TEST(TransformedDraw, KeepsBulgesAndScalesWidths) {
    AcDbPolyline polyline;
    FillHalfCircle(polyline);
    const auto shape =
        Drawn<CPlinePrimitive>(g_doubledAndMoved, [&](AcGiGeometry& geometry) { geometry.pline(polyline); });
    ASSERT_EQ(shape.m_arVertices.size(), 2U);
    EXPECT_EQ(shape.m_arVertices[0].m_pt.x, 98.0);
    EXPECT_EQ(shape.m_arVertices[0].m_dBulge, -1.0);
    EXPECT_EQ(shape.m_arVertices[0].m_dEndWidth, 1.0);
    EXPECT_EQ(shape.m_arVertices[1].m_dStartWidth, -1.0);
}

TEST(TransformedDraw, DrawsChordsWhereABulgeWouldBecomeAnEllipse) {
    AcDbPolyline polyline;
    FillHalfCircle(polyline);
    const auto shape =
        Drawn<CPlinePrimitive>(g_stretched, [&](AcGiGeometry& geometry) { geometry.pline(polyline); });
    EXPECT_EQ(shape.m_arVertices.size(), 65U);
    EXPECT_EQ(shape.m_arVertices[0].m_dStartWidth, 0.5); // by the mean of 4 and 1
    EXPECT_NEAR(shape.m_arVertices[63].m_dEndWidth, 1.0, 1e-12);
    EXPECT_EQ(shape.m_arVertices[64].m_dStartWidth, -1.0);
    for (const CPolylineVertex& vertex : shape.m_arVertices) {
        EXPECT_EQ(vertex.m_dBulge, 0.0);
        EXPECT_NEAR(std::hypot(vertex.m_pt.x / 4.0, vertex.m_pt.y), 1.0, 1e-12);
        EXPECT_GE(vertex.m_pt.y, -1e-12);
    }
}

TEST(TransformedDraw, DrawsAPartOfAPolyline) {
    AcDbPolyline polyline;
    for (unsigned int i = 0; i < 4; ++i)
        polyline.addVertexAt(i, {static_cast<double>(i), 0});
    const auto shape = Drawn<CPlinePrimitive>(
        g_doubledAndMoved, [&](AcGiGeometry& geometry) { geometry.pline(polyline, 1, 1); });
    ASSERT_EQ(shape.m_arVertices.size(), 2U);
    EXPECT_EQ(shape.m_arVertices[0].m_pt.x, 102.0);
    EXPECT_EQ(shape.m_arVertices[1].m_pt.x, 104.0);
}

TEST(TransformedDraw, KeepsArcsOfCirclesInAMirrorToo) {
    const auto draw = [](AcGiGeometry& geometry) {
        geometry.circularArc({5, 0, 0}, 2.0, AcGeVector3d::kZAxis, AcGeVector3d::kXAxis, g_dPi / 2);
    };
    const auto doubled = Drawn<CArcPrimitive>(g_doubledAndMoved, draw);
    EXPECT_EQ(doubled.m_ptCenter, AcGePoint3d(110, 0, 0));
    EXPECT_EQ(doubled.m_dRadius, 4.0);
    EXPECT_EQ(doubled.m_vecNormal, AcGeVector3d::kZAxis);
    EXPECT_EQ(doubled.m_dSweep, g_dPi / 2);
    const AcDbExtents box = Box(Drawn<CArcPrimitive>(g_mirrored, draw)); // the upper left quarter
    EXPECT_NEAR(box.minPoint().x, -7.0, 1e-12);
    EXPECT_NEAR(box.maxPoint().x, -5.0, 1e-12);
    EXPECT_NEAR(box.minPoint().y, 0.0, 1e-12);
    EXPECT_NEAR(box.maxPoint().y, 2.0, 1e-12);
}

TEST(TransformedDraw, DrawsEllipsesAsChords) {
    const auto shape = Drawn<CPolylinePrimitive>(g_stretched, [](AcGiGeometry& geometry) {
        geometry.circularArc({0, 0, 0}, 1.0, AcGeVector3d::kZAxis, AcGeVector3d::kXAxis, 2.0 * g_dPi);
    });
    EXPECT_EQ(shape.m_arPoints.size(), 129U);
    for (const AcGePoint3d& point : shape.m_arPoints)
        EXPECT_NEAR(std::hypot(point.x / 4.0, point.y), 1.0, 1e-12);
}

TEST(TransformedDraw, SizesTextsByTheScaleAlongAndAcrossThem) {
    AcGiTextStyle style;
    style.setTextSize(3.0);
    style.setXScale(0.7);
    const auto draw = [&](AcGiGeometry& geometry) {
        geometry.text({1, 1, 0}, AcGeVector3d::kZAxis, AcGeVector3d::kXAxis, L"固结", -1, Adesk::kTrue,
                      style);
    };
    const auto doubled = Drawn<CTextPrimitive>(g_doubledAndMoved, draw);
    EXPECT_EQ(doubled.m_ptPosition, AcGePoint3d(102, 2, 0));
    EXPECT_EQ(doubled.m_dHeight, 6.0);
    EXPECT_EQ(doubled.m_dXScale, 0.7);
    const auto stretched = Drawn<CTextPrimitive>(g_stretched, draw);
    EXPECT_EQ(stretched.m_dHeight, 3.0);
    EXPECT_NEAR(stretched.m_dXScale, 2.8, 1e-12);
    const auto mirrored = Drawn<CTextPrimitive>(g_mirrored, draw);
    EXPECT_EQ(mirrored.m_vecDirection, AcGeVector3d(-1, 0, 0));
    EXPECT_EQ(mirrored.m_vecNormal, AcGeVector3d(0, 0, -1)); // seen from behind
}

TEST(TransformedDraw, MovesTheFitPointsOfASpline) {
    AcGePoint3dArray points;
    points.append({0, 0, 0});
    points.append({1, 1, 0});
    const auto shape = Drawn<CSplinePrimitive>(
        g_doubledAndMoved, [&](AcGiGeometry& geometry) { geometry.spline(AcDbSpline(points)); });
    ASSERT_EQ(shape.m_arFitPoints.size(), 2U);
    EXPECT_EQ(shape.m_arFitPoints[1], AcGePoint3d(102, 2, 0));
}
