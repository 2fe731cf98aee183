// GRIP and DRAG: an entity's grips are moved, or what it draws on the way is written.

#include "host/console/dump_primitives.h"
#include "host/console/host_commands.h"
#include "host/console/numbers.h"
#include "host/console/output_file.h"
#include "host/console/refusal.h"
#include "host/console/words.h"
#include "platform/acad/display_recorder.h"
#include "platform/acad/field_table.h"
#include "platform/acad/free_copy.h"
#include "platform/acad/table_keeper.h"

#include <optional>

namespace {

[[noreturn]] void Refuse(const std::string& strWhat) {
    throw CRunFailure(EXIT_NO_SUCH_ANSWER, strWhat);
}

/// An entity, the grips of it that are moved, and how far.
struct CGripMove {
    AcDbObjectId m_id;
    AcDbIntArray m_indices;
    AcGeVector3d m_vecOffset;
};

AcGePoint3dArray GripsOf(AcDbObjectId id) {
    const CDbOpen<AcDbEntity> entity(id);
    AcGePoint3dArray grips;
    AcDbIntArray osnapModes, geomIds;
    if (!entity || entity->getGripPoints(grips, osnapModes, geomIds) != Acad::eOk || grips.isEmpty())
        Refuse("#" + id.handle().Hex() + " has no grips");
    return grips;
}

AcDbIntArray AskIndices(CHost& host, int nGrips) {
    AcDbIntArray indices;
    for (const std::string& strIndex : PiecesOf(host.m_input.Text("Grips: "), ',')) {
        int nIndex = -1;
        if (!ParseWhole(strIndex, &nIndex) || nIndex < 0 || nIndex >= nGrips)
            Refuse("no such grip: " + strIndex + " (the last is " + std::to_string(nGrips - 1) + ")");
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

/// A copy that shows what the entity shows: its record, and the fields that no record holds.
std::unique_ptr<AcDbEntity> CopyToDrag(const AcDbEntity& entity) {
    std::unique_ptr<AcDbEntity> pCopy = FreeCopy(entity);
    const auto* const pFields = static_cast<const CFieldTable*>(entity.queryX(CFieldTable::desc()));
    if (!pCopy || !pFields) return pCopy;
    for (int row = 0; row < pFields->Count(); ++row)
        if (!pFields->Info(row).m_bFiled) pFields->Set(*pCopy, row, pFields->Get(entity, row));
    return pCopy;
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
    const std::string path = host.m_input.Text("File: ");
    host.m_input.End();
    const CTableKeeper keeper(host.Drawing()); // drawing sets up styles and line types
    const CDbOpen<AcDbEntity> entity(move->m_id);
    const std::unique_ptr<AcDbEntity> pCopy = entity ? CopyToDrag(*entity.Get()) : nullptr;
    const Acad::ErrorStatus status =
        pCopy ? pCopy->moveGripPointsAt(move->m_indices, move->m_vecOffset) : Acad::eNotApplicable;
    if (status != Acad::eOk) return TellRefusal(host, "drag", move->m_id, status);
    WriteOutputFile(path, JsonDisplayList(DrawEntity(*pCopy, true)).dump(1) + "\n");
}
