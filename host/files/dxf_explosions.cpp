#include "host/files/dxf_explosions.h"

#include "host/files/dxf_entity_types.h"

CDxfExplosions::CDxfExplosions(const AcDbDatabase& database)
    : m_keeper(*database.ModelSpaceId().database()) {
    const CDbVariables variables = database.Variables();
    for (const AcDbObjectId& idBlock : LivingRecords(database.blockTableId())) {
        const CDbOpen<AcDbBlockTableRecord> block(idBlock);
        for (const AcDbObjectId& id : block->EntityIds()) {
            const CDbOpen<AcDbEntity> entity(id);
            if (!entity || DxfEntityType(*entity.Get())) continue;
            AcDbVoidPtrArray parts;
            const Acad::ErrorStatus status = entity->explode(parts);
            CParts arParts; // ours to release, also when it failed
            for (void* const pPart : parts)
                arParts.emplace_back(static_cast<AcDbEntity*>(pPart));
            if (status == Acad::eOk) m_mapParts.emplace(id.handle(), std::move(arParts));
        }
    }
    database.ModelSpaceId().database()->SetVariables(variables); // which are written too
}

const CDxfExplosions::CParts* CDxfExplosions::PartsOf(const AcDbEntity& entity) const {
    const auto found = m_mapParts.find(entity.handle());
    return found == m_mapParts.end() ? nullptr : &found->second;
}
