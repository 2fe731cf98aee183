#include "chart/axes.h"

#include "analysis/numbers.h"
#include "chart/chart_entity.h"
#include "chart/finite.h"
#include "drawing/chart_text.h"
#include "drawing/explode_sink.h"
#include "drawing/styles.h"
#include "drawing/world_sink.h"

namespace {
constexpr double g_dOverrun = 0.3333333333333333; // of a cell, by which an axis passes the grid
constexpr double g_dArrowLength = 3.0;
constexpr double g_dAxisText = 2.5;
constexpr double g_dSubscriptText = 1.0;
constexpr double g_dLabelGapX = 5.0; // below the X axis
constexpr double g_dLabelGapY = 2.0; // left of the Y axis
constexpr double g_dTitleGap = 10.0;
constexpr Adesk::Int32 g_nMostCells = 10'000; // a count read from a damaged drawing is not to fill the memory

void Axes(CPictureSink& sink, const CAxes& axes) {
    const AcGePoint3d ptOrigin = axes.m_ptOrigin;
    const double dArrowWidth = 2.0 * axes.m_dArrowHalfWidth;
    const AcGePoint3d ptEndX(ptOrigin.x + (axes.m_nCols + g_dOverrun) * axes.m_nCellW, ptOrigin.y,
                             ptOrigin.z);
    sink.Line(ptOrigin, ptEndX);
    sink.Arrow(ptEndX, ptEndX + AcGeVector3d(g_dArrowLength, 0.0, 0.0), dArrowWidth);
    const AcGePoint3d ptEndY(ptOrigin.x, ptOrigin.y + (axes.m_nRows + g_dOverrun) * axes.m_nCellH,
                             ptOrigin.z);
    sink.Line(ptOrigin, ptEndY);
    sink.Arrow(ptEndY, ptEndY + AcGeVector3d(0.0, g_dArrowLength, 0.0), dArrowWidth);
}

void Grid(CPictureSink& sink, const CAxes& axes) {
    const AcGePoint3d ptOrigin = axes.m_ptOrigin;
    const double dCellW = axes.m_nCellW, dCellH = axes.m_nCellH;
    for (Adesk::Int32 k = 1; k <= axes.m_nRows; k++) {
        const double y = ptOrigin.y + k * dCellH;
        sink.Line({ptOrigin.x, y, ptOrigin.z}, {ptOrigin.x + axes.m_nCols * dCellW, y, ptOrigin.z});
    }
    for (Adesk::Int32 k = 1; k <= axes.m_nCols; k++) {
        const double x = ptOrigin.x + k * dCellW;
        sink.Line({x, ptOrigin.y, ptOrigin.z}, {x, ptOrigin.y + axes.m_nRows * dCellH, ptOrigin.z});
    }
}

/// Every second grid line has a label. The values are summed up, not multiplied, and the sum's error shows.
void Labels(CPictureSink& sink, const CAxes& axes) {
    const AcGePoint3d ptOrigin = axes.m_ptOrigin;
    const double dCellW = axes.m_nCellW, dCellH = axes.m_nCellH;
    double dValue = 0.0;
    for (Adesk::Int32 i = 0; i < axes.m_nCols / 2.0; i++) {
        dValue += 2.0 * axes.m_dStepX;
        const CString strLabel = AxisLabel(dValue);
        const double dWidth = MeasureTextWidth(strLabel, axes.m_idTextStyle, g_dAxisText);
        const double x = ptOrigin.x + 2.0 * (i + 1.0) * dCellW;
        sink.Text({x - dWidth / 2.0, ptOrigin.y - g_dLabelGapX, ptOrigin.z}, strLabel,
                  CTextDirection::Horizontal);
    }
    dValue = 0.0;
    for (Adesk::Int32 i = 0; i <= axes.m_nRows / 2.0; i++) {
        CString strLabel;
        strLabel.Format("%.0f", dValue);
        const double dWidth = MeasureTextWidth(strLabel, axes.m_idTextStyle, g_dAxisText);
        sink.Text({ptOrigin.x - g_dLabelGapY - dWidth, ptOrigin.y + 2.0 * i * dCellH, ptOrigin.z}, strLabel,
                  CTextDirection::Horizontal);
        dValue += 2.0 * axes.m_dStepY;
    }
}

void Titles(CPictureSink& sink, const CAxes& axes, const CAxesForm& form) {
    const AcGePoint3d ptOrigin = axes.m_ptOrigin;
    const double dWidthX = MeasureTextWidth(axes.m_pTitleX, axes.m_idTextStyle, form.m_dTitleMeasure);
    sink.Text({ptOrigin.x + static_cast<double>(axes.m_nCols) * axes.m_nCellW / 2.0 - dWidthX / 2.0,
               ptOrigin.y - g_dTitleGap, ptOrigin.z},
              axes.m_pTitleX, CTextDirection::Horizontal);
    const double dWidthY = MeasureTextWidth(axes.m_pTitleY, axes.m_idTextStyle, form.m_dTitleMeasure);
    const AcGePoint3d ptTitleY(
        ptOrigin.x - g_dTitleGap,
        ptOrigin.y + static_cast<double>(axes.m_nRows) * axes.m_nCellH / 2.0 - dWidthY / 2.0, ptOrigin.z);
    sink.Text(ptTitleY, axes.m_pTitleY, CTextDirection::Vertical);
    if (!axes.m_bSubscripts) return;
    g_ChartTextStyle.setTextSize(g_dSubscriptText);
    const AcGePoint3d ptFirst = ptTitleY + AcGeVector3d(0.0, form.m_dFirstSubscript, 0.0);
    sink.Text(ptFirst, "1", CTextDirection::Vertical);
    sink.Text(ptFirst + AcGeVector3d(0.0, form.m_dSecondSubscript, 0.0), "3", CTextDirection::Vertical);
}
} // namespace

CString AxisLabel(double dValue) {
    const auto isWhole = [](double d) { return d == static_cast<double>(TruncateToInt32(d)); };
    CString strLabel;
    if (isWhole(dValue))
        strLabel.Format("%.0f", dValue);
    else if (isWhole(dValue * 10.0))
        strLabel.Format("%.1f", dValue);
    else if (isWhole(dValue * 100.0))
        strLabel.Format("%.2f", dValue);
    return strLabel;
}

void DescribeChartAxes(CPictureSink& sink, const CAxes& axes, const CAxesForm& form) {
    if (!IsFinite(axes.m_ptOrigin) || axes.m_nRows > g_nMostCells || axes.m_nCols > g_nMostCells) return;
    Axes(sink, axes);
    Grid(sink, axes);
    g_ChartTextStyle.setTextSize(g_dAxisText);
    Labels(sink, axes);
    Titles(sink, axes, form);
}

CAxes CBRENChart::CurveAxes() const {
    return {m_ptCurveOrigin,     m_nCurveRows,  m_nCurveCols,      m_dCurveStepX,
            m_dCurveStepY,       m_nCurveCellW, m_nCurveCellH,     "轴向应变ε (%)",
            "主应力差σ-σ (kPa)", true,          m_dArrowHalfWidth, m_idTextStyle};
}

CAxes CBRENChart::MohrAxes() const {
    return {m_ptMohrOrigin, m_nMohrRows, m_nMohrCols, m_dMohrStepX, m_dMohrStepY,      m_nMohrCellW,
            m_nMohrCellH,   "σ (kPa)",   "τ (kPa)",   false,        m_dArrowHalfWidth, m_idTextStyle};
}

void CBRENChart::DrawChartAxes(AcGiWorldDraw* pMode, const CAxes& axes) const {
    CWorldSink sink(pMode, m_nPolylineMode, m_nColor);
    DescribeChartAxes(sink, axes, g_axesWorldForm);
}

void CBRENChart::ExplodeChartAxes(AcDbVoidPtrArray& entitySet, const CAxes& axes) const {
    CExplodeSink sink(entitySet, m_nColor, m_idTextStyle);
    DescribeChartAxes(sink, axes, g_axesExplodeForm);
}
