#pragma once

#include "host/files/dxf_structure.h"

/// Writes the section of tables.
void WriteDxfTables(CDxfOutput& out, const CDxfStructure& structure);
