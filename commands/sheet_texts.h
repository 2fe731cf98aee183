#pragma once
// The texts that stand on a sheet beside its charts.

#include "platform/acad/geometry.h"
#include "platform/mfc/string.h"

class CBRENDlg;

/// Adds a level text to model space of the working drawing, in no style of its own. dHeight in drawing units.
void AddSheetText(const AcGePoint3d& ptPosition, const CString& strText, double dHeight = 2.5);

/// Adds a support drawing of the suite of that name (a path's folders are left out) to model space of the
/// working drawing, as a block; see InsertDwgAsBlock. Prints a line when it is not there.
void InsertSupportBlock(const CString& strName, const AcGePoint3d& ptPosition, double dRotation,
                        double dScale);

/// The title strip of a sheet of project standard 2, whose top left corner is ptCorner: the strip's drawing,
/// the unit, the tester, the checker and the date as far as the dialog has them shown, and the sheet's title.
void AddTitleStrip(const AcGePoint3d& ptCorner, const CBRENDlg& dialog);
