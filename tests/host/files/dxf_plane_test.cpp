#include "host/files/dxf_plane.h"

#include <gtest/gtest.h>

namespace {

AcGePoint3d InDrawing(const AcGeVector3d& normal, AcGePoint3d point) {
    return point.transformBy(DxfPlaneToDrawing(normal));
}

} // namespace

TEST(DxfPlaneToDrawing, LeavesThePlaneOfTheDrawing) {
    EXPECT_EQ(InDrawing({0, 0, 1}, {1, 2, 3}), AcGePoint3d(1, 2, 3));
    EXPECT_EQ(InDrawing({0, 0, 5}, {1, 2, 3}), AcGePoint3d(1, 2, 3));
}

TEST(DxfPlaneToDrawing, MirrorsThePlaneSeenFromBelow) {
    EXPECT_EQ(InDrawing({0, 0, -1}, {1, 2, 3}), AcGePoint3d(-1, 2, -3));
}

TEST(DxfPlaneToDrawing, TakesTheXAxisFromTheDrawingsZAxisWhereTheNormalIsFarFromIt) {
    EXPECT_EQ(InDrawing({1, 0, 0}, {1, 2, 3}), AcGePoint3d(3, 1, 2));
    EXPECT_EQ(InDrawing({0, 1, 0}, {1, 2, 3}), AcGePoint3d(-1, 3, 2));
}
