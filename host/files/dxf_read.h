#pragma once

#include "host/files/dxf_drawing.h"
#include "host/files/read_goes_on.h"

#include <string_view>

/// Reads the bytes of a DXF file, text or binary, R12 to R2018, into a new drawing, and gives what the
/// drawing does not hold of it. Throws CDxfFailure, and what CheckReadGoesOn does; the drawing is of no
/// use then.
CDxfLosses ReadDxf(std::string_view bytes, AcDbDatabase& database, const CReadGoesOn& fnGoesOn = {});
