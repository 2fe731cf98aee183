#pragma once
// Line types of a drawing, which come from the host's "acad.lin" when they are first asked for. A null
// database is the working one.

#include "platform/acad/db_database.h"
#include "platform/mfc/string.h"

inline constexpr const char* g_pDashedLinetype = "Dashed2";
inline constexpr const char* g_pContinuousLinetype = "Continuous";

/// Id of a line type; one that the drawing lacks is loaded from "acad.lin", and then the id stays as it was
/// until the next lookup. A lookup of "Dashed2" also sets the drawing's line type scale to 10. 1, or 0 when
/// it could not be loaded.
int LoadLinetypeId(const CString& strName, AcDbDatabase* pDatabase, AcDbObjectId& idLinetype);

/// Makes a line type the current one, loaded first when the drawing lacks it; the scale stays. 1, or 0 when
/// it could not be loaded.
int SetCurrentLinetype(const CString& strName, AcDbDatabase* pDatabase);
