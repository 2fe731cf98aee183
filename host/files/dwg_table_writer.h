#pragma once

#include "host/files/dwg_writing.h"

/// Appends the drawing's tables and their records but for blocks, its viewport, and its dictionaries.
void WriteDwgTables(const CDwgWriting& writing, std::vector<CDwgRecord>& records);
