#pragma once

#include "drawing/picture_sink.h"
#include "platform/acad/db_object_id.h"

/// One gridded frame with its ticks and titles: both panels are made of it.
struct CAxes {
    AcGePoint3d m_ptOrigin; ///< lower left corner of the grid
    Adesk::Int32 m_nRows, m_nCols;
    double m_dStepX, m_dStepY; ///< value per cell
    Adesk::Int32 m_nCellW, m_nCellH;
    const char* m_pTitleX;
    const char* m_pTitleY;
    bool m_bSubscripts; ///< "1" and "3" behind the two σ of the vertical title
    double m_dArrowHalfWidth;
    AcDbObjectId m_idTextStyle; ///< by which the texts are measured
};

/// In what the two forms of the axes differ.
struct CAxesForm {
    double m_dTitleMeasure;    ///< height at which titles are measured; they are drawn 2.5 high in both
    double m_dFirstSubscript;  ///< along Y from the position of the vertical title
    double m_dSecondSubscript; ///< beyond the first
};
inline constexpr CAxesForm g_axesWorldForm{2.5, 16.1, 5.3};
inline constexpr CAxesForm g_axesExplodeForm{3.0, 19.8, 6.5};

/// Describes a frame: axes with arrows, grid, tick labels, titles. It leaves another size in the shared text
/// style.
void DescribeChartAxes(CPictureSink& sink, const CAxes& axes, const CAxesForm& form);

/// A label's text with up to two decimals; empty when the value needs more, as a running sum's error can make
/// it.
CString AxisLabel(double dValue);
