#pragma once

#include "host/files/dxf_output.h"

/// A class of entities that files have a type for.
struct CDxfEntityType {
    AcRxClass* (*m_pClass)();
    /// Writes the groups behind those that all entities have. False for an entity that no file can hold.
    bool (*m_pWrite)(CDxfOutput&, const AcDbEntity&);
};

/// The type that an entity is written as; null for a custom entity.
const CDxfEntityType* DxfEntityType(const AcDbEntity& entity);
