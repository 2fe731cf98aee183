#include "chart/stress_table.h"

#include "chart/chart_entity.h"
#include "chart/finite.h"
#include "chart/table_cell.h"
#include "chart/table_lines.h"
#include "chart/table_sizes.h"
#include "drawing/styles.h"

#include <optional>
#include <span>

namespace {
constexpr int g_nTotalValues = 6;     // of a failure row
constexpr int g_nEffectiveValues = 4; // of a failure row
constexpr double g_dValueHeight = 3.0;
constexpr double g_dEffectiveText = 3.0;
constexpr double g_dDenominatorText = 2.5;
constexpr double g_dSubscriptText = 1.0;

/// A text at its left base line; x and y count from the top left corner of its set's rows.
struct CLabel {
    double x, y;
    const char* m_pText;
};

/// What stands below the sum of a row's title to make it a fraction of two.
struct CHalf {
    double m_dRuleFrom, m_dRuleTo, m_dRuleY;
    double m_dDenominatorY;
};

struct CRowTitle {
    CLabel m_main;
    std::optional<CHalf> m_half;
};

/// Writes the table; the sizes it sets in the shared text style stay.
class CStressTable {
public:
    CStressTable(CPictureSink& sink, const CBRENChart& chart, const CTableForm& form)
        : m_sink(sink)
        , m_chart(chart)
        , m_form(form) {}

    void Lines() const;
    void Values() const;
    void TotalTitles() const;
    void EffectiveTitles() const;

private:
    AcGePoint3d EffectiveCorner() const {
        return m_chart.m_ptTableOrigin - AcGeVector3d(0.0, g_nTotalHeight, 0.0);
    }
    void ValueRows(const AcGePoint3d& ptCorner, const CDoubleList& values, int nRows) const;
    void Titles(const AcGePoint3d& ptCorner, double dSize, std::span<const CRowTitle> titles,
                std::span<const CLabel> subscripts) const;
    void Text(const AcGePoint3d& ptCorner, const CLabel& label) const {
        m_sink.Text(ptCorner + AcGeVector3d(label.x, label.y, 0.0), label.m_pText,
                    CTextDirection::Horizontal);
    }

    CPictureSink& m_sink;
    const CBRENChart& m_chart;
    const CTableForm& m_form;
};

/// Rows whose title is a fraction are higher.
int RowHeight(int nRow) {
    return nRow == 4 || nRow == 5 || nRow == 9 ? g_nFractionRow : g_nTableRow;
}

void CStressTable::Lines() const {
    const bool bEffective = m_chart.HasEffectiveSet();
    const int nColumns = m_chart.m_arTotal.length() / g_nTotalValues + 1;
    const int nRows = StressTableRows(bEffective);
    const AcGePoint3d& ptCorner = m_chart.m_ptTableOrigin;
    double y = ptCorner.y;
    for (int i = 0; i <= nRows; i++) {
        DrawTableRow(m_sink, {ptCorner.x, y, ptCorner.z}, ptCorner.x + g_nTableColumn * nColumns,
                     i == 0 || i == nRows);
        y -= RowHeight(i);
    }
    for (int i = 0; i <= nColumns; i++)
        DrawTableColumn(m_sink, {ptCorner.x + g_nTableColumn * i, ptCorner.y, ptCorner.z},
                        StressTableHeight(bEffective), i == 0 || i == nColumns);
}

void CStressTable::ValueRows(const AcGePoint3d& ptCorner, const CDoubleList& values, int nRows) const {
    const int nColumns = values.length() / nRows;
    AcGePoint3d ptRow = ptCorner;
    for (int nRow = 0; nRow < nRows; nRow++) {
        // Rows count within the set here: the last of the effective set is taken for a low one.
        const int nHeight = RowHeight(nRow);
        AcGePoint3d ptCell = ptRow;
        for (int nColumn = 0; nColumn < nColumns; nColumn++) {
            ptCell.x += g_nTableColumn;
            CString strValue;
            strValue.Format("%.0f", values[nColumn * nRows + nRow]);
            DrawTableCell(m_sink,
                          {ptCell, g_nTableColumn, static_cast<double>(nHeight), g_dValueHeight, strValue},
                          m_chart.m_idTextStyle, m_form.m_cellMeasure);
        }
        ptRow.y -= nHeight;
    }
}

void CStressTable::Values() const {
    if (m_chart.m_arTotal.isEmpty()) return;
    g_ChartTextStyle.setTextSize(m_form.m_dMainText);
    ValueRows(m_chart.m_ptTableOrigin, m_chart.m_arTotal, g_nTotalValues);
    if (m_chart.HasEffectiveSet()) ValueRows(EffectiveCorner(), m_chart.m_arEffective, g_nEffectiveValues);
}

void CStressTable::Titles(const AcGePoint3d& ptCorner, double dSize, std::span<const CRowTitle> titles,
                          std::span<const CLabel> subscripts) const {
    for (const CRowTitle& title : titles) {
        g_ChartTextStyle.setTextSize(dSize);
        Text(ptCorner, title.m_main);
        if (!title.m_half) continue;
        const CHalf& half = *title.m_half;
        m_sink.Line(ptCorner + AcGeVector3d(half.m_dRuleFrom, half.m_dRuleY, 0.0),
                    ptCorner + AcGeVector3d(half.m_dRuleTo, half.m_dRuleY, 0.0));
        g_ChartTextStyle.setTextSize(g_dDenominatorText);
        Text(ptCorner, {7.0, half.m_dDenominatorY, "2"});
    }
    g_ChartTextStyle.setTextSize(g_dSubscriptText);
    for (const CLabel& subscript : subscripts)
        Text(ptCorner, subscript);
}

void CStressTable::TotalTitles() const {
    static constexpr CRowTitle titles[] = {{{5.0, -5.0, "σ"}, {}},
                                           {{5.0, -13.0, "σ"}, {}},
                                           {{3.0, -21.0, "σ+σ"}, {}},
                                           {{3.0, -29.0, "σ-σ"}, {}},
                                           {{3.0, -37.0, "σ+σ"}, CHalf{3.0, 13.0, -37.2, -40.3}},
                                           {{3.0, -46.3, "σ-σ"}, CHalf{3.0, 13.0, -46.5, -49.6}}};
    const double dSecond = m_form.m_dSecondSubscript;
    // Those of the last row stand a little off its main text's base line.
    const CLabel subscripts[] = {{7.8, -5.0, "3"},      {7.8, -13.0, "1"},     {5.8, -21.0, "1"},
                                 {5.8, -29.0, "1"},     {5.8, -37.0, "1"},     {5.8, -46.2, "1"},
                                 {dSecond, -21.0, "3"}, {dSecond, -29.0, "3"}, {dSecond, -37.0, "3"},
                                 {dSecond, -46.2, "3"}};
    Titles(m_chart.m_ptTableOrigin, m_form.m_dMainText, titles, subscripts);
}

void CStressTable::EffectiveTitles() const {
    const CRowTitle titles[] = {{{m_form.m_dSingleEffective, -5.0, "σ'"}, {}},
                                {{m_form.m_dSingleEffective, -13.0, "σ'"}, {}},
                                {{m_form.m_dSumEffective, -21.0, "σ'+σ'"}, {}},
                                {{m_form.m_dSumEffective, -29.0, "σ'+σ'"},
                                 CHalf{m_form.m_dRuleFrom, m_form.m_dRuleTo, -29.2, -32.3}}};
    static constexpr CLabel subscripts[] = {{8.8, -5.0, "3"},  {8.8, -13.0, "1"},  {4.8, -21.0, "1"},
                                            {4.8, -29.0, "1"}, {12.5, -21.0, "3"}, {12.5, -29.0, "3"}};
    Titles(EffectiveCorner(), g_dEffectiveText, titles, subscripts);
}
} // namespace

void DescribeStressTable(CPictureSink& sink, const CBRENChart& chart, const CTableForm& form) {
    if (!IsFinite(chart.m_ptTableOrigin)) return;
    const CStressTable table(sink, chart, form);
    table.Lines();
    table.Values();
    table.TotalTitles();
    if (chart.HasEffectiveSet()) table.EffectiveTitles();
}
