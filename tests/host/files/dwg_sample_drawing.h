#pragma once

#include "platform/acad/db_block_reference.h"
#include "platform/acad/db_line.h"

// Parts of drawings that tests write and read.

inline AcDbObjectId AppendTo(AcDbObjectId idBlock, AcDbEntity* pEntity) {
    const CDbOpen<AcDbBlockTableRecord> block(idBlock, AcDb::kForWrite);
    AcDbObjectId id;
    block->appendAcDbEntity(id, pEntity);
    pEntity->close();
    return id;
}

/// Adds a new record to a table.
template <class Record>
AcDbObjectId AddRecord(AcDbObjectId idTable, const ACHAR* name, Record* pRecord) {
    const CDbOpen<AcDbSymbolTable> table(idTable, AcDb::kForWrite);
    pRecord->setName(name);
    AcDbObjectId id;
    table->add(id, pRecord);
    pRecord->close();
    return id;
}

inline AcDbObjectId AddBlock(AcDbDatabase& database, const ACHAR* name) {
    return AddRecord(database.blockTableId(), name, new AcDbBlockTableRecord);
}

inline void AppendAttribute(AcDbObjectId idReference, AcDbAttribute* pAttribute) {
    const CDbOpen<AcDbBlockReference> reference(idReference, AcDb::kForWrite);
    reference->appendAttribute(pAttribute);
    pAttribute->close();
}
