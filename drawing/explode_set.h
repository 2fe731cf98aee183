#pragma once

#include "platform/acad/db_entity.h"

#include <memory>

/// Appends an entity to an explode form, whose owner owns it then. The array holds plain pointers that are
/// read back as AcDbEntity, so they have to be written as such.
inline void HandOver(AcDbVoidPtrArray& entitySet, std::unique_ptr<AcDbEntity> pEntity) {
    entitySet.append(pEntity.get());
    static_cast<void>(pEntity.release());
}
