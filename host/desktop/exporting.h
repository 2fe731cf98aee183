#pragma once

#include "platform/acad/db_database.h"

#include <string>

class QWidget;

// The drawing in other forms. Paths and texts are UTF-8.

/// Asks for the file to export to; its ending (.pdf, .svg, .png or .dxf) tells the form. Empty when given up.
std::string AskExportPath(QWidget* pParent);
bool IsDxfPath(const std::string& strPath);
/// Writes a copy as DXF; the drawing keeps its own file. Gives what to tell the user.
std::string ExportDxf(const AcDbDatabase& drawing, const std::string& strPath);
/// A text as one word of a command line.
std::string QuotedWord(const std::string& strText);
