#pragma once

#include "host/files/dwg_writing.h"
#include "platform/acad/db_entity.h"

/// The neighbours of an entity that stands in no block, as its own record names them.
struct CDwgNeighbours {
    CDwgHandle m_hPrevious = SoftPointer(0), m_hNext = SoftPointer(0);
};
CDwgNeighbours DwgNeighboursOf(const AcDbEntity& entity, const CDwgWriting& writing);

/// Writes what the class of an object has of its own behind what all objects have, and gives the type under
/// which the object stands; a class comes among the file's classes if it is not there yet. Throws CDwgError
/// for an object that fails to write itself.
std::uint16_t WriteDwgOwnPart(CDwgRecordWriter& io, const AcDbObject& object, const CDwgWriting& writing);
