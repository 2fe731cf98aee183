#pragma once

#include "host/files/dxf_layouts.h"

/// Writes the section of tables.
void WriteDxfTables(CDxfOutput& out, const CDxfStructure& structure);
