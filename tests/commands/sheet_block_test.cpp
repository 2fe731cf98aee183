#include "commands/sheet_block.h"

#include "platform/acad/db_block_reference.h"
#include "tests/support/drawing.h"

#include <gtest/gtest.h>

namespace {
std::vector<AcDbObjectId> ModelSpace(AcDbDatabase& drawing) {
    return CDbOpen<AcDbBlockTableRecord>(drawing.ModelSpaceId())->EntityIds();
}
} // namespace

TEST(SheetBlock, IsMadeOnceAndReferredToFromEverySheet) {
    CTestDrawing drawing;
    AcDbObjectId idFirst;
    for (const double x : {0.0, 220.0}) {
        CSheetBlock block(&drawing.Database());
        ASSERT_EQ(block.Prepare(), 1);
        block.AddReference({x, 5.0, 1.0});
        const CDbOpen<AcDbBlockReference> reference(ModelSpace(drawing.Database()).back());
        ASSERT_TRUE(reference);
        EXPECT_TRUE(reference->position() == AcGePoint3d(x, 5.0, 1.0));
        EXPECT_EQ(SymbolName(reference->blockTableRecord()), "BRMB");
        if (idFirst.isNull()) idFirst = reference->blockTableRecord();
        EXPECT_EQ(reference->blockTableRecord(), idFirst);
    }
    EXPECT_EQ(ModelSpace(drawing.Database()).size(), 2U);
}

TEST(SheetBlock, CannotBeMadeWhileTheTableIsOpen) {
    CTestDrawing drawing;
    const CDbOpen<AcDbBlockTable> table(drawing.Database().blockTableId(), AcDb::kForWrite);
    EXPECT_EQ(CSheetBlock(&drawing.Database()).Prepare(), 0);
}
