#include "drawing/text_cell.h"

#include "tests/support/drawing.h"

#include <gtest/gtest.h>

TEST(TextCell, IsCentredByItsMeasuredWidthAndItsTextHeight) {
    const CTestDrawing drawing;
    const CTextCell cell{{100.0, 200.0, 7.0}, 40.0, 10.0, 5.0, "abc"};
    const AcGePoint3d point = TextPositionInCell(cell, AcDbObjectId::kNull, 2.0);
    EXPECT_DOUBLE_EQ(point.x, 100.0 + (40.0 - 3 * 0.8 * 2.0 * 0.7) / 2.0);
    EXPECT_EQ(point.y, 200.0 - 5.0 - 2.5);
    EXPECT_EQ(point.z, 7.0);
}

TEST(TextCell, BeginsLeftOfItselfWhenItsTextIsWider) {
    const CTestDrawing drawing;
    const CTextCell cell{{0.0, 0.0, 0.0}, 1.0, 8.0, 2.5, "a long text"};
    EXPECT_LT(TextPositionInCell(cell, AcDbObjectId::kNull, 2.5).x, 0.0);
}
