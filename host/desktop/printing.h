#pragma once

#include "host/plot/fonts.h"
#include "platform/acad/db_database.h"

class QWidget;

// The sheets of a drawing on a printer: a page each, at 1:1, as PLOT has them.

/// Asks for the printer and prints.
void PrintDrawing(AcDbDatabase& drawing, CFonts& fonts, QWidget* pParent);
/// Shows the pages, to be printed from there.
void PreviewPrint(AcDbDatabase& drawing, CFonts& fonts, QWidget* pParent);
