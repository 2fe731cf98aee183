#include "host/files/block_check.h"

#include "host/files/dwg_drawing_reader.h"
#include "host/files/dwg_drawing_writer.h"
#include "host/files/dwg_error.h"
#include "host/files/dxf_read.h"
#include "host/files/dxf_write.h"
#include "platform/acad/db_block_reference.h"
#include "platform/acad/db_line.h"

#include <gtest/gtest.h>

namespace {

AcDbObjectId AddBlock(AcDbDatabase& drawing, const std::wstring& strName) {
    const CDbOpen<AcDbBlockTable> table(drawing.blockTableId(), AcDb::kForWrite);
    auto* const pBlock = new AcDbBlockTableRecord;
    pBlock->setName(strName.c_str());
    AcDbObjectId id;
    EXPECT_EQ(table->add(id, pBlock), Acad::eOk);
    pBlock->close();
    return id;
}

void AddTo(AcDbObjectId idBlock, AcDbEntity* pEntity) {
    const CDbOpen<AcDbBlockTableRecord> block(idBlock, AcDb::kForWrite);
    EXPECT_EQ(block->appendAcDbEntity(pEntity), Acad::eOk);
    pEntity->close();
}

/// Blocks that each show the one before so many times, from a line on; the last one's id.
AcDbObjectId AddTower(AcDbDatabase& drawing, int nLevels, int nTimes) {
    AcDbObjectId idBelow = AddBlock(drawing, L"B0");
    AddTo(idBelow, new AcDbLine({0, 0, 0}, {1, 0, 0}));
    for (int nLevel = 1; nLevel <= nLevels; ++nLevel) {
        const AcDbObjectId id = AddBlock(drawing, L"B" + std::to_wstring(nLevel));
        for (int i = 0; i < nTimes; ++i)
            AddTo(id, new AcDbBlockReference(AcGePoint3d::kOrigin, idBelow));
        idBelow = id;
    }
    return idBelow;
}

std::string Failure(const AcDbDatabase& drawing) {
    const std::optional<CBlockFault> fault = FindBlockFault(drawing);
    return fault ? fault->m_strBlock + ": " + fault->m_strWhat : "none";
}

/// Why the drawing, written to a file of either format, is not read again.
std::string DwgRefusal(const AcDbDatabase& drawing) {
    try {
        DrawingOfDwg(ReadDwgFile(WriteDwgFile(DwgFileOf(drawing))));
    } catch (const CDwgError& error) {
        return error.what();
    }
    return "none";
}
std::string DxfRefusal(const AcDbDatabase& drawing) {
    AcDbDatabase back;
    try {
        ReadDxf(WriteDxf(drawing).m_strBytes, back);
    } catch (const CDxfFailure& failure) {
        return failure.what();
    }
    return "none";
}

} // namespace

TEST(FindBlockFault, LetsOrdinaryBlocksPass) {
    AcDbDatabase drawing;
    AddTower(drawing, 20, 2);
    EXPECT_EQ(Failure(drawing), "none");
}

TEST(FindBlockFault, RefusesABlockThatHoldsItselfByWayOfAnother) {
    AcDbDatabase drawing;
    const AcDbObjectId idTop = AddTower(drawing, 2, 1);
    AcDbObjectId idFirst;
    ASSERT_EQ(CDbOpen<AcDbBlockTable>(drawing.blockTableId())->getAt(L"B0", idFirst), Acad::eOk);
    AddTo(idFirst, new AcDbBlockReference(AcGePoint3d::kOrigin, idTop));
    EXPECT_EQ(Failure(drawing), "B0: it holds itself");
}

TEST(FindBlockFault, RefusesATowerThatIsTooHigh) {
    AcDbDatabase high, higher;
    AddTower(high, 100, 1);
    EXPECT_EQ(Failure(high), "none");
    AddTower(higher, 101, 1);
    EXPECT_EQ(Failure(higher), "B100: blocks within blocks too deep");
}

TEST(FindBlockFault, RefusesBlocksThatShowMoreThanCanBeDrawn) {
    AcDbDatabase drawing;
    AddTower(drawing, 60, 2);
    EXPECT_EQ(Failure(drawing), "B22: blocks within blocks show too many entities");
}

TEST(FindBlockFault, PassesOverAReferenceWithoutABlock) {
    AcDbDatabase drawing;
    AddTo(drawing.ModelSpaceId(), new AcDbBlockReference(AcGePoint3d::kOrigin, AcDbObjectId::kNull));
    EXPECT_EQ(Failure(drawing), "none");
}

TEST(FindBlockFault, RefusesFilesOfBothFormats) {
    AcDbDatabase drawing;
    AddTower(drawing, 60, 2);
    EXPECT_EQ(DwgRefusal(drawing), "Block B22: blocks within blocks show too many entities.");
    EXPECT_EQ(DxfRefusal(drawing), "block B22: blocks within blocks show too many entities");
}
