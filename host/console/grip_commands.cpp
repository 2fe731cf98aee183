// GRIP and DRAG: an entity's grips are moved, or what it draws on the way is written.

#include "host/console/dump_primitives.h"
#include "host/console/entity_drag.h"
#include "host/console/host_commands.h"
#include "host/console/numbers.h"
#include "host/console/output_file.h"
#include "host/console/refusal.h"
#include "host/console/words.h"

#include <optional>

namespace {

AcGePoint3dArray GripsOf(AcDbObjectId id) {
    const CDbOpen<AcDbEntity> entity(id);
    AcGePoint3dArray grips;
    AcDbIntArray osnapModes, geomIds;
    if (!entity || entity->getGripPoints(grips, osnapModes, geomIds) != Acad::eOk || grips.isEmpty())
        RefuseAnswer("#" + id.handle().Hex() + " has no grips");
    return grips;
}

AcDbIntArray AskIndices(CHost& host, int nGrips) {
    AcDbIntArray indices;
    for (const std::string& strIndex : PiecesOf(host.m_input.Text("Grips: "), ',')) {
        int nIndex = -1;
        if (!ParseWhole(strIndex, &nIndex) || nIndex < 0 || nIndex >= nGrips)
            RefuseAnswer("no such grip: " + strIndex + " (the last is " + std::to_string(nGrips - 1) + ")");
        indices.append(nIndex);
    }
    return indices;
}

/// None when nothing is picked.
std::optional<CGripMove> AskGripMove(CHost& host) {
    CGripMove move;
    move.m_id = host.m_input.Entity(host.Drawing(), "Select an entity: ");
    if (move.m_id.isNull()) return std::nullopt;
    const AcGePoint3dArray grips = GripsOf(move.m_id);
    move.m_indices = AskIndices(host, grips.length());
    move.m_vecOffset = host.m_input.Offset("To point: ", grips[move.m_indices[0]]);
    return move;
}

} // namespace

void CommandGrip(CHost& host) {
    const std::optional<CGripMove> move = AskGripMove(host);
    host.m_input.End();
    if (!move) return;
    const CDbOpen<AcDbEntity> entity(move->m_id, AcDb::kForWrite);
    const Acad::ErrorStatus status =
        entity ? entity->moveGripPointsAt(move->m_indices, move->m_vecOffset) : entity.Status();
    if (status != Acad::eOk) TellRefusal(host, "move a grip of", move->m_id, status);
}

void CommandDrag(CHost& host) {
    const std::optional<CGripMove> move = AskGripMove(host);
    if (!move) return;
    const std::string path = host.m_input.FileToSave("File: ", ".json");
    host.m_input.End();
    CDisplayList picture;
    const Acad::ErrorStatus status = DragGrips(host.Drawing(), *move, &picture);
    if (status != Acad::eOk) return TellRefusal(host, "drag", move->m_id, status);
    WriteOutputFile(path, JsonDisplayList(picture).dump(1) + "\n");
}
