#include "drawing/text_cell.h"

#include "drawing/chart_text.h"

AcGePoint3d TextPositionInCell(const CTextCell& cell, AcDbObjectId idStyle, double dMeasured) {
    const double dTextWidth = MeasureTextWidth(cell.m_strText, idStyle, dMeasured);
    const AcGePoint3d& ptTopLeft = cell.m_ptTopLeft;
    return {ptTopLeft.x + (cell.m_dWidth - dTextWidth) / 2.0,
            ptTopLeft.y - cell.m_dHeight / 2.0 - cell.m_dTextHeight / 2.0, ptTopLeft.z};
}
