#include "platform/acad/db_polyline.h"

#include "platform/acad/db_arc.h"
#include "platform/acad/db_line.h"
#include "platform/acad/display_recorder.h"

#include <gtest/gtest.h>

#include <limits>
#include <numbers>

namespace {

/// (0,0) to (4,0) straight, on to (4,2) by a half circle; the first segment is 1 wide.
void Fill(AcDbPolyline& polyline) {
    polyline.addVertexAt(0, {0, 0}, 0.0, 1.0, 1.0);
    polyline.addVertexAt(1, {4, 0}, 1.0);
    polyline.addVertexAt(2, {4, 2});
}

} // namespace

TEST(AcDbPolyline, InsertsAndRemovesVertices) {
    AcDbPolyline polyline(3);
    Fill(polyline);
    EXPECT_EQ(polyline.addVertexAt(1, {2, 0}), Acad::eOk);
    EXPECT_EQ(polyline.addVertexAt(5, {2, 0}), Acad::eInvalidIndex);
    ASSERT_EQ(polyline.numVerts(), 4u);
    AcGePoint3d point(9, 9, 9);
    EXPECT_EQ(polyline.getPointAt(1, point), Acad::eOk);
    EXPECT_EQ(point, AcGePoint3d(2, 0, 0));
    EXPECT_EQ(polyline.removeVertexAt(0), Acad::eOk);
    EXPECT_EQ(polyline.removeVertexAt(3), Acad::eInvalidIndex);
    AcGePoint2d flat;
    EXPECT_EQ(polyline.getPointAt(2, flat), Acad::eOk);
    EXPECT_EQ(flat.distanceTo({4, 2}), 0.0);
}

TEST(AcDbPolyline, RefusesIndicesBeyondItsEnd) {
    AcDbPolyline polyline;
    AcGePoint2d flat;
    AcGePoint3d point;
    double a = 7.0, b = 7.0;
    EXPECT_EQ(polyline.getPointAt(0, flat), Acad::eInvalidIndex);
    EXPECT_EQ(polyline.getPointAt(0, point), Acad::eInvalidIndex);
    EXPECT_EQ(polyline.setPointAt(0, flat), Acad::eInvalidIndex);
    EXPECT_EQ(polyline.getBulgeAt(0, a), Acad::eInvalidIndex);
    EXPECT_EQ(polyline.setBulgeAt(0, 1.0), Acad::eInvalidIndex);
    EXPECT_EQ(polyline.getWidthsAt(0, a, b), Acad::eInvalidIndex);
    EXPECT_EQ(polyline.setWidthsAt(0, 1.0, 1.0), Acad::eInvalidIndex);
    EXPECT_EQ(a, 7.0);
}

TEST(AcDbPolyline, KeepsBulgesAndWidthsOneNotSetReadsMinusOne) {
    AcDbPolyline polyline;
    Fill(polyline);
    double bulge = 0.0, start = 0.0, end = 0.0;
    polyline.getBulgeAt(1, bulge);
    EXPECT_EQ(bulge, 1.0);
    polyline.getWidthsAt(1, start, end);
    EXPECT_EQ(start, -1.0);
    EXPECT_EQ(end, -1.0);
    polyline.setWidthsAt(2, 0.5, 0.25);
    polyline.setBulgeAt(2, -0.5);
    polyline.setPointAt(2, {8, 8});
    EXPECT_EQ(polyline.Vertices()[2].m_dStartWidth, 0.5);
    EXPECT_EQ(polyline.Vertices()[2].m_dEndWidth, 0.25);
    EXPECT_EQ(polyline.Vertices()[2].m_dBulge, -0.5);
    EXPECT_EQ(polyline.Vertices()[2].m_pt.x, 8.0);
}

TEST(AcDbPolyline, IsRefilledAfterAResetWithoutAllocating) {
    AcDbPolyline polyline;
    Fill(polyline);
    polyline.reset(Adesk::kTrue, 3);
    EXPECT_EQ(polyline.numVerts(), 0u);
    const CPolylineVertex* const pRoom = polyline.Vertices().data();
    Fill(polyline);
    EXPECT_EQ(polyline.Vertices().data(), pRoom);
    EXPECT_EQ(polyline.numVerts(), 3u);
}

TEST(AcDbPolyline, ExtendsOverWidthsAndBulges) {
    AcDbPolyline polyline;
    Fill(polyline);
    AcDbExtents extents;
    ASSERT_EQ(polyline.getGeomExtents(extents), Acad::eOk);
    EXPECT_DOUBLE_EQ(extents.minPoint().y, -0.5); // half the width
    EXPECT_DOUBLE_EQ(extents.maxPoint().x, 5.0);  // the half circle, to the right of its chord
    EXPECT_DOUBLE_EQ(extents.maxPoint().y, 2.0);
    EXPECT_EQ(AcDbPolyline().getGeomExtents(extents), Acad::eInvalidExtents);
}

TEST(AcDbPolyline, TurnsGrowsAndMirrorsWithItsWidthsAndBulges) {
    AcDbPolyline polyline;
    Fill(polyline);
    EXPECT_EQ(polyline.transformBy(AcGeMatrix3d::scaling(2.0, AcGePoint3d::kOrigin)), Acad::eOk);
    EXPECT_EQ(polyline.Vertices()[0].m_dStartWidth, 2.0);
    EXPECT_EQ(polyline.Vertices()[1].m_dStartWidth, -1.0);
    EXPECT_EQ(polyline.Vertices()[2].m_pt.distanceTo({8, 4}), 0.0);
    EXPECT_EQ(polyline.transformBy(AcGeMatrix3d::mirroring(AcGePoint3d::kOrigin, AcGeVector3d::kXAxis)),
              Acad::eOk);
    EXPECT_EQ(polyline.Vertices()[1].m_dBulge, -1.0);
    EXPECT_EQ(polyline.Vertices()[1].m_pt.x, -8.0);
}

TEST(AcDbPolyline, RefusesToLeaveItsPlane) {
    AcDbPolyline polyline;
    Fill(polyline);
    EXPECT_EQ(polyline.transformBy(AcGeMatrix3d::rotation(1.0, AcGeVector3d::kXAxis, AcGePoint3d::kOrigin)),
              Acad::eNotApplicable);
    EXPECT_EQ(polyline.Vertices()[2].m_pt.distanceTo({4, 2}), 0.0);
}

TEST(AcDbPolyline, DrawsItselfAsOnePrimitive) {
    AcDbPolyline polyline;
    Fill(polyline);
    polyline.setClosed(Adesk::kTrue);
    polyline.setColorIndex(1);
    const CDisplayList list = DrawEntity(polyline);
    ASSERT_EQ(list.size(), 1u);
    EXPECT_EQ(list[0].m_nColor, 1);
    EXPECT_EQ(list[0].m_strLinetype, "ByLayer");
    const auto& shape = std::get<CPlinePrimitive>(list[0].m_shape);
    EXPECT_TRUE(shape.m_bClosed);
    EXPECT_EQ(shape.m_arVertices.size(), 3u);
    EXPECT_EQ(shape.m_arVertices[1].m_dBulge, 1.0);
}

TEST(AcDbPolyline, ExplodesIntoLinesAndArcsWithItsProperties) {
    AcDbPolyline polyline;
    polyline.addVertexAt(0, {0, 0}, 0.0, 1.0, 1.0);
    polyline.addVertexAt(1, {2, 0}, -1.0); // clockwise
    polyline.addVertexAt(2, {4, 0}, 1.0);
    polyline.setClosed(Adesk::kTrue);
    polyline.setColorIndex(3);
    AcDbVoidPtrArray pointers;
    ASSERT_EQ(polyline.explode(pointers), Acad::eOk);
    std::vector<std::unique_ptr<AcDbEntity>> parts;
    for (void* const pPart : pointers)
        parts.emplace_back(static_cast<AcDbEntity*>(pPart));
    ASSERT_EQ(parts.size(), 3U);
    const auto* const pLine = AcDbLine::cast(parts[0].get());
    const auto* const pClockwise = AcDbArc::cast(parts[1].get());
    const auto* const pBack = AcDbArc::cast(parts[2].get());
    ASSERT_TRUE(pLine && pClockwise && pBack);
    EXPECT_EQ(pLine->endPoint(), AcGePoint3d(2, 0, 0));
    EXPECT_EQ(pLine->colorIndex(), 3);
    EXPECT_EQ(pClockwise->center(), AcGePoint3d(3, 0, 0));
    EXPECT_EQ(pClockwise->radius(), 1.0);
    AcDbExtents extents;
    ASSERT_EQ(pClockwise->getGeomExtents(extents), Acad::eOk);
    EXPECT_NEAR(extents.minPoint().y, 0.0, 1e-12);
    EXPECT_NEAR(extents.maxPoint().y, 1.0, 1e-12);
    ASSERT_EQ(pBack->getGeomExtents(extents), Acad::eOk); // from (4, 0) to (0, 0), counter-clockwise
    EXPECT_NEAR(extents.maxPoint().y, 2.0, 1e-12);
}

TEST(AcDbPolyline, OfFewerThanTwoVerticesDoesNotExplode) {
    AcDbPolyline polyline;
    polyline.addVertexAt(0, {0, 0});
    AcDbVoidPtrArray parts;
    EXPECT_EQ(polyline.explode(parts), Acad::eNotApplicable);
    EXPECT_TRUE(parts.isEmpty());
}

TEST(AcDbPolyline, HasItsVerticesAsGrips) {
    AcDbPolyline polyline;
    polyline.addVertexAt(0, {0, 0});
    polyline.addVertexAt(1, {2, 0});
    AcGePoint3dArray grips;
    AcDbIntArray osnapModes, geomIds, indices;
    polyline.getGripPoints(grips, osnapModes, geomIds);
    ASSERT_EQ(grips.length(), 2);
    EXPECT_EQ(grips[1], AcGePoint3d(2, 0, 0));
    for (const int index : {1, 2, -1})
        indices.append(index);
    polyline.moveGripPointsAt(indices, {1, 3, 0});
    EXPECT_EQ(polyline.Vertices()[1].m_pt.y, 3.0);
    EXPECT_EQ(polyline.Vertices()[0].m_pt.y, 0.0);
}
