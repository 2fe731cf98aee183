// Placing of the panels on the area of the sheet that is the chart's.

#include "chart/chart_entity.h"
#include "chart/table_sizes.h"
#include "frame/sheet_area.h"

namespace {
constexpr double g_dSummaryWidth = 45.0; // of the summary table and its distance, in the stacked arrangement

/// What the arrangement is made of, in drawing units. Sums of whole numbers stay whole, in 64 bits, since a
/// failed scale may leave any number of rows.
struct CSizes {
    Adesk::Int64 m_nCurveH, m_nCurveW, m_nMohrH, m_nMohrW;
    Adesk::Int64 m_nStressTableW, m_nStressTableH, m_nSummaryH;
    double m_dTop; // kept free at the top of the sheet
    bool m_bEffective;
};

CSizes SizesOf(const CBRENChart& chart) {
    CSizes sizes{};
    sizes.m_bEffective = chart.HasEffectiveSet();
    sizes.m_nCurveH = static_cast<Adesk::Int64>(chart.m_nCurveRows) * chart.m_nCurveCellH;
    sizes.m_nCurveW = static_cast<Adesk::Int64>(chart.m_nCurveCols) * chart.m_nCurveCellW;
    sizes.m_nMohrH = static_cast<Adesk::Int64>(chart.m_nMohrRows) * chart.m_nMohrCellH;
    sizes.m_nMohrW = static_cast<Adesk::Int64>(chart.m_nMohrCols) * chart.m_nMohrCellW;
    sizes.m_nStressTableW = static_cast<Adesk::Int64>(g_nTableColumn) * (chart.m_arTotal.length() / 6 + 1);
    sizes.m_nStressTableH = StressTableHeight(sizes.m_bEffective);
    sizes.m_nSummaryH = SummaryTableHeight(sizes.m_bEffective);
    sizes.m_dTop = 6.0 * chart.m_dTextHeight;
    return sizes;
}

double Half(Adesk::Int64 nValue) {
    return static_cast<double>(nValue) / 2.0;
}

void ArrangeSideBySide(CBRENChart& chart, const CSizes& s) {
    const double bx = chart.m_ptBase.x, by = chart.m_ptBase.y;
    const double dCurveH = static_cast<double>(s.m_nCurveH);
    const double dMohrH = static_cast<double>(s.m_nMohrH);
    const double dAir = (g_dAreaHeight - s.m_dTop - dCurveH - dMohrH) / 2.5;
    chart.m_ptCurveOrigin.set(
        bx + (g_dAreaWidth - static_cast<double>(s.m_nCurveW + s.m_nStressTableW + 18)) / 2.0 + 15.0,
        by - s.m_dTop - 0.5 * dAir - dCurveH, 0.0);
    chart.m_ptMohrOrigin.set(bx + (g_dAreaWidth - static_cast<double>(s.m_nMohrW + 55)) / 2.0 + 10.0,
                             by - g_dAreaHeight + dAir, 0.0);
    const int nTableGap = s.m_bEffective ? 10 : 3;
    const Adesk::Int64 nTableRows = StressTableRows(s.m_bEffective);
    chart.m_ptTableOrigin.set(
        chart.m_ptCurveOrigin.x + static_cast<double>(s.m_nCurveW) + nTableGap,
        chart.m_ptCurveOrigin.y + dCurveH - Half(s.m_nCurveH - g_nTableRow * nTableRows), 0.0);
    chart.m_ptSummaryOrigin.set(chart.m_ptMohrOrigin.x + static_cast<double>(s.m_nMohrW) + 15.0,
                                chart.m_ptMohrOrigin.y + dMohrH - Half(s.m_nMohrH - s.m_nSummaryH), 0.0);
}

void ArrangeStacked(CBRENChart& chart, const CSizes& s) {
    const double bx = chart.m_ptBase.x, by = chart.m_ptBase.y;
    const double dCurveW = static_cast<double>(s.m_nCurveW), dCurveH = static_cast<double>(s.m_nCurveH);
    const double dMohrW = static_cast<double>(s.m_nMohrW), dMohrH = static_cast<double>(s.m_nMohrH);
    const double dTableH = static_cast<double>(s.m_nStressTableH);
    const Adesk::Int64 nLower = s.m_nMohrH >= s.m_nSummaryH ? s.m_nMohrH : s.m_nSummaryH;
    const double dAir = (g_dAreaHeight - s.m_dTop - dCurveH - static_cast<double>(nLower) - dTableH) / 4.0;
    const double dMohrLeft = (g_dAreaWidth - (dMohrW + g_dSummaryWidth)) / 2.0;

    chart.m_ptCurveOrigin.set(bx + (g_dAreaWidth - dCurveW) / 2.0, by - s.m_dTop - dAir - dCurveH, 0.0);
    chart.m_ptTableOrigin.set(bx + (g_dAreaWidth - static_cast<double>(s.m_nStressTableW)) / 2.0,
                              chart.m_ptCurveOrigin.y - dAir, 0.0);
    const double dBelowTable = chart.m_ptTableOrigin.y - dAir - dTableH;
    if (s.m_nMohrH > s.m_nSummaryH) {
        // The layout wants the grid's own height left out here.
        chart.m_ptMohrOrigin.set(bx + dMohrLeft, dBelowTable, 0.0);
        chart.m_ptSummaryOrigin.set(chart.m_ptMohrOrigin.x + dMohrW + 15.0,
                                    chart.m_ptMohrOrigin.y + dMohrH - Half(s.m_nMohrH - s.m_nSummaryH), 0.0);
    } else {
        chart.m_ptSummaryOrigin.set(bx + g_dAreaWidth - dMohrLeft - 30.0, dBelowTable, 0.0);
        chart.m_ptMohrOrigin.set(bx + dMohrLeft,
                                 chart.m_ptSummaryOrigin.y - Half(s.m_nSummaryH - s.m_nMohrH) - dMohrH, 0.0);
    }
}
} // namespace

void CBRENChart::ArrangePanels() {
    const CSizes sizes = SizesOf(*this);
    // The test takes the stress-strain panel's height, not its width.
    if (sizes.m_nCurveH + sizes.m_nStressTableW + 18 < static_cast<Adesk::Int64>(g_dAreaWidth))
        ArrangeSideBySide(*this, sizes);
    else
        ArrangeStacked(*this, sizes);

    FitEnvelopeLine(m_ptEnvStart, m_ptEnvEnd, m_dGraphPhi, m_dGraphC);
    if (HasEffectiveSet()) FitEnvelopeLine(m_ptEnvStartEff, m_ptEnvEndEff, m_dGraphPhiEff, m_dGraphCEff);
    ReadEnvelopeValues(); // from here on the angles are degrees

    m_dCalcPhi = m_dAdoptPhi = m_dGraphPhi;
    m_dCalcC = m_dAdoptC = m_dGraphC;
    if (HasEffectiveSet()) {
        m_dCalcPhiEff = m_dAdoptPhiEff = m_dGraphPhiEff;
        m_dCalcCEff = m_dAdoptCEff = m_dGraphCEff;
    }
    StoreAdoptedValues(); // a failed store leaves its message only; the chart stays
    g_bChartDataChanged = 0;
}
