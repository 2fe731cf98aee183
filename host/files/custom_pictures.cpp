#include "host/files/custom_pictures.h"

#include "host/files/dxf_entity_types.h"
#include "host/files/proxy_graphics.h"
#include "platform/acad/display_recorder.h"
#include "platform/acad/table_keeper.h"

CCustomPictures::CCustomPictures(const AcDbDatabase& database, const CDrawingText& text) {
    const CTableKeeper keeper(*database.ModelSpaceId().database());
    for (const AcDbObjectId& idBlock : LivingRecords(database.blockTableId())) {
        const CDbOpen<AcDbBlockTableRecord> block(idBlock);
        if (!block) continue;
        for (const AcDbObjectId& id : block->EntityIds()) {
            const CDbOpen<AcDbEntity> entity(id);
            if (!entity || DxfEntityType(*entity.Get())) continue;
            CDisplayRecorder recorder(*entity.Get());
            entity->saveAs(&recorder, AcDb::kR14Save);
            if (const CDisplayList picture = recorder.Take(); !picture.empty())
                m_mapPictures.emplace(id.handle(), WriteProxyGraphics(picture, text));
        }
    }
}

const CBytes* CCustomPictures::Of(const AcDbEntity& entity) const {
    const auto found = m_mapPictures.find(entity.handle());
    return found == m_mapPictures.end() ? nullptr : &found->second;
}
