#include "host/console/entity_drag.h"

#include "platform/acad/display_recorder.h"
#include "platform/acad/field_table.h"
#include "platform/acad/free_copy.h"
#include "platform/acad/table_keeper.h"

namespace {

/// A copy that shows what the entity shows: its record, and the fields that no record holds.
std::unique_ptr<AcDbEntity> CopyToDrag(const AcDbEntity& entity) {
    std::unique_ptr<AcDbEntity> pCopy = FreeCopy(entity);
    const CFieldTable* const pFields = CFieldTable::Of(entity);
    if (!pCopy || !pFields) return pCopy;
    for (int row = 0; row < pFields->Count(); ++row)
        if (!pFields->Info(row).m_bFiled) pFields->Set(*pCopy, row, pFields->Get(entity, row));
    return pCopy;
}

} // namespace

Acad::ErrorStatus DragGrips(AcDbDatabase& drawing, const CGripMove& move, CDisplayList* pPicture) {
    const CTableKeeper keeper(drawing); // drawing sets up styles and line types
    const CDbOpen<AcDbEntity> entity(move.m_id);
    const std::unique_ptr<AcDbEntity> pCopy = entity ? CopyToDrag(*entity.Get()) : nullptr;
    if (!pCopy) return Acad::eNotApplicable;
    const Acad::ErrorStatus status = pCopy->moveGripPointsAt(move.m_indices, move.m_vecOffset);
    if (status == Acad::eOk) *pPicture = DrawEntity(*pCopy, true);
    return status;
}
