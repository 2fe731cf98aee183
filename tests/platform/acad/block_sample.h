#pragma once
// Blocks and references for tests.

#include "platform/acad/db_block_reference.h"
#include "platform/acad/db_database.h"
#include "platform/acad/db_line.h"
#include "tests/platform/acad/sample_entity.h"

/// A new block of the name, empty.
inline AcDbObjectId AddBlock(AcDbDatabase& database, const ACHAR* name) {
    return AddRecord<AcDbBlockTable>(database.blockTableId(), name, new AcDbBlockTableRecord);
}

/// Appends the entity to a block and closes it.
inline AcDbObjectId AppendTo(AcDbObjectId idBlock, AcDbEntity* pEntity) {
    const CDbOpen<AcDbBlockTableRecord> block(idBlock, AcDb::kForWrite);
    AcDbObjectId id;
    block->appendAcDbEntity(id, pEntity);
    pEntity->close();
    return id;
}

/// Appends an attribute at the point to a reference and closes it.
inline AcDbObjectId AddAttribute(AcDbObjectId idReference, const AcGePoint3d& position, const ACHAR* text,
                                 const ACHAR* tag) {
    const CDbOpen<AcDbBlockReference> reference(idReference, AcDb::kForWrite);
    auto* const pAttribute = new AcDbAttribute(position, text, tag);
    pAttribute->setHeight(1.0);
    AcDbObjectId id;
    reference->appendAttribute(id, pAttribute);
    pAttribute->close();
    return id;
}
