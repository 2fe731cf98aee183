#pragma once
// Objects that drawings here know nothing of but what all objects have: they stand as proxies, with the rest
// of their records as it is.

#include "host/files/dwg_reading.h"
#include "platform/acad/db_proxy.h"

/// What the class of an object in the file is called.
CProxyOrigin DwgProxyOrigin(const CDwgRecord& record, const CDwgReading& reading);

/// Gives the proxies among what was made of the file the rests of their records; all that these may refer to
/// is in the drawing. Throws CDwgError.
void ReadDwgOwnParts(const CDwgReading& reading);

/// Gives the proxies the pictures that the file keeps of them.
void ShowDwgProxies(const CDwgReading& reading);
