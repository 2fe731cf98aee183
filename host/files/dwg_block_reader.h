#pragma once

#include "host/files/dwg_reading.h"

/// Brings the file's blocks, then all their entities, into the drawing; tables must have been read. Throws
/// CDwgError, also for an entity of a class that a drawing here does not hold.
void ReadDwgBlocks(CDwgReading& reading);
