#pragma once
// One named value on an entity, as extended data: a chain of the application's name and the value.

#include "platform/acad/db_object.h"
#include "platform/mfc/string.h"

class AcDbEntity;

/// What a number is when none could be read.
inline constexpr double g_dNoXData = -3.4e36;
inline constexpr float g_fNoXData = -340000.0F;

// 1 when the entity could be opened and has a value of this kind under the name. Else 0, and the value is the
// default: an empty text, g_dNoXData (in all coordinates of a point), g_fNoXData; a whole number stays.
int GetXDataText(AcDbObjectId idEntity, const CString& strApp, CString& strValue);
int GetXDataDouble(AcDbObjectId idEntity, const CString& strApp, double& dValue);
int GetXDataFloat(AcDbObjectId idEntity, const CString& strApp, float& fValue); ///< of a double's item
int GetXDataPoint(AcDbObjectId idEntity, const CString& strApp, AcGePoint3d& point);
int GetXDataInt(AcDbObjectId idEntity, const CString& strApp, Adesk::Int32& nValue);
/// The same of an entity that is open already, and stays so.
int GetXDataText(const AcDbEntity* pEntity, const CString& strApp, CString& strValue);

// Registers the name in the working drawing and puts the value in place of the one there; other names' values
// stay. 1 when the object could be opened.
int SetXDataText(AcDbObjectId idObject, const CString& strApp, const CString& strValue);
int SetXDataDouble(AcDbObjectId idObject, const CString& strApp, double dValue);
int SetXDataPoint(AcDbObjectId idObject, const CString& strApp, const AcGePoint3d& point);
int SetXDataInt(AcDbObjectId idObject, const CString& strApp, Adesk::Int32 nValue);
