#include "chart/summary_table.h"

#include "chart/chart_entity.h"
#include "chart/finite.h"
#include "chart/table_cell.h"
#include "chart/table_lines.h"
#include "chart/table_sizes.h"
#include "drawing/styles.h"

namespace {
// x counts from the table's anchor.
constexpr double g_dLeft = -5.0;
constexpr double g_dMiddle = 15.0;
constexpr double g_dRight = 30.0;
// Cells are narrower than the title column and begin left of the value column: no text is centred on its
// column.
constexpr double g_dValueCell = 13.0;
constexpr double g_dCellWidth = 15.0;
constexpr double g_dTitleText = 2.5;

/// Writes the table; the sizes it sets in the shared text style stay.
class CSummaryTable {
public:
    CSummaryTable(CPictureSink& sink, const CBRENChart& chart, const CTableForm& form)
        : m_sink(sink)
        , m_chart(chart)
        , m_form(form) {}

    void Lines() const;
    void Values() const;
    void Titles() const;
    void SoilName() const { Cell(At(g_dValueCell), g_dTitleText, m_chart.m_strSoilName); }

private:
    AcGePoint3d At(double x) const { return m_chart.m_ptSummaryOrigin + AcGeVector3d(x, 0.0, 0.0); }
    void Cell(const AcGePoint3d& ptTopLeft, double dTextHeight, const CString& strText) const {
        DrawTableCell(m_sink, {ptTopLeft, g_dCellWidth, g_nTableRow, dTextHeight, strText},
                      m_chart.m_idTextStyle, m_form.m_cellMeasure);
    }

    CPictureSink& m_sink;
    const CBRENChart& m_chart;
    const CTableForm& m_form;
};

void CSummaryTable::Lines() const {
    const int nRows = SummaryTableRows(m_chart.HasEffectiveSet());
    const AcGePoint3d& ptAnchor = m_chart.m_ptSummaryOrigin;
    for (int i = 0; i <= nRows; i++)
        DrawTableRow(m_sink, {ptAnchor.x + g_dLeft, ptAnchor.y - g_nTableRow * i, ptAnchor.z},
                     ptAnchor.x + g_dRight, i == 0 || i == nRows);
    for (const double x : {g_dLeft, g_dMiddle, g_dRight})
        DrawTableColumn(m_sink, At(x), SummaryTableHeight(m_chart.HasEffectiveSet()), x != g_dMiddle);
}

void CSummaryTable::Values() const {
    g_ChartTextStyle.setTextSize(m_form.m_dSummaryValue);
    AcGePoint3d ptCell = At(g_dValueCell);
    for (int i = 0; i < m_chart.m_saCells.GetSize(); i++) {
        ptCell.y -= g_nTableRow;
        Cell(ptCell, m_form.m_dSummaryValue, m_chart.m_saCells[i]);
    }
}

void CSummaryTable::Titles() const {
    static constexpr const char* total[] = {"土的名称", "含水量(%)", "塑性指数",
                                            "液性指数", "c(kPa)",    "φ(°)"};
    static constexpr const char* effective[] = {"c'(kPa)", "φ'(°)"};
    g_ChartTextStyle.setTextSize(g_dTitleText);
    AcGePoint3d ptCell = At(m_form.m_dSummaryTitle);
    const auto row = [&](const char* pTitle, double dTextHeight) {
        Cell(ptCell, dTextHeight, pTitle);
        ptCell.y -= g_nTableRow;
    };
    for (const char* pTitle : total)
        row(pTitle, g_dTitleText);
    if (!m_chart.HasEffectiveSet()) return;
    for (const char* pTitle : effective)
        row(pTitle, m_form.m_dSummaryEffectiveText);
}
} // namespace

void DescribeSummaryTable(CPictureSink& sink, const CBRENChart& chart, const CTableForm& form) {
    if (!IsFinite(chart.m_ptSummaryOrigin)) return;
    const CSummaryTable table(sink, chart, form);
    table.Lines();
    table.Values();
    table.Titles();
    table.SoilName();
}
