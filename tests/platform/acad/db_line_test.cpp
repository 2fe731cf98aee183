#include "platform/acad/db_line.h"

#include "platform/acad/display_recorder.h"
#include "platform/acad/memory_filer.h"

#include <gtest/gtest.h>

#include <limits>

TEST(AcDbLine, DrawsAndMeasuresItself) {
    AcDbLine line({1, 2, 0}, {4, 6, 0});
    const CDisplayList list = DrawEntity(line);
    ASSERT_EQ(list.size(), 1U);
    EXPECT_EQ(std::get<CPolylinePrimitive>(list[0].m_shape).m_arPoints[1], AcGePoint3d(4, 6, 0));
    AcDbExtents extents;
    ASSERT_EQ(line.getGeomExtents(extents), Acad::eOk);
    EXPECT_EQ(extents.maxPoint(), AcGePoint3d(4, 6, 0));
    const double dNan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(AcDbLine({dNan, 0, 0}, {dNan, 0, 0}).getGeomExtents(extents), Acad::eInvalidExtents);
}

TEST(AcDbLine, FollowsATransformationWithBothEnds) {
    AcDbLine line({1, 0, 0}, {2, 0, 0});
    EXPECT_EQ(line.transformBy(AcGeMatrix3d::mirroring({0, 0, 0}, {1, 0, 0})), Acad::eOk);
    EXPECT_EQ(line.startPoint(), AcGePoint3d(-1, 0, 0));
    EXPECT_EQ(line.endPoint(), AcGePoint3d(-2, 0, 0));
}

TEST(AcDbLine, IsMovedByItsMiddleGripAndStretchedByTheOthers) {
    AcDbLine line({0, 0, 0}, {4, 0, 0});
    AcGePoint3dArray grips;
    AcDbIntArray modes, ids, indices;
    ASSERT_EQ(line.getGripPoints(grips, modes, ids), Acad::eOk);
    ASSERT_EQ(grips.length(), 3);
    EXPECT_EQ(grips[2], AcGePoint3d(2, 0, 0));
    indices.append(2);
    line.moveGripPointsAt(indices, {0, 1, 0});
    indices[0] = 1;
    line.moveGripPointsAt(indices, {1, 0, 0});
    EXPECT_EQ(line.startPoint(), AcGePoint3d(0, 1, 0));
    EXPECT_EQ(line.endPoint(), AcGePoint3d(5, 1, 0));
}

TEST(AcDbLine, FilesItsEnds) {
    const AcDbLine line({1, 2, 3}, {4, 5, 6});
    const CDbRecord record = RecordOf(line, AcDb::kCopyFiler);
    AcDbLine copy;
    CRecordReader reader(AcDb::kCopyFiler, record);
    EXPECT_EQ(copy.dwgIn(&reader), Acad::eOk);
    EXPECT_EQ(RecordOf(copy, AcDb::kCopyFiler), record);
    EXPECT_EQ(copy.endPoint(), AcGePoint3d(4, 5, 6));
}
