#include "drawing/insert_block.h"

#include "commands/text_conversion.h"
#include "data/show_message.h"
#include "drawing/block_attributes.h"
#include "drawing/drawing_file.h"
#include "drawing/xdata.h"
#include "platform/acad/db_block_reference.h"
#include "platform/acad/selection.h"

#include <algorithm>
#include <memory>

namespace {
AcGePoint3d FirstStretchPoint(AcDbObjectId idEntity) {
    AcGePoint3dArray points;
    if (const CDbOpen<AcDbEntity> entity(idEntity); entity) entity->getStretchPoints(points);
    return points.isEmpty() ? AcGePoint3d() : points[0];
}

AcDbObjectId LastEntity() {
    ads_name name{};
    AcDbObjectId idLast;
    if (acdbEntLast(name) == RTNORM) acdbGetObjectId(idLast, name);
    return idLast;
}
} // namespace

int CInsertBlock::InsertBlockDef(const CString& strFile, const CString& strName, AcDbDatabase* pDatabase) {
    CString strFound;
    if (!FindDrawingFile(strFile, strFound)) {
        ShowMessage("找不到文件:\r\n" + strFile);
        return 0;
    }
    const std::unique_ptr<AcDbDatabase> pCopy = CopyOfDrawing(strFound);
    m_strBlockName = strName;
    if (!pCopy || pDatabase->insert(m_idBlockDef, ToWide(strName), pCopy.get(), true) != Acad::eOk) return 0;
    const CDbOpen<AcDbBlockTable> table(pDatabase->blockTableId());
    return table && table->has(ToWide(strName)) ? 1 : 0;
}

AcDbObjectId CInsertBlock::InsertReference(const AcGePoint3d& ptPosition, double dRotation, double dXScale,
                                           double dYScale, AcDbDatabase* pDatabase) {
    auto pNew = std::make_unique<AcDbBlockReference>(ptPosition, m_idBlockDef);
    pNew->setRotation(dRotation);
    pNew->setScaleFactors({dXScale, dYScale, 1.0});
    {
        const CDbOpen<AcDbBlockTableRecord> space(pDatabase->ModelSpaceId(), AcDb::kForWrite);
        if (!space || space->appendAcDbEntity(m_idLastRef, pNew.get()) != Acad::eOk)
            return AcDbObjectId::kNull;
    }
    AcDbBlockReference* const pReference = pNew.release(); // the drawing's now
    const CDbOpen<AcDbBlockTableRecord> definition(m_idBlockDef);
    if (!definition) return AcDbObjectId::kNull;
    AppendAttributes(*definition.Get(), *pReference);
    pReference->close();
    return m_idLastRef;
}

void CInsertBlock::FillAttributes(AcDbObjectId idReference, const CStringArray& saKeys,
                                  const CStringArray& saValues) {
    CTextsByTag values;
    for (int i = 0; i < std::min(saKeys.GetSize(), saValues.GetSize()); ++i)
        values.SetAt(saKeys[i], saValues[i]);
    const CDbOpen<AcDbBlockReference> reference(idReference);
    if (!reference) return;
    for (const AcDbObjectId idAttribute : reference->AttributeIds())
        if (const CDbOpen<AcDbAttribute> attribute(idAttribute, AcDb::kForWrite); attribute)
            FillAttribute(*attribute.Get(), values);
}

int CInsertBlock::StampFrame(const AcGePoint3d& ptBase, const CString& strName, double dFL, double dFB,
                             double dFA) {
    const AcDbObjectId idFrame = LastEntity();
    const AcGePoint3d ptHeld = FirstStretchPoint(idFrame);
    SetXDataText(idFrame, "TKCLASS", "TK");
    SetXDataText(idFrame, "NAME", strName);
    SetXDataPoint(idFrame, "BASEPOINT", ptBase);
    SetXDataDouble(idFrame, "FL", dFL);
    SetXDataDouble(idFrame, "FB", dFB);
    SetXDataDouble(idFrame, "FA", dFA);
    SetXDataDouble(idFrame, "fXDist", ptBase.x - ptHeld.x);
    SetXDataDouble(idFrame, "fYDist", ptBase.y - ptHeld.y);
    return 1;
}
