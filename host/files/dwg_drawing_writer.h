#pragma once

#include "host/files/dwg_file.h"
#include "platform/acad/db_database.h"

/// A drawing as a file of it holds it: its tables, blocks, entities, dictionaries, extended data and
/// variables, and what a file has besides. Texts are in code page 936. Throws CDwgError for what a file
/// cannot hold, and for an object of a class that has no fixed place in a file. None of the objects may be
/// open for writing.
CDwgFile DwgFileOf(const AcDbDatabase& database);
