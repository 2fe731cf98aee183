#pragma once

#include "host/files/dwg_reading.h"

/// Brings the file's blocks, then all its entities, into the drawing; tables must have been read. An entity
/// that a drawing here does not hold stands as a proxy. Throws CDwgError.
void ReadDwgBlocks(CDwgReading& reading);
