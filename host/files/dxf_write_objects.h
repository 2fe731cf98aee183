#pragma once

#include "host/files/dxf_structure.h"

/// Writes the section of classes: those of the objects below that not every version knows, and those of
/// entities that were written as proxies.
void WriteDxfClasses(CDxfOutput& out);

/// Writes the section of objects: the dictionary of named objects with what every drawing has in it. Other
/// named objects are counted as lost.
void WriteDxfObjects(CDxfOutput& out, const CDxfStructure& structure);
