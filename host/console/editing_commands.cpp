// Commands that change entities whatever their class: moves, copies, explosions, undo.

#include "host/console/append_entity.h"
#include "host/console/host_commands.h"
#include "host/console/refusal.h"

#include <memory>

namespace {

/// A class may refuse: the entity stays as it was, and the user is told.
bool Transform(const CHost& host, AcDbObjectId id, const AcGeMatrix3d& matrix, const std::string& strWhat) {
    const CDbOpen<AcDbEntity> entity(id, AcDb::kForWrite);
    const Acad::ErrorStatus status = entity ? entity->transformBy(matrix) : entity.Status();
    if (status != Acad::eOk) TellRefusal(host, strWhat, id, status);
    return status == Acad::eOk;
}

/// Copies in model space, in the order of the originals; those of which there can be none are left out, after
/// a word to the user.
std::vector<AcDbObjectId> Copies(const CHost& host, const std::vector<AcDbObjectId>& ids) {
    AcDbDatabase& drawing = host.Drawing();
    AcDbObjectIdArray originals;
    for (const AcDbObjectId& id : ids)
        originals.append(id);
    AcDbIdMapping mapping;
    drawing.deepCloneObjects(originals, drawing.ModelSpaceId(), mapping); // the mapping tells what came of it
    std::vector<AcDbObjectId> arCopies;
    for (const AcDbObjectId& id : ids) {
        AcDbIdPair pair(id);
        if (mapping.compute(pair) && !pair.value().isErased()) {
            arCopies.push_back(pair.value());
        } else {
            TellRefusal(host, "copy", id, Acad::eNotApplicable);
        }
    }
    return arCopies;
}

void Erase(AcDbObjectId id) {
    const CDbOpen<AcDbEntity> entity(id, AcDb::kForWrite);
    if (entity) entity->erase();
}

/// Puts the parts of an entity in its place; a part without a layer has the entity's.
void Explode(const CHost& host, AcDbObjectId id) {
    std::vector<std::unique_ptr<AcDbEntity>> arParts;
    {
        const CDbOpen<AcDbEntity> entity(id, AcDb::kForWrite);
        AcDbVoidPtrArray parts;
        const Acad::ErrorStatus status = entity ? entity->explode(parts) : entity.Status();
        for (void* const pPart : parts) // the caller's, also when a part failed
            arParts.emplace_back(static_cast<AcDbEntity*>(pPart));
        if (status != Acad::eOk) return TellRefusal(host, "explode", id, status);
        for (const std::unique_ptr<AcDbEntity>& pPart : arParts)
            if (pPart->layerId().isNull()) pPart->setLayer(entity->layerId());
        entity->erase();
    }
    for (std::unique_ptr<AcDbEntity>& pPart : arParts)
        AppendToModelSpace(host, std::move(pPart));
}

/// What most of these commands ask for first.
struct CSelection {
    std::vector<AcDbObjectId> m_arIds;
    AcGePoint3d m_ptBase;

    explicit CSelection(CHost& host)
        : m_arIds(host.m_input.Selection(host.Drawing(), "Select entities: "))
        , m_ptBase(host.m_input.Point("Base point: ")) {}
};

/// The way from the base point to a point asked for, which is the last answer.
AcGeMatrix3d AskShift(CHost& host, const AcGePoint3d& base) {
    const AcGePoint3d to = host.m_input.Point("To point: ");
    host.m_input.End();
    return AcGeMatrix3d::translation(to - base);
}

int Steps(CHost& host) {
    const double dSteps = host.m_input.Number("Number of commands: ");
    host.m_input.End();
    if (dSteps < 1.0 || dSteps > 1e6 || dSteps != static_cast<int>(dSteps))
        RefuseAnswer("a number of commands is whole and above 0");
    return static_cast<int>(dSteps);
}

} // namespace

void CommandMove(CHost& host) {
    const CSelection selection(host);
    const AcGeMatrix3d shift = AskShift(host, selection.m_ptBase);
    for (const AcDbObjectId& id : selection.m_arIds)
        Transform(host, id, shift, "move");
}

void CommandCopy(CHost& host) {
    const CSelection selection(host);
    const AcGeMatrix3d shift = AskShift(host, selection.m_ptBase);
    for (const AcDbObjectId& id : Copies(host, selection.m_arIds))
        Transform(host, id, shift, "move");
}

void CommandRotate(CHost& host) {
    const CSelection selection(host);
    const double dAngle = host.m_input.Angle("Angle: ");
    host.m_input.End();
    for (const AcDbObjectId& id : selection.m_arIds)
        Transform(host, id, AcGeMatrix3d::rotation(dAngle, AcGeVector3d::kZAxis, selection.m_ptBase),
                  "rotate");
}

void CommandScale(CHost& host) {
    const CSelection selection(host);
    const double dFactor = host.m_input.PositiveNumber("Factor: ", "a factor");
    host.m_input.End();
    for (const AcDbObjectId& id : selection.m_arIds)
        Transform(host, id, AcGeMatrix3d::scaling(dFactor, selection.m_ptBase), "scale");
}

void CommandMirror(CHost& host) {
    const std::vector<AcDbObjectId> ids = host.m_input.Selection(host.Drawing(), "Select entities: ");
    const AcGePoint3d first = host.m_input.Point("First point of the mirror line: ");
    const AcGePoint3d second = host.m_input.Point("Second point: ");
    const std::string strKeep = host.m_input.Text("keep or drop the originals: ");
    host.m_input.End();
    if (strKeep != "keep" && strKeep != "drop") RefuseAnswer("neither keep nor drop: " + strKeep);
    const AcGeVector3d along = second - first;
    if (along.isZeroLength()) RefuseAnswer("a mirror line has two points");
    const AcGeMatrix3d mirror = AcGeMatrix3d::mirroring(first, AcGeVector3d(-along.y, along.x, 0.0).normal());
    const bool bKeep = strKeep == "keep";
    for (const AcDbObjectId& id : bKeep ? Copies(host, ids) : ids)
        if (!Transform(host, id, mirror, "mirror") && bKeep) Erase(id);
}

void CommandExplode(CHost& host) {
    const std::vector<AcDbObjectId> ids = host.m_input.Selection(host.Drawing(), "Select entities: ");
    host.m_input.End();
    for (const AcDbObjectId& id : ids)
        Explode(host, id);
}

void CommandUndo(CHost& host) {
    const int nSteps = Steps(host);
    host.Print("undone: " + std::to_string(host.Drawing().UndoLog().Undo(nSteps)));
}

void CommandRedo(CHost& host) {
    const int nSteps = Steps(host);
    host.Print("redone: " + std::to_string(host.Drawing().UndoLog().Redo(nSteps)));
}
