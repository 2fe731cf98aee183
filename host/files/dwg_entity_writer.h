#pragma once

#include "host/files/dwg_writing.h"

#include <optional>

/// The attributes of an insertion as they stand in the file.
struct CDwgSequence {
    std::uint64_t m_nFirst = 0, m_nLast = 0, m_nEnd = 0; ///< all 0 for none
};

/// The record of a line, arc, polyline, spline, text, attribute, attribute definition or insertion; nothing
/// for an entity of another class. The common part is given; the style that a text without one has is
/// "Standard".
std::optional<CDwgRecord> WriteDwgEntity(const AcDbEntity& entity, const CDwgEntityCommon& common,
                                         const CDwgSequence& attributes, const CDwgWriting& writing);
