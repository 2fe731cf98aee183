#pragma once
// Entities of the working drawing found by what they are, or picked by the user. All return 1 when there is
// one at least, and then append the ids; else 0, and the list stays as it was.

#include "platform/acad/db_object_id.h"
#include "platform/mfc/string.h"

class AcGePoint3d;

/// With extended data under the application's name.
int ObjectIdsByXDataApp(const CString& strApp, AcDbObjectIdArray& ids);
/// With a class's name as the text under "PMTCLASSNAME".
int ObjectIdsByClassName(const CString& strClass, AcDbObjectIdArray& ids);
/// Of a DXF name.
int ObjectIdsByType(const CString& strDxfName, AcDbObjectIdArray& ids);
/// What passes through the box of two corners; on one layer only, unless its name is empty.
int ObjectIdsInBox(const AcGePoint3d& ptCorner, const AcGePoint3d& ptOpposite, const CString& strLayer,
                   AcDbObjectIdArray& ids);

/// One that the user picks.
int PickEntity(const CString& strPrompt, AcDbObjectId& id);
inline constexpr const char* g_pPickAny = "\n请选择一个实体: ";
inline constexpr const char* g_pPickCentreLine = "\r\n请选择中线:";
/// As many as the user picks; the prompt is printed before.
int PickEntities(const CString& strPrompt, AcDbObjectIdArray& ids);
