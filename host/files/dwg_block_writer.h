#pragma once

#include "host/files/dwg_writing.h"

/// Appends the drawing's blocks, the table of them, and all their entities.
void WriteDwgBlocks(const CDwgWriting& writing, std::vector<CDwgRecord>& records);
