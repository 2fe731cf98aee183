#include "platform/acad/db_arc.h"

#include "platform/acad/display_recorder.h"
#include "platform/acad/memory_filer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace {
constexpr double g_dHalfTurn = std::numbers::pi;
}

TEST(AcDbArc, DrawsCounterClockwiseFromStartToEnd) {
    AcDbArc arc({10, 0, 0}, 5.0, 0.0, g_dHalfTurn);
    const CDisplayList list = DrawEntity(arc);
    ASSERT_EQ(list.size(), 1U);
    const auto& shape = std::get<CArcPrimitive>(list[0].m_shape);
    EXPECT_EQ(shape.m_dSweep, g_dHalfTurn);
    EXPECT_EQ(shape.m_vecStart, AcGeVector3d::kXAxis);
    AcDbExtents extents;
    ASSERT_EQ(arc.getGeomExtents(extents), Acad::eOk);
    EXPECT_EQ(extents.minPoint(), AcGePoint3d(5, 0, 0));
    EXPECT_EQ(extents.maxPoint(), AcGePoint3d(15, 5, 0));
}

TEST(AcDbArc, OverTheXAxisGoesTheLongWayRound) {
    AcDbArc arc({0, 0, 0}, 1.0, 1.5 * g_dHalfTurn, 0.5 * g_dHalfTurn);
    EXPECT_NEAR(std::get<CArcPrimitive>(DrawEntity(arc)[0].m_shape).m_dSweep, g_dHalfTurn, 1e-12);
    AcDbArc circle({0, 0, 0}, 1.0, 1.0, 1.0);
    EXPECT_EQ(std::get<CArcPrimitive>(DrawEntity(circle)[0].m_shape).m_dSweep, 2.0 * g_dHalfTurn);
}

TEST(AcDbArc, TurnsGrowsAndKeepsRunningCounterClockwiseWhenMirrored) {
    AcDbArc arc({1, 0, 0}, 1.0, 0.0, 0.5 * g_dHalfTurn);
    EXPECT_EQ(arc.transformBy(AcGeMatrix3d::rotation(0.5 * g_dHalfTurn, {0, 0, 1}, {0, 0, 0})), Acad::eOk);
    EXPECT_EQ(arc.center(), AcGePoint3d(0, 1, 0));
    EXPECT_NEAR(arc.startAngle(), 0.5 * g_dHalfTurn, 1e-12);
    EXPECT_EQ(arc.transformBy(AcGeMatrix3d::scaling(2.0, {0, 0, 0})), Acad::eOk);
    EXPECT_EQ(arc.radius(), 2.0);
    // The quarter on the upper left; its image on the upper right begins at 0.
    EXPECT_EQ(arc.transformBy(AcGeMatrix3d::mirroring({0, 0, 0}, {1, 0, 0})), Acad::eOk);
    EXPECT_NEAR(std::cos(arc.startAngle()), 1.0, 1e-12);
    EXPECT_NEAR(arc.endAngle() - arc.startAngle(), 0.5 * g_dHalfTurn, 1e-12);
    AcGeMatrix3d uneven;
    uneven.entry[0][0] = 2.0;
    EXPECT_EQ(arc.transformBy(uneven), Acad::eNotApplicable);
    EXPECT_EQ(arc.radius(), 2.0);
}

TEST(AcDbArc, RefusesNumbersThatMakeNoArc) {
    AcDbArc arc;
    EXPECT_EQ(arc.setRadius(0.0), Acad::eInvalidInput);
    EXPECT_EQ(arc.setRadius(std::numeric_limits<double>::infinity()), Acad::eInvalidInput);
    EXPECT_EQ(arc.setStartAngle(std::numeric_limits<double>::quiet_NaN()), Acad::eInvalidInput);
    EXPECT_EQ(arc.setEndAngle(1.0), Acad::eOk);
    EXPECT_EQ(arc.radius(), 1.0);
}

TEST(AcDbArc, FilesItsNumbers) {
    const AcDbArc arc({1, 2, 3}, 4.0, 0.5, 1.5);
    const CDbRecord record = RecordOf(arc, AcDb::kCopyFiler);
    AcDbArc copy;
    CRecordReader reader(AcDb::kCopyFiler, record);
    EXPECT_EQ(copy.dwgIn(&reader), Acad::eOk);
    EXPECT_EQ(RecordOf(copy, AcDb::kCopyFiler), record);
    EXPECT_EQ(copy.endAngle(), 1.5);
}

TEST(AcDbArc, HasCentreEndsAndMiddleAsGrips) {
    AcDbArc arc({1, 0, 0}, 2.0, 0.0, std::numbers::pi);
    AcGePoint3dArray grips;
    AcDbIntArray osnapModes, geomIds;
    arc.getGripPoints(grips, osnapModes, geomIds);
    ASSERT_EQ(grips.length(), 4);
    EXPECT_EQ(grips[0], AcGePoint3d(1, 0, 0));
    EXPECT_EQ(grips[1], AcGePoint3d(3, 0, 0));
    EXPECT_NEAR(grips[2].distanceTo({-1, 0, 0}), 0.0, 1e-12);
    EXPECT_NEAR(grips[3].distanceTo({1, 2, 0}), 0.0, 1e-12);
    const auto move = [&](int index, const AcGeVector3d& offset) {
        AcDbIntArray indices;
        indices.append(index);
        arc.moveGripPointsAt(indices, offset);
    };
    move(3, {0, 1, 0});
    EXPECT_NEAR(arc.radius(), 3.0, 1e-12);
    move(1, {-3, 3, 0});
    EXPECT_NEAR(arc.startAngle(), std::numbers::pi / 2, 1e-12);
    move(2, {3, -3, 0});
    EXPECT_NEAR(arc.endAngle(), -std::numbers::pi / 2, 1e-12);
    move(3, {3, 0, 0}); // onto the centre
    EXPECT_NEAR(arc.radius(), 3.0, 1e-12);
    move(0, {1, 1, 1});
    EXPECT_EQ(arc.center(), AcGePoint3d(2, 1, 1));
    move(4, {1, 1, 1});
    EXPECT_EQ(arc.center(), AcGePoint3d(2, 1, 1));
}
