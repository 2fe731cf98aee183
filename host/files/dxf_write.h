#pragma once

#include "host/files/dxf_losses.h"
#include "platform/acad/db_database.h"

/// A DXF file, and what of the drawing it does not hold.
struct CDxfFile {
    std::string m_strBytes;
    CDxfLosses m_losses;
};

/// What custom entities are written as.
enum class CDxfCustom {
    Proxies,  ///< each with its picture and what its class has written
    Exploded, ///< the ordinary entities that they explode into
};

/// The drawing, which stays as it is, as a DXF file of R2000 in the text form, its texts in the system code
/// page.
CDxfFile WriteDxf(const AcDbDatabase& database, CDxfCustom custom = CDxfCustom::Proxies);
