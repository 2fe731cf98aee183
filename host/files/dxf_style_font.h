#pragma once
// A text style's font by name in DXF; see typeface.h.

#include "host/files/dxf_writer.h"
#include "platform/acad/db_tables.h"

/// Takes the font out of the extended data of a style that was read, if it is there. A null id is none.
void TakeDxfStyleFont(AcDbObjectId idStyle);

/// Writes it, for a style that has a font by name.
void WriteDxfStyleFont(CDxfWriter& writer, const AcDbTextStyleTableRecord& style);
