#include "platform/acad/db_entity.h"

#include "platform/acad/db_database.h"
#include "platform/acad/db_stub.h"

ACRX_DEFINE_ABSTRACT_MEMBERS(AcDbEntity, AcDbObject)

namespace {

/// Whether an entity of the drawing (null: a free one) may refer to this record.
template <class T>
Acad::ErrorStatus CheckRecord(AcDbObjectId idRecord, const AcDbDatabase* pDatabase) {
    if (!PeekObject<T>(idRecord)) return Acad::eNotThatKindOfClass;
    return pDatabase && idRecord.database() != pDatabase ? Acad::eWrongDatabase : Acad::eOk;
}

} // namespace

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

Acad::ErrorStatus AcDbEntity::subGetGeomExtents(AcDbExtents& extents) const {
    assertReadEnabled();
    const AcDbExtents box = m_pPicture ? ExtentsOf(*m_pPicture) : AcDbExtents();
    if (box.isEmpty()) return Acad::eInvalidExtents;
    extents = box;
    return Acad::eOk;
}
