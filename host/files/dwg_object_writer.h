#pragma once

#include "host/files/dwg_writing.h"

/// Appends the dictionary of named objects, with those that every file of a new drawing has, and all objects
/// that stand in no table and in no block. Throws CDwgError for one that fails to write itself.
void WriteDwgObjects(const CDwgWriting& writing, std::vector<CDwgRecord>& records);
