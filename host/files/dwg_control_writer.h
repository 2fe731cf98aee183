#pragma once

#include "host/files/dwg_writing.h"

/// Appends the record of a table: its records in the order in which they stood in the file that the drawing
/// is of, those that the drawing only keeps among them, and behind them those that came later. The fixed ones
/// of its kind are not among these.
void WriteDwgControl(const CDwgWriting& writing, std::vector<CDwgRecord>& records,
                     const AcDbSymbolTable& table, std::uint16_t nType,
                     const std::vector<AcDbObjectId>& fixed);
