#pragma once
// The one place where drawings and files meet. Paths are UTF-8.

#include "platform/acad/db_database.h"

#include <string>

/// Reads a file into a new drawing. eFileNotFound; eNotImplementedYet for a format that is not read here, and
/// so far none is.
Acad::ErrorStatus ReadDrawingFile(const std::string& strPath, AcDbDatabase& drawing);

/// Writes a drawing into a file. eNotImplementedYet for a format that is not written here, and so far none
/// is.
Acad::ErrorStatus WriteDrawingFile(const AcDbDatabase& drawing, const std::string& strPath);
