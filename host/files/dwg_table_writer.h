#pragma once

#include "host/files/dwg_writing.h"

/// Appends the drawing's tables and their records but for blocks, and the viewport of a new drawing.
void WriteDwgTables(const CDwgWriting& writing, std::vector<CDwgRecord>& records);
