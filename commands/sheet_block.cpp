#include "commands/sheet_block.h"

#include "drawing/model_space.h"
#include "platform/acad/db_block_reference.h"

namespace {
constexpr const ACHAR* g_pBlockName = L"BRMB";
} // namespace

int CSheetBlock::Prepare() {
    const CDbOpen<AcDbBlockTable> table(m_pDatabase->blockTableId(), AcDb::kForWrite);
    if (!table) return 0;
    if (table->getAt(g_pBlockName, m_idBlock) == Acad::eOk) return 1;
    auto pBlock = std::make_unique<AcDbBlockTableRecord>();
    pBlock->setName(g_pBlockName);
    if (table->add(m_idBlock, pBlock.get()) != Acad::eOk) return 0;
    pBlock.release()->close();
    return 1;
}

void CSheetBlock::AddReference(const AcGePoint3d& ptSheet) {
    AcDbObjectId idReference;
    AddToModelSpace(new AcDbBlockReference(ptSheet, m_idBlock), idReference, m_pDatabase);
}
