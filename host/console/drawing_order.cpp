#include "host/console/drawing_order.h"

#include <algorithm>

namespace {

void SortByHandle(std::vector<AcDbObjectId>* ids) {
    std::sort(ids->begin(), ids->end(),
              [](const AcDbObjectId& a, const AcDbObjectId& b) { return a.handle() < b.handle(); });
}

} // namespace

std::vector<AcDbObjectId> EntitiesInOrder(const AcDbBlockTableRecord& block) {
    std::vector<AcDbObjectId> ids = block.EntityIds();
    SortByHandle(&ids);
    return ids;
}

std::vector<AcDbObjectId> ModelSpaceEntities(AcDbDatabase& drawing) {
    const CDbOpen<AcDbBlockTableRecord> space(drawing.ModelSpaceId());
    return space ? EntitiesInOrder(*space.Get()) : std::vector<AcDbObjectId>();
}

std::vector<AcDbObjectId> AllEntities(AcDbDatabase& drawing) {
    std::vector<AcDbObjectId> ids;
    for (const AcDbObjectId& idBlock : LivingRecords(drawing.blockTableId())) {
        const CDbOpen<AcDbBlockTableRecord> block(idBlock);
        if (!block) continue;
        const std::vector<AcDbObjectId> own = block->EntityIds();
        ids.insert(ids.end(), own.begin(), own.end());
    }
    SortByHandle(&ids);
    return ids;
}
