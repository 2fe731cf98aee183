#include "host/console/redraw.h"

#include "host/console/drawing_order.h"
#include "platform/acad/display_recorder.h"

namespace {

void Draw(const std::vector<AcDbObjectId>& ids) {
    for (const AcDbObjectId& id : ids) {
        const CDbOpen<AcDbEntity> entity(id);
        if (entity) DrawEntity(*entity.Get());
    }
}

} // namespace

void DrawChanged(AcDbDatabase& drawing) {
    Draw(drawing.TakeChangedEntities());
}

void DrawAll(AcDbDatabase& drawing) {
    drawing.TakeChangedEntities(); // they are drawn with the others, and only once
    Draw(AllEntities(drawing));
}
