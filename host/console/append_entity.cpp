#include "host/console/append_entity.h"

AcDbObjectId AppendToModelSpace(const CHost& host, std::unique_ptr<AcDbEntity> pEntity) {
    const CDbOpen<AcDbBlockTableRecord> space(host.Drawing().ModelSpaceId(), AcDb::kForWrite);
    AcDbObjectId id;
    if (!space || space->appendAcDbEntity(id, pEntity.get()) != Acad::eOk)
        RefuseAnswer("model space takes no entity now");
    pEntity.release()->close();
    return id;
}
