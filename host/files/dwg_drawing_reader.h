#pragma once

#include "host/files/dwg_file.h"
#include "platform/acad/db_database.h"

#include <memory>

/// The drawing that a file holds: tables, blocks, lines and curves, texts, insertions with their attributes,
/// entities of registered classes, extended data and variables, each object under the handle that it has in
/// the file. Dictionaries and other objects without a picture are left out. Throws CDwgError, also for an
/// entity of another class.
std::unique_ptr<AcDbDatabase> DrawingOfDwg(const CDwgFile& file);
