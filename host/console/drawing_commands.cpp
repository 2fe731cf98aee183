#include "host/console/host_commands.h"
#include "host/console/numbers.h"
#include "host/console/texts.h"
#include "platform/windows/code_page.h"

namespace {

std::string ExtentsText(const AcDbEntity& entity) {
    AcDbExtents extents;
    if (entity.getGeomExtents(extents) != Acad::eOk) return "none";
    const AcGePoint3d low = extents.minPoint(), high = extents.maxPoint();
    return NumberText(low.x) + "," + NumberText(low.y) + " to " + NumberText(high.x) + "," +
           NumberText(high.y);
}

} // namespace

void CommandErase(CHost& host) {
    const std::vector<AcDbObjectId> ids = host.m_input.Selection(host.Drawing(), "Select entities: ");
    host.m_input.End();
    for (const AcDbObjectId& id : ids) {
        const CDbOpen<AcDbEntity> entity(id, AcDb::kForWrite);
        const Acad::ErrorStatus status = entity ? entity->erase() : entity.Status();
        if (status != Acad::eOk)
            RefuseAnswer("cannot erase #" + id.handle().Hex() + ": " + Acad::ErrorStatusText(status));
    }
}

void CommandList(CHost& host) {
    const AcDbObjectId id = host.m_input.Entity(host.Drawing(), "Select an entity: ");
    host.m_input.End();
    if (id.isNull()) return;
    const CDbOpen<AcDbEntity> entity(id);
    if (!entity)
        RefuseAnswer("cannot open #" + id.handle().Hex() + ": " + Acad::ErrorStatusText(entity.Status()));
    host.Print("#" + id.handle().Hex() + " " + Utf8FromWide(entity->isA()->name()));
    host.Print("layer " + ToUtf8(entity->LayerName()));
    host.Print("color " + std::to_string(entity->colorIndex()));
    host.Print("linetype " + ToUtf8(entity->LinetypeName()));
    host.Print("extents " + ExtentsText(*entity.Get()));
}
