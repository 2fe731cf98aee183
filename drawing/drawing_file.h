#pragma once
// Drawing files that are brought into the drawing.

#include "platform/acad/db_database.h"
#include "platform/mfc/string.h"

#include <memory>

/// Where the host finds a file: 1, or 0 with the path as it was.
int FindDrawingFile(const CString& strFile, CString& strFound);

/// What a drawing file holds, with nothing of the file left in use; null when it cannot be read.
std::unique_ptr<AcDbDatabase> CopyOfDrawing(const CString& strPath);

/// Brings a drawing file into the working drawing, as a block named by its path, and adds a reference to
/// model space. The rotation is in radians, the scale holds for all directions. Nothing happens when the file
/// cannot be read.
void InsertDwgAsBlock(const CString& strPath, const AcGePoint3d& ptPosition, double dRotation, double dScale);
