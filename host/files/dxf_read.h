#pragma once

#include "host/files/dxf_drawing.h"

#include <string_view>

/// Reads the bytes of a DXF file, text or binary, R12 to R2018, into a new drawing, and gives what the
/// drawing does not hold of it. Throws CDxfFailure; the drawing is of no use then.
CDxfLosses ReadDxf(std::string_view bytes, AcDbDatabase& database);
