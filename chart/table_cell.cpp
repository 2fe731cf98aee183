#include "chart/table_cell.h"

#include "drawing/styles.h"

void DrawTableCell(CPictureSink& sink, const CTextCell& cell, AcDbObjectId idTextStyle,
                   CCellMeasure measure) {
    const double dMeasured =
        measure == CCellMeasure::TextSize ? g_ChartTextStyle.textSize() : cell.m_dTextHeight;
    sink.Text(TextPositionInCell(cell, idTextStyle, dMeasured), cell.m_strText, CTextDirection::Horizontal);
}
