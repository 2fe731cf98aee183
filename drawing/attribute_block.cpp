#include "drawing/attribute_block.h"

#include "platform/acad/db_attribute.h"
#include "platform/acad/host_application.h"
#include "platform/windows/code_page.h"

#include <memory>

namespace {
constexpr Adesk::Int16 g_nFieldLength = 25;

void AddDefinition(AcDbBlockTableRecord& block, const AcGePoint3d& pt) {
    auto pDefinition = std::make_unique<AcDbAttributeDefinition>(pt, L"DEFAULT", L"Tag", L"");
    pDefinition->setHorizontalMode(AcDb::kTextMid);
    pDefinition->setVerticalMode(AcDb::kTextBase);
    pDefinition->setAlignmentPoint(pt);
    pDefinition->setInvisible(false);
    pDefinition->setVerifiable(true);
    pDefinition->setPreset(false);
    pDefinition->setFieldLength(g_nFieldLength);
    if (block.appendAcDbEntity(pDefinition.get()) == Acad::eOk) pDefinition.release()->close();
}
} // namespace

int MakeAttributeBlock(CString& strName, const AcGePoint3dArray& points) {
    AcDbDatabase* const pDatabase = acdbHostApplicationServices()->workingDatabase();
    if (!pDatabase || points.isEmpty()) return 0;
    strName.Format("ASDK-BLOCK-WITH-ATTR_%.2f", points[0].x);
    auto pBlock = std::make_unique<AcDbBlockTableRecord>();
    pBlock->setName(WideFromGbk(strName.View()).c_str());
    {
        const CDbOpen<AcDbBlockTable> table(pDatabase->blockTableId(), AcDb::kForWrite);
        if (!table || table->add(pBlock.get()) != Acad::eOk) return 0;
    }
    AcDbBlockTableRecord* const pStored = pBlock.release(); // the drawing's now
    for (const AcGePoint3d& pt : points)
        AddDefinition(*pStored, pt);
    return pStored->close() == Acad::eOk;
}
