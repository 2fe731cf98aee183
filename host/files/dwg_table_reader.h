#pragma once

#include "host/files/dwg_reading.h"
#include "host/files/dwg_variables.h"

/// Brings the records of the file's tables, but for blocks, into those of the drawing, in the order in which
/// the file lists them. A name that the drawing has is that record; a record without one is left for later,
/// and so are extended data, since they refer to other records. Throws CDwgError.
void ReadDwgTables(const CDwgRoots& roots, CDwgReading& reading);
