#include "platform/acad/db_entity.h"

#include "platform/acad/db_database.h"
#include "platform/acad/db_filer.h"
#include "platform/acad/db_stub.h"

#include <algorithm>

ACRX_DEFINE_ABSTRACT_MEMBERS(AcDbEntity, AcDbObject)

Acad::ErrorStatus AcDbEntity::setColorIndex(Adesk::UInt16 color, Adesk::Boolean) {
    assertWriteEnabled();
    if (color > g_nColorByLayer) return Acad::eInvalidInput;
    m_nColorIndex = color;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbEntity::setLinetype(AcDbObjectId idLinetype, Adesk::Boolean) {
    assertWriteEnabled();
    if (!idLinetype.isNull()) {
        const Acad::ErrorStatus status = CheckRecord<AcDbLinetypeTableRecord>(idLinetype, database());
        if (status != Acad::eOk) return status;
    }
    m_idLinetype = idLinetype;
    return Acad::eOk;
}

std::string AcDbEntity::LinetypeName() const {
    return m_idLinetype.isNull() ? std::string("ByLayer") : SymbolName(m_idLinetype);
}

Acad::ErrorStatus AcDbEntity::setLayer(AcDbObjectId idLayer) {
    assertWriteEnabled();
    if (idLayer.isNull()) return Acad::eNullObjectId;
    const Acad::ErrorStatus status = CheckRecord<AcDbLayerTableRecord>(idLayer, database());
    if (status == Acad::eOk) m_idLayer = idLayer;
    return status;
}

std::string AcDbEntity::LayerName() const {
    return m_idLayer.isNull() ? std::string("0") : SymbolName(m_idLayer);
}

Acad::ErrorStatus AcDbEntity::setPropertiesFrom(const AcDbEntity* pOther) {
    assertWriteEnabled();
    if (!pOther) return Acad::eNullObjectPointer;
    if (database() && pOther->database() && pOther->database() != database()) return Acad::eWrongDatabase;
    // Those of a free entity may be of any drawing.
    for (const AcDbObjectId& id : {pOther->m_idLayer, pOther->m_idLinetype})
        if (database() && !id.isNull() && id.database() != database()) return Acad::eWrongDatabase;
    m_nColorIndex = pOther->m_nColorIndex;
    m_idLayer = pOther->m_idLayer;
    m_idLinetype = pOther->m_idLinetype;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbEntity::dwgOutFields(AcDbDwgFiler* pFiler) const {
    if (const Acad::ErrorStatus status = AcDbObject::dwgOutFields(pFiler); status != Acad::eOk) return status;
    pFiler->writeUInt16(m_nColorIndex);
    pFiler->writeHardPointerId(m_idLayer);
    return pFiler->writeHardPointerId(m_idLinetype);
}

Acad::ErrorStatus AcDbEntity::dwgInFields(AcDbDwgFiler* pFiler) {
    if (const Acad::ErrorStatus status = AcDbObject::dwgInFields(pFiler); status != Acad::eOk) return status;
    pFiler->readUInt16(&m_nColorIndex);
    m_nColorIndex = std::min(m_nColorIndex, g_nColorByLayer);
    pFiler->readHardPointerId(&m_idLayer);
    if (!PeekObject<AcDbLayerTableRecord>(m_idLayer)) m_idLayer.setNull();
    pFiler->readHardPointerId(&m_idLinetype);
    if (!PeekObject<AcDbLinetypeTableRecord>(m_idLinetype)) m_idLinetype.setNull();
    return pFiler->filerStatus();
}

Acad::ErrorStatus AcDbEntity::subGetGeomExtents(AcDbExtents& extents) const {
    assertReadEnabled();
    return GiveExtents(m_pPicture ? ExtentsOf(*m_pPicture) : AcDbExtents(), extents);
}

Acad::ErrorStatus AcDbEntity::GiveExtents(const AcDbExtents& box, AcDbExtents& extents) {
    if (box.isEmpty()) return Acad::eInvalidExtents;
    extents = box;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbEntity::subGetStretchPoints(AcGePoint3dArray& stretchPoints) const {
    AcDbIntArray osnapModes, geomIds;
    return subGetGripPoints(stretchPoints, osnapModes, geomIds);
}

Acad::ErrorStatus AcDbEntity::SetHighlighted(bool bHighlighted) const {
    assertReadEnabled();
    m_bHighlighted = bHighlighted;
    return Acad::eOk;
}
