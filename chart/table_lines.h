#pragma once

#include "drawing/picture_sink.h"

/// A horizontal line of a table, from its left end. One of the table's frame is heavy, and long enough to
/// close the corners.
void DrawTableRow(CPictureSink& sink, const AcGePoint3d& ptLeft, double dRight, bool bFrame);
/// A vertical line of a table, from its top. One of the table's frame is heavy.
void DrawTableColumn(CPictureSink& sink, const AcGePoint3d& ptTop, double dHeight, bool bFrame);
