#include "host/console/drawing_order.h"

#include <algorithm>

namespace {

void AppendEntities(AcDbObjectId idBlock, std::vector<AcDbObjectId>* ids) {
    const CDbOpen<AcDbBlockTableRecord> block(idBlock);
    if (!block) return;
    const std::vector<AcDbObjectId> own = block->EntityIds();
    ids->insert(ids->end(), own.begin(), own.end());
}

void SortByHandle(std::vector<AcDbObjectId>* ids) {
    std::sort(ids->begin(), ids->end(),
              [](const AcDbObjectId& a, const AcDbObjectId& b) { return a.handle() < b.handle(); });
}

} // namespace

std::vector<AcDbObjectId> ModelSpaceEntities(AcDbDatabase& drawing) {
    std::vector<AcDbObjectId> ids;
    AppendEntities(drawing.ModelSpaceId(), &ids);
    SortByHandle(&ids);
    return ids;
}

std::vector<AcDbObjectId> AllEntities(AcDbDatabase& drawing) {
    std::vector<AcDbObjectId> ids;
    for (const AcDbObjectId& idBlock : LivingRecords(drawing.blockTableId()))
        AppendEntities(idBlock, &ids);
    SortByHandle(&ids);
    return ids;
}
