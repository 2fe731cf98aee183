#include "drawing/placed_text.h"

#include "tests/support/drawing.h"

#include <gtest/gtest.h>

TEST(PlacedText, StaysAtItsAlignmentPoint) {
    CTestDrawing drawing;
    AcDbText text({0, 0, 0}, L"before", AcDbObjectId::kNull, 10.0);
    text.setHorizontalMode(AcDb::kTextRight);
    text.setAlignmentPoint({50, 7, 0});
    SetPlacedText(text, "钻孔");
    EXPECT_STREQ(text.textString(), L"钻孔");
    EXPECT_EQ(text.position(), AcGePoint3d(50 - 4 * 8, 7, 0));
    SetPlacedText(text, "");
    EXPECT_EQ(text.position(), AcGePoint3d(50, 7, 0));
}

TEST(PlacedText, OnItsLeftEndStaysThere) {
    CTestDrawing drawing;
    AcDbText text({1, 2, 3}, L"before", AcDbObjectId::kNull, 10.0);
    SetPlacedText(text, "after");
    EXPECT_EQ(text.position(), AcGePoint3d(1, 2, 3));
}
