#pragma once

#include "platform/acad/db_database.h"
#include "platform/mfc/string.h"

/// The id of a layer; what the lookup answers comes back. A null database is the working one.
Acad::ErrorStatus LayerIdByName(const CString& strName, AcDbObjectId& idLayer, AcDbDatabase* pDatabase);

/// Gives layer "0" of the working drawing a line type by name; one that the drawing lacks is told and
/// replaced by CONTINUOUS. 1 when the layer could be changed.
int SetLayerZeroLinetype(const CString& strName);
