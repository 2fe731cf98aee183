#pragma once

#include "host/plot/fonts.h"
#include "platform/acad/db_database.h"

#include <string>

class QWidget;

// The sheets of a drawing on a printer: a page each, at 1:1, as PLOT has them. Each gives what to tell the
// user (UTF-8); nothing when the pages were printed or given up.

/// Asks for the printer and prints.
std::string PrintDrawing(AcDbDatabase& drawing, CFonts& fonts, QWidget* pParent);
/// Shows the pages, to be printed from there.
std::string PreviewPrint(AcDbDatabase& drawing, CFonts& fonts, QWidget* pParent);
