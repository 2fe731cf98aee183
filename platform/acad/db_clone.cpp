#include "platform/acad/db_clone.h"

#include "platform/acad/db_stub.h"

#include <deque>

namespace {

/// What every drawing has one of.
constexpr AcDbObjectId (AcDbDatabase::*g_arCommon[])() const = {
    &AcDbDatabase::blockTableId,     &AcDbDatabase::layerTableId,  &AcDbDatabase::linetypeTableId,
    &AcDbDatabase::textStyleTableId, &AcDbDatabase::regAppTableId, &AcDbDatabase::namedObjectsDictionaryId,
};

bool IsSpace(const AcDbSymbolTableRecord& record) {
    return record.Name() == ACDB_MODEL_SPACE || record.Name() == ACDB_PAPER_SPACE;
}

std::vector<AcDbObjectId> ContentsOf(AcDbObjectId idBlock) {
    const CDbOpen<AcDbBlockTableRecord> block(idBlock);
    return block ? block->EntityIds() : std::vector<AcDbObjectId>();
}

/// Puts a clone into a dictionary under the name that its original has in its own.
Acad::ErrorStatus PlaceInDictionary(AcDbObjectId idSource, AcDbObject& clone, AcDbDictionary& dictionary,
                                    AcDbObjectId& id) {
    const CDbOpen<AcDbDictionary> from(PeekObject<AcDbObject>(idSource)->ownerId());
    std::wstring strName;
    const Acad::ErrorStatus status = from ? from->nameAt(idSource, strName) : from.Status();
    return status == Acad::eOk ? dictionary.setAt(strName.c_str(), &clone, id) : status;
}

} // namespace

Acad::ErrorStatus EraseContents(const AcDbBlockTableRecord& block) {
    std::deque<CDbOpen<AcDbEntity>> entities; // all of them before the first goes
    for (const AcDbObjectId& id : block.EntityIds())
        if (!entities.emplace_back(id, AcDb::kForWrite)) return entities.back().Status();
    for (const CDbOpen<AcDbEntity>& entity : entities)
        entity->erase();
    return Acad::eOk;
}

void CCloner::Note(Acad::ErrorStatus status) {
    if (m_status == Acad::eOk) m_status = status;
}

AcDbObjectId CCloner::CloneOf(AcDbObjectId id) const {
    AcDbIdPair pair(id);
    if (id.isNull() || m_mapping.compute(pair)) return pair.value();
    if (IsAcross())
        for (const auto common : g_arCommon)
            if ((m_source.*common)() == id) return (m_target.*common)();
    return AcDbObjectId::kNull;
}

void CCloner::Clone(const std::vector<AcDbObjectId>& ids, AcDbObjectId idOwner) {
    for (const AcDbObjectId& id : ids) {
        if (id.isNull()) {
            Note(Acad::eNullObjectId);
        } else if (id.database() != &m_source) {
            Note(Acad::eWrongDatabase);
        } else if (!PeekObject<AcDbSymbolTableRecord>(id)) {
            CloneObject(id, idOwner, true);
        } else if (IsAcross()) {
            CloneRecord(id, true);
        } else {
            Note(Acad::eDuplicateRecordName); // no second record of its name
        }
    }
}

void CCloner::CloneContents(AcDbObjectId idBlock, AcDbObjectId idInto) {
    m_mapping.assign(AcDbIdPair(idBlock, idInto));
    Clone(ContentsOf(idBlock), idInto);
}

void CCloner::CloneRecords(AcDbObjectId idTable) {
    for (const AcDbObjectId& id : PeekObject<AcDbSymbolTable>(idTable)->RecordIds())
        CloneRecord(id, true);
}

void CCloner::CloneNamedObjects() {
    m_mapping.assign(
        AcDbIdPair(m_source.namedObjectsDictionaryId(), m_target.namedObjectsDictionaryId(), true, true));
}

void CCloner::CloneObject(AcDbObjectId id, AcDbObjectId idOwner, bool bPrimary) {
    if (id.isErased() || !CloneOf(id).isNull()) return;
    std::unique_ptr<AcDbObject> pClone = PeekObject<AcDbObject>(id)->NewOfSameClass();
    if (!pClone) return Note(Acad::eNotApplicable);
    AcDbObjectId idClone;
    const Acad::ErrorStatus status = Place(id, *pClone, idOwner, idClone);
    if (status != Acad::eOk) return Note(status);
    pClone.release()->close();
    m_mapping.assign(AcDbIdPair(id, idClone, true, bPrimary));
}

Acad::ErrorStatus CCloner::Place(AcDbObjectId idSource, AcDbObject& clone, AcDbObjectId idOwner,
                                 AcDbObjectId& id) {
    if (PeekObject<AcDbBlockTableRecord>(idOwner)) {
        const CDbOpen<AcDbBlockTableRecord> block(idOwner, AcDb::kForWrite);
        return block ? block->appendAcDbEntity(id, AcDbEntity::cast(&clone)) : block.Status();
    }
    if (PeekObject<AcDbDictionary>(idOwner)) {
        const CDbOpen<AcDbDictionary> dictionary(idOwner, AcDb::kForWrite);
        return dictionary ? PlaceInDictionary(idSource, clone, *dictionary.Get(), id) : dictionary.Status();
    }
    return m_target.AddObject(id, &clone, idOwner);
}

/// Readies a record that is there for becoming like another one of its name. False when it has to stay.
bool CCloner::MakeRoomFor(const AcDbSymbolTableRecord& original, AcDbObjectId idPresent) {
    if (IsSpace(original)) return false;
    if (!PeekObject<AcDbBlockTableRecord>(idPresent)) return true;
    const CDbOpen<AcDbBlockTableRecord> block(idPresent);
    const Acad::ErrorStatus status = block ? EraseContents(*block.Get()) : block.Status();
    Note(status);
    return status == Acad::eOk;
}

void CCloner::CloneRecord(AcDbObjectId id, bool bPrimary) {
    if (id.isErased() || !CloneOf(id).isNull()) return;
    const auto& original = *PeekObject<AcDbSymbolTableRecord>(id);
    const AcDbObjectId idTable = CloneOf(original.ownerId());
    const AcDbObjectId idPresent = PeekObject<AcDbSymbolTable>(idTable)->Find(original.Name().c_str());
    if (!idPresent.isNull()) {
        const bool bReplaced = m_drc == AcDb::kDrcReplace && MakeRoomFor(original, idPresent);
        m_mapping.assign(AcDbIdPair(id, idPresent, bReplaced, bPrimary));
        return;
    }
    std::unique_ptr<AcDbObject> pClone = original.NewOfSameClass();
    auto* const pRecord = AcDbSymbolTableRecord::cast(pClone.get());
    const CDbOpen<AcDbSymbolTable> table(idTable, AcDb::kForWrite);
    if (!pRecord || !table) return Note(table ? Acad::eNotApplicable : table.Status());
    pRecord->setName(original.Name().c_str());
    AcDbObjectId idClone;
    if (const Acad::ErrorStatus status = table->add(idClone, pRecord); status != Acad::eOk)
        return Note(status);
    pClone.release()->close();
    m_mapping.assign(AcDbIdPair(id, idClone, true, bPrimary));
}

/// Clones what a record refers to, where it must be there for the clone; idHolder is that clone.
void CCloner::BringAlong(const CFiledId& reference, AcDbObjectId idHolder) {
    const AcDbObjectId id = reference.m_id;
    if (id.isNull()) return;
    if (reference.IsOwnership()) return CloneObject(id, idHolder, false);
    if (reference.m_kind != CFiledId::CKind::HardPointer || !IsAcross()) return;
    if (PeekObject<AcDbSymbolTableRecord>(id)) return CloneRecord(id, false);
    const AcDbObjectId idOwner = CloneOf(PeekObject<AcDbObject>(id)->ownerId());
    const bool bHomeless = idOwner.isNull() && PeekObject<AcDbEntity>(id);
    CloneObject(id, bHomeless ? m_target.ModelSpaceId() : idOwner, false);
}

/// The record that the clone will read, all that belongs to it being cloned as well.
CDbRecord CCloner::RecordWithFollowers(const AcDbIdPair& pair) {
    const CDbOpen<AcDbObject> original(pair.key());
    if (!original) {
        Note(original.Status());
        return {};
    }
    CDbRecord record =
        RecordOf(*original.Get(), IsAcross() ? AcDb::kWblockCloneFiler : AcDb::kDeepCloneFiler);
    for (const CFiledId& reference : record.m_arIds)
        BringAlong(reference, pair.value());
    if (const auto* const pBlock = AcDbBlockTableRecord::cast(original.Get())) // files no list
        for (const AcDbObjectId& id : pBlock->EntityIds())
            CloneObject(id, pair.value(), false);
    return record;
}

AcDbObjectId CCloner::Translated(const CFiledId& reference) const {
    const AcDbObjectId idClone = CloneOf(reference.m_id);
    const bool bStays = idClone.isNull() && !IsAcross() && !reference.IsOwnership();
    return bStays ? reference.m_id : idClone;
}

/// A clone that cannot read the record is erased.
void CCloner::ReadRecord(AcDbObjectId idClone, CDbRecord record) {
    for (CFiledId& reference : record.m_arIds)
        reference.m_id = Translated(reference);
    const CDbOpen<AcDbObject> clone(idClone, AcDb::kForWrite);
    if (!clone) return Note(clone.Status());
    CRecordReader reader(IsAcross() ? AcDb::kWblockCloneFiler : AcDb::kDeepCloneFiler, record);
    const Acad::ErrorStatus status = clone->dwgIn(&reader);
    if (status == Acad::eOk) return;
    Note(status);
    clone->erase();
}

Acad::ErrorStatus CCloner::Finish() {
    const std::size_t first = m_mapping.m_nRead;
    std::vector<CDbRecord> arRecords;
    for (std::size_t i = first; i < m_mapping.m_arPairs.size(); ++i) { // the list grows meanwhile
        const AcDbIdPair pair = m_mapping.m_arPairs[i];
        arRecords.push_back(pair.isCloned() ? RecordWithFollowers(pair) : CDbRecord());
    }
    for (std::size_t i = 0; i < arRecords.size(); ++i) {
        const AcDbIdPair& pair = m_mapping.m_arPairs[first + i];
        if (pair.isCloned()) ReadRecord(pair.value(), std::move(arRecords[i]));
    }
    m_mapping.m_nRead = m_mapping.m_arPairs.size();
    return m_status;
}
