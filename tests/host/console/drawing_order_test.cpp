#include "host/console/drawing_order.h"

#include "platform/acad/db_line.h"

#include <gtest/gtest.h>

namespace {

AcDbObjectId AppendLine(AcDbObjectId idBlock) {
    const CDbOpen<AcDbBlockTableRecord> block(idBlock, AcDb::kForWrite);
    auto* const pLine = new AcDbLine;
    AcDbObjectId id;
    EXPECT_EQ(block->appendAcDbEntity(id, pLine), Acad::eOk);
    pLine->close();
    return id;
}

AcDbObjectId AddBlock(AcDbDatabase& drawing) {
    const CDbOpen<AcDbBlockTable> table(drawing.blockTableId(), AcDb::kForWrite);
    auto* const pBlock = new AcDbBlockTableRecord;
    pBlock->setName(L"FRAME");
    AcDbObjectId id;
    EXPECT_EQ(table->add(id, pBlock), Acad::eOk);
    pBlock->close();
    return id;
}

} // namespace

TEST(DrawingOrder, IsThatOfHandlesWhicheverEntityCameFirst) {
    AcDbDatabase drawing;
    const AcDbObjectId idFirst = AppendLine(drawing.ModelSpaceId());
    const AcDbObjectId idSecond = AppendLine(drawing.ModelSpaceId());
    EXPECT_EQ(ModelSpaceEntities(drawing), (std::vector<AcDbObjectId>{idFirst, idSecond}));
    drawing.SetHandle(idFirst, drawing.handseed());
    EXPECT_EQ(ModelSpaceEntities(drawing), (std::vector<AcDbObjectId>{idSecond, idFirst}));
}

TEST(DrawingOrder, OfAllEntitiesGoesThroughTheBlocks) {
    AcDbDatabase drawing;
    const AcDbObjectId idBlock = AddBlock(drawing);
    const AcDbObjectId idFirst = AppendLine(drawing.ModelSpaceId());
    const AcDbObjectId idInBlock = AppendLine(idBlock);
    const AcDbObjectId idLast = AppendLine(drawing.ModelSpaceId());
    EXPECT_EQ(AllEntities(drawing), (std::vector<AcDbObjectId>{idFirst, idInBlock, idLast}));
    EXPECT_EQ(EntitiesInOrder(*CDbOpen<AcDbBlockTableRecord>(idBlock).Get()), std::vector(1, idInBlock));
}

TEST(DrawingOrder, LeavesErasedEntitiesOut) {
    AcDbDatabase drawing;
    const AcDbObjectId idErased = AppendLine(drawing.ModelSpaceId());
    const AcDbObjectId idLiving = AppendLine(drawing.ModelSpaceId());
    CDbOpen<AcDbEntity>(idErased, AcDb::kForWrite)->erase();
    EXPECT_EQ(ModelSpaceEntities(drawing), std::vector(1, idLiving));
    EXPECT_EQ(AllEntities(drawing), std::vector(1, idLiving));
}
