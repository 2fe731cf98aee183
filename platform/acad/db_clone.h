#pragma once
// Copies of objects with what belongs to them, within a drawing or into another one. For the drawing database
// itself; programs call AcDbDatabase::deepCloneObjects, wblockCloneObjects, wblock and insert.

#include "platform/acad/db_database.h"
#include "platform/acad/memory_filer.h"

/// Erases the entities of a block that is open; none of them where one cannot be opened, and then why.
Acad::ErrorStatus EraseContents(const AcDbBlockTableRecord& block);

/// One cloning. An object is made anew by its class and reads the record of its original, in which each
/// reference stands for the clone of what it referred to. What an object owns is cloned with it. Into another
/// drawing, so is what it refers to hard; there records of tables are known by their names, and a soft
/// reference to what is not cloned becomes null. Erased objects are not cloned.
class CCloner {
public:
    /// The mapping may hold the pairs of an earlier cloning that goes on.
    CCloner(const AcDbDatabase& source, AcDbDatabase& target, AcDbIdMapping& mapping,
            AcDb::DuplicateRecordCloning drc)
        : m_source(source)
        , m_target(target)
        , m_mapping(mapping)
        , m_drc(drc) {}

    /// Makes clones under an owner of the target: a block, a dictionary, another object; records of tables
    /// stand in their tables whatever the owner. Their records are read in Finish.
    void Clone(const std::vector<AcDbObjectId>& ids, AcDbObjectId idOwner);
    /// Clones the entities of a block into another one, which stands for it from now on.
    void CloneContents(AcDbObjectId idBlock, AcDbObjectId idInto);
    void CloneRecords(AcDbObjectId idTable); ///< all records of a table of the other drawing
    void CloneNamedObjects();                ///< of the other drawing, in place of the target's
    /// Brings along what belongs to the clones and reads their records. The first failure of all is returned:
    /// what could not be cloned is left out, the rest is there.
    Acad::ErrorStatus Finish();
    AcDbObjectId CloneOf(AcDbObjectId id) const; ///< null when there is none

private:
    bool IsAcross() const { return &m_source != &m_target; }
    void CloneObject(AcDbObjectId id, AcDbObjectId idOwner, bool bPrimary);
    void CloneRecord(AcDbObjectId id, bool bPrimary);
    bool MakeRoomFor(const AcDbSymbolTableRecord& original, AcDbObjectId idPresent);
    Acad::ErrorStatus Place(AcDbObjectId idSource, AcDbObject& clone, AcDbObjectId idOwner, AcDbObjectId& id);
    void BringAlong(const CFiledId& reference, AcDbObjectId idHolder);
    CDbRecord RecordWithFollowers(const AcDbIdPair& pair);
    void ReadRecord(AcDbObjectId idClone, CDbRecord record);
    AcDbObjectId Translated(const CFiledId& reference) const;
    void Note(Acad::ErrorStatus status);

    const AcDbDatabase& m_source;
    AcDbDatabase& m_target;
    AcDbIdMapping& m_mapping;
    AcDb::DuplicateRecordCloning m_drc;
    Acad::ErrorStatus m_status = Acad::eOk;
};
