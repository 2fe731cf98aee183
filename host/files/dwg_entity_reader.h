#pragma once

#include "host/files/dwg_common.h"
#include "host/files/dwg_reading.h"

#include <memory>

/// An entity out of its record, with the references that lead on to others.
struct CDwgReadEntity {
    std::unique_ptr<AcDbEntity> m_pEntity;
    CDwgEntityCommon m_common;
    std::uint64_t m_nFirstAttribute = 0, m_nLastAttribute = 0, m_nSequenceEnd = 0; ///< of an insertion
};

/// Makes an entity, free, of the record; a proxy for a type that a drawing here does not hold. Layers, line
/// types, styles and blocks must have been read. A number that the entity refuses stays as in a new one.
/// Throws CDwgError for data that are not those of the type.
CDwgReadEntity ReadDwgEntity(const CDwgRecord& record, const CDwgReading& reading);

/// Makes a proxy whatever the type is.
CDwgReadEntity KeepDwgEntity(const CDwgRecord& record, const CDwgReading& reading);
