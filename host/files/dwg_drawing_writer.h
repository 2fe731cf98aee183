#pragma once

#include "host/files/dwg_file.h"
#include "platform/acad/db_database.h"

/// A drawing as a file of it holds it: all that is in it, and of one that was read from a drawing file all
/// else that this had; a new one has what every file has besides. Texts are in the code page that the drawing
/// came with, or 936. Throws CDwgError for what a file cannot hold, and for an object that fails to write
/// itself. None of the objects may be open for writing.
CDwgFile DwgFileOf(const AcDbDatabase& database);
