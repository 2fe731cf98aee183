#pragma once

#include "host/files/dxf_losses.h"
#include "platform/acad/db_database.h"

/// A DXF file, and what of the drawing it does not hold.
struct CDxfFile {
    std::string m_strBytes;
    CDxfLosses m_losses;
};

/// The drawing as a DXF file of R2000 in the text form, its texts in the system code page. Custom entities
/// are written as what they explode into.
CDxfFile WriteDxf(const AcDbDatabase& database);
