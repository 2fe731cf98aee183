#include "commands/sheet_maker.h"

#include "commands/sheet_layout.h"
#include "data/show_message.h"
#include "drawing/model_space.h"
#include "drawing/styles.h"

#include <memory>

namespace {
constexpr double g_dChartText = 2.5;
constexpr Adesk::UInt16 g_nChartColor = 3;
} // namespace

CSheetMaker::CSheetMaker(AcDbDatabase* pDatabase, Adesk::Int32 nGCSY, CString strGCBH, Adesk::Int32 nGCBZ)
    : m_pDatabase(pDatabase)
    , m_nGCSY(nGCSY)
    , m_strGCBH(std::move(strGCBH))
    , m_nGCBZ(nGCBZ) {
    int nWidth = 0,
        nHeight = 0; // the layout depends on the standard code alone, and the size goes no further
    GetSheetLayout(m_nGCBZ, g_nPaperA4, nWidth, nHeight, m_nChartsPerRow, m_nChartsPerSheet);
}

int CSheetMaker::PlaceGroup(const CArray<QYPropty>& samples, const AcGePoint3d& ptPicked) {
    // As many sheets as samples, also where a sheet takes two charts: those past the charts' end stay empty.
    for (int nSheet = 1; nSheet <= samples.GetSize(); nSheet++) {
        CreateTextStyleFromIni(g_pSheetTextStyle, m_idTextStyle, m_pDatabase);
        if (!PlaceSheet(samples, SheetCorner(ptPicked, nSheet), (nSheet - 1) * m_nChartsPerSheet)) return 0;
    }
    return 1;
}

int CSheetMaker::PlaceSheet(const CArray<QYPropty>& samples, const AcGePoint3d& ptCorner, int nFirst) {
    const AcGePoint3d ptFirst = FirstChartPoint(ptCorner, m_nGCBZ);
    const int nRows = m_nChartsPerSheet / m_nChartsPerRow;
    for (int nRow = 0; nRow < nRows; nRow++) {
        for (int nColumn = 0; nColumn < m_nChartsPerRow; nColumn++) {
            const int nSample = nFirst + nRow * m_nChartsPerRow + nColumn;
            if (nSample >= samples.GetSize()) break;
            const AcGePoint3d ptChart(ptFirst.x + g_dSheetStep * nColumn, ptFirst.y - g_dSheetHeight * nRow,
                                      0.0);
            if (!PlaceChart(samples[nSample], ptChart)) return 0;
        }
    }
    return 1;
}

int CSheetMaker::PlaceChart(const QYPropty& sample, const AcGePoint3d& ptChart) {
    auto pChart = std::make_unique<CBRENChart>();
    pChart->m_ptBase = ptChart;
    pChart->m_nGCSY = m_nGCSY;
    pChart->m_strGCBH = m_strGCBH;
    pChart->m_strZKBH = sample.m_strZKBH;
    pChart->m_strQYBH = sample.m_strQYBH;
    pChart->m_strSYFF = sample.m_strSYFF;
    pChart->m_strSoilName = sample.m_strLayer;
    pChart->m_strWater = sample.m_strWater;
    pChart->m_strLiquidity = sample.m_strIL;
    pChart->m_strPlasticity = sample.m_strIP;
    pChart->m_dTextHeight = g_dChartText;
    pChart->m_idTextStyle = m_idTextStyle;
    pChart->setColorIndex(g_nChartColor, Adesk::kTrue);

    if (!pChart->ComputeChartData()) {
        ShowMessage("三轴剪切试验初始数据错误!");
        return 0;
    }
    pChart->ArrangePanels();
    AcDbObjectId idChart;
    if (AppendToModelSpace(m_pDatabase, idChart, pChart.get())) static_cast<void>(pChart.release());
    return 1;
}
