#pragma once
// Entities of classes that a drawing file has no code for: they stand under their class's number with the
// record that they write themselves.

#include "host/files/dwg_classes.h"
#include "host/files/dwg_reading.h"
#include "host/files/dwg_writing.h"

#include <memory>

/// The record of an entity whose class is known at present; the class comes among the file's classes if it is
/// not there yet. Throws CDwgError for an entity that fails to write itself.
CDwgRecord WriteDwgCustomEntity(const AcDbEntity& entity, const CDwgEntityCommon& common,
                                const CDwgWriting& writing);

/// A new, free entity of a class of the file; null when it is not known at present, or not as an entity.
std::unique_ptr<AcDbEntity> MakeDwgCustomEntity(const CDwgClass& fileClass, const CDrawingText& text);

/// Lets an entity, open for writing, read its record; all that it may refer to is in the drawing. Throws
/// CDwgError unless it reads all of it.
void ReadDwgCustomEntity(AcDbEntity& entity, const CDwgRecord& record, const CDwgReading& reading);
