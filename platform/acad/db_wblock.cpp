// Whole drawings and parts of them cloned from one into another.

#include "platform/acad/db_block_reference.h"
#include "platform/acad/db_clone.h"
#include "platform/acad/db_stub.h"
#include "platform/acad/wide_names.h"

#include <algorithm>

namespace {

std::vector<AcDbObjectId> ListOf(const AcDbObjectIdArray& ids) {
    return {ids.begin(), ids.end()};
}

AcDbObjectId PaperSpaceId(const AcDbDatabase& database) {
    return PeekObject<AcDbSymbolTable>(database.blockTableId())->Find(ACDB_PAPER_SPACE);
}

/// The variables of the source, as far as what they name has come along.
void CloneVariables(const AcDbDatabase& source, const CCloner& cloner, AcDbDatabase& target) {
    CDbVariables variables = source.Variables();
    const CDbVariables& present = target.Variables();
    const auto translate = [&](AcDbObjectId CDbVariables::*pVariable) {
        const AcDbObjectId idClone = cloner.CloneOf(variables.*pVariable);
        variables.*pVariable = idClone.isNull() ? present.*pVariable : idClone;
    };
    translate(&CDbVariables::m_idCeltype);
    translate(&CDbVariables::m_idClayer);
    translate(&CDbVariables::m_idTextstyle);
    target.SetVariables(variables);
}

/// The blocks that a block's references show.
std::vector<const AcDbBlockTableRecord*> BlocksIn(AcDbObjectId idBlock) {
    std::vector<const AcDbBlockTableRecord*> blocks;
    const CDbOpen<AcDbBlockTableRecord> block(idBlock);
    if (!block) return blocks;
    for (const AcDbObjectId id : block->EntityIds()) {
        const auto* const pReference = PeekObject<AcDbBlockReference>(id);
        if (!pReference) continue;
        const auto* const pShown = PeekObject<AcDbBlockTableRecord>(pReference->blockTableRecord());
        if (pShown) blocks.push_back(pShown);
    }
    return blocks;
}

/// Whether what the source shows in model space leads to a block of that name. Blocks that the target has
/// stand for those of their names.
bool LeadsTo(const ACHAR* name, const AcDbDatabase& source, const AcDbDatabase& target) {
    const auto* const pPresent = PeekObject<AcDbBlockTable>(target.blockTableId());
    std::vector<AcDbObjectId> arBlocks{source.ModelSpaceId()};
    for (std::size_t i = 0; i < arBlocks.size(); ++i)
        for (const AcDbBlockTableRecord* const pShown : BlocksIn(arBlocks[i])) {
            if (SameName(pShown->Name(), name)) return true;
            const AcDbObjectId idPresent = pPresent->Find(pShown->Name().c_str());
            const AcDbObjectId idStanding = idPresent.isNull() ? pShown->objectId() : idPresent;
            if (std::ranges::find(arBlocks, idStanding) == arBlocks.end()) arBlocks.push_back(idStanding);
        }
    return false;
}

/// Makes the block of that name, or takes out what it holds; it gets a base point.
Acad::ErrorStatus EmptyBlock(const AcDbDatabase& drawing, const ACHAR* name, const AcGePoint3d& base,
                             AcDbObjectId& idBlock) {
    const CDbOpen<AcDbBlockTable> table(drawing.blockTableId(), AcDb::kForWrite);
    if (!table) return table.Status();
    const AcDbObjectId idThere = table->Find(name);
    if (idThere.isNull()) {
        auto* const pBlock = new AcDbBlockTableRecord;
        pBlock->setName(name);
        pBlock->setOrigin(base);
        table->add(idBlock, pBlock);
        return pBlock->close();
    }
    if (idThere == drawing.ModelSpaceId() || idThere == PaperSpaceId(drawing)) return Acad::eInvalidInput;
    const CDbOpen<AcDbBlockTableRecord> block(idThere, AcDb::kForWrite);
    if (!block) return block.Status();
    const Acad::ErrorStatus status = EraseContents(*block.Get());
    if (status != Acad::eOk) return status;
    idBlock = idThere;
    return block->setOrigin(base);
}

/// Tables whose records come along with an inserted drawing even where nothing uses them.
void CloneStyles(const AcDbDatabase& source, CCloner& cloner) {
    for (const AcDbObjectId& idTable :
         {source.linetypeTableId(), source.layerTableId(), source.textStyleTableId(), source.regAppTableId()})
        cloner.CloneRecords(idTable);
}

} // namespace

Acad::ErrorStatus AcDbDatabase::deepCloneObjects(const AcDbObjectIdArray& objectIds, AcDbObjectId idOwner,
                                                 AcDbIdMapping& mapping, bool deferXlation) {
    if (idOwner.isNull()) return Acad::eNullObjectId;
    if (idOwner.database() != this) return Acad::eWrongDatabase;
    CCloner cloner(*this, *this, mapping, AcDb::kDrcIgnore);
    cloner.Clone(ListOf(objectIds), idOwner);
    return deferXlation ? Acad::eOk : cloner.Finish();
}

Acad::ErrorStatus AcDbDatabase::wblockCloneObjects(const AcDbObjectIdArray& objectIds, AcDbObjectId idOwner,
                                                   AcDbIdMapping& mapping, AcDb::DuplicateRecordCloning drc,
                                                   bool deferXlation) {
    if (idOwner.isNull()) return Acad::eNullObjectId;
    if (idOwner.database() == this) return Acad::eWrongDatabase;
    CCloner cloner(*this, *idOwner.database(), mapping, drc);
    cloner.Clone(ListOf(objectIds), idOwner);
    return deferXlation ? Acad::eOk : cloner.Finish();
}

Acad::ErrorStatus AcDbDatabase::wblock(AcDbDatabase*& pOutput) {
    pOutput = nullptr;
    if (m_mapStubs.empty()) return Acad::eNoDatabase;
    auto pNew = std::make_unique<AcDbDatabase>();
    AcDbIdMapping mapping;
    CCloner cloner(*this, *pNew, mapping, AcDb::kDrcReplace);
    CloneStyles(*this, cloner);
    cloner.CloneRecords(m_idBlockTable);
    cloner.CloneContents(m_idModelSpace, pNew->m_idModelSpace);
    cloner.CloneContents(PaperSpaceId(*this), PaperSpaceId(*pNew));
    cloner.CloneNamedObjects();
    const Acad::ErrorStatus status = cloner.Finish();
    CloneVariables(*this, cloner, *pNew);
    pOutput = pNew.release();
    return status;
}

Acad::ErrorStatus AcDbDatabase::wblock(AcDbDatabase*& pOutput, AcDbObjectId idBlock) {
    pOutput = nullptr;
    const auto* const pBlock = PeekObject<AcDbBlockTableRecord>(idBlock);
    if (!pBlock) return Acad::eNotThatKindOfClass;
    if (idBlock.database() != this) return Acad::eWrongDatabase;
    auto pNew = std::make_unique<AcDbDatabase>();
    AcDbIdMapping mapping;
    CCloner cloner(*this, *pNew, mapping, AcDb::kDrcReplace);
    cloner.CloneContents(idBlock, pNew->m_idModelSpace);
    const Acad::ErrorStatus status = cloner.Finish();
    CloneVariables(*this, cloner, *pNew);
    pNew->setInsbase(pBlock->origin());
    pOutput = pNew.release();
    return status;
}

Acad::ErrorStatus AcDbDatabase::wblock(AcDbDatabase*& pOutput, const AcDbObjectIdArray& objectIds,
                                       const AcGePoint3d& basePoint) {
    pOutput = nullptr;
    if (m_mapStubs.empty()) return Acad::eNoDatabase;
    auto pNew = std::make_unique<AcDbDatabase>();
    AcDbIdMapping mapping;
    CCloner cloner(*this, *pNew, mapping, AcDb::kDrcReplace);
    cloner.Clone(ListOf(objectIds), pNew->m_idModelSpace);
    const Acad::ErrorStatus status = cloner.Finish();
    CloneVariables(*this, cloner, *pNew);
    pNew->setInsbase(basePoint);
    pOutput = pNew.release();
    return status;
}

Acad::ErrorStatus AcDbDatabase::insert(AcDbObjectId& idBlock, const ACHAR* blockName, AcDbDatabase* pSource,
                                       bool) {
    if (!pSource) return Acad::eNullObjectPointer;
    if (pSource == this || !blockName || !*blockName) return Acad::eInvalidInput;
    if (m_mapStubs.empty() || pSource->m_mapStubs.empty()) return Acad::eNoDatabase;
    if (LeadsTo(blockName, *pSource, *this)) return Acad::eSelfReference;
    const Acad::ErrorStatus prepared = EmptyBlock(*this, blockName, pSource->insbase(), idBlock);
    if (prepared != Acad::eOk) return prepared;
    AcDbIdMapping mapping;
    CCloner cloner(*pSource, *this, mapping, AcDb::kDrcIgnore);
    CloneStyles(*pSource, cloner);
    cloner.CloneContents(pSource->m_idModelSpace, idBlock);
    return cloner.Finish();
}

Acad::ErrorStatus AcDbDatabase::insert(const AcGeMatrix3d& xform, AcDbDatabase* pSource, bool) {
    if (!pSource) return Acad::eNullObjectPointer;
    if (pSource == this) return Acad::eInvalidInput;
    if (m_mapStubs.empty() || pSource->m_mapStubs.empty()) return Acad::eNoDatabase;
    AcDbIdMapping mapping;
    CCloner cloner(*pSource, *this, mapping, AcDb::kDrcIgnore);
    CloneStyles(*pSource, cloner);
    cloner.CloneContents(pSource->m_idModelSpace, m_idModelSpace);
    Acad::ErrorStatus status = cloner.Finish();
    for (const AcDbIdPair& pair : mapping.Pairs()) {
        const auto* const pEntity = PeekObject<AcDbEntity>(pair.value());
        if (!pEntity || pEntity->ownerId() != m_idModelSpace || pair.value().isErased()) continue;
        const CDbOpen<AcDbEntity> entity(pair.value(), AcDb::kForWrite);
        const Acad::ErrorStatus moved = entity ? entity->transformBy(xform) : entity.Status();
        if (status == Acad::eOk) status = moved;
    }
    return status;
}
