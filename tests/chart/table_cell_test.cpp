#include "chart/table_cell.h"

#include "tests/chart/table_picture.h"

#include <gtest/gtest.h>

namespace {
/// The position of a text of size 2.5 in a cell for texts of height 3.
AcGePoint3d Position(CCellMeasure measure) {
    AcDbVoidPtrArray entitySet;
    CExplodeSink sink(entitySet, 3, AcDbObjectId::kNull);
    g_ChartTextStyle.setTextSize(2.5);
    DrawTableCell(sink, {{100.0, 200.0, 0.0}, 15.0, 8.0, 3.0, "425"}, AcDbObjectId::kNull, measure);
    const CEntities entities = TakeOver(entitySet);
    return Parts<AcDbText>(entities).at(0)->position();
}
} // namespace

TEST(TableCell, IsCentredByTheTextsSizeOrByItsOwnHeight) {
    const CTestDrawing drawing;
    EXPECT_EQ(Position(CCellMeasure::TextSize).x, CentredAt(100.0, 15.0, "425", 2.5));
    EXPECT_EQ(Position(CCellMeasure::TextHeight).x, CentredAt(100.0, 15.0, "425", 3.0));
}

TEST(TableCell, IsSetByItsOwnHeightInEitherCase) {
    const CTestDrawing drawing;
    EXPECT_EQ(Position(CCellMeasure::TextSize).y, 200.0 - 4.0 - 1.5);
    EXPECT_EQ(Position(CCellMeasure::TextHeight).y, 200.0 - 4.0 - 1.5);
}
