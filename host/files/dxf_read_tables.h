#pragma once

#include "host/files/dxf_drawing.h"

/// Takes a record of the section of tables. What a drawing has no place for is counted as lost.
void ReadDxfTableRecord(const CDxfRecord& record, CDxfDrawing& drawing);
