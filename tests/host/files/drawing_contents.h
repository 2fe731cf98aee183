#pragma once

#include "platform/acad/db_database.h"

#include <memory>
#include <string>
#include <vector>

/// The entities of exactly this class in a block, in their order, open for reading while they are held.
template <class T>
std::vector<std::shared_ptr<T>> Entities(AcDbObjectId idBlock) {
    const CDbOpen<AcDbBlockTableRecord> block(idBlock);
    std::vector<std::shared_ptr<T>> entities;
    for (const AcDbObjectId& id : block->EntityIds()) {
        T* pEntity = nullptr;
        if (acdbOpenObject(pEntity, id) != Acad::eOk) continue;
        const std::shared_ptr<T> pHeld(pEntity, [](T* pOpen) { pOpen->close(); });
        if (pEntity->isA() == T::desc()) entities.push_back(pHeld);
    }
    return entities;
}

/// The record of a table with that name; null when there is none.
inline AcDbObjectId Record(AcDbObjectId idTable, const ACHAR* name) {
    const CDbOpen<AcDbSymbolTable> table(idTable);
    return table->Find(name);
}
