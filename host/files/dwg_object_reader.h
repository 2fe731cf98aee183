#pragma once

#include "host/files/dwg_reading.h"

/// Brings all objects of the file that are no entities and were not read yet into the drawing: the
/// dictionaries that can be reached from that of named objects as such, the others as proxies, whose own
/// parts are left for later. Then every object may be referred to. Throws CDwgError.
void ReadDwgObjects(CDwgReading& reading);
