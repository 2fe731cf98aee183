#pragma once

#include "chart/table_form.h"
#include "drawing/picture_sink.h"
#include "drawing/text_cell.h"

/// A text centred in a cell of a table, in the shared text style at the size it has. idTextStyle: by which it
/// is measured.
void DrawTableCell(CPictureSink& sink, const CTextCell& cell, AcDbObjectId idTextStyle, CCellMeasure measure);
