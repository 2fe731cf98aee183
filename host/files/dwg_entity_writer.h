#pragma once

#include "host/files/dwg_writing.h"

/// The attributes of an insertion as they stand in the file.
struct CDwgSequence {
    std::uint64_t m_nFirst = 0, m_nLast = 0, m_nEnd = 0; ///< all 0 for none
};

/// What an entity has in common with others, but for its place in the drawing.
CDwgEntityCommon DwgEntityCommonOf(const AcDbEntity& entity, const CDwgWriting& writing);

/// The record of an entity: under its fixed type, or else as its class writes it. The common part is given;
/// the style that a text without one has is "Standard". Throws CDwgError for an entity that cannot be
/// written.
CDwgRecord WriteDwgEntity(const AcDbEntity& entity, const CDwgEntityCommon& common,
                          const CDwgSequence& attributes, const CDwgWriting& writing);
