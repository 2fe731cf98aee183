#include "commands/sheet_maker.h"

#include "commands/sheet_frame.h"
#include "commands/sheet_layout.h"
#include "commands/sheet_texts.h"
#include "data/show_message.h"
#include "drawing/model_space.h"
#include "drawing/styles.h"
#include "ui/bren_dlg.h"

#include <memory>

CSheetMaker::CSheetMaker(AcDbDatabase* pDatabase, const CBRENDlg& dialog, CString strGCBH)
    : m_pDatabase(pDatabase)
    , m_dialog(dialog)
    , m_strGCBH(std::move(strGCBH)) {
    // The layout depends on the standard code alone, and the size goes no further.
    int nWidth = 0, nHeight = 0;
    GetSheetLayout(m_dialog.m_nGCBZ, g_nPaperA4, nWidth, nHeight, m_nChartsPerRow, m_nChartsPerSheet);
}

int CSheetMaker::PlaceGroup(const CArray<QYPropty>& samples, const AcGePoint3d& ptPicked) {
    if (!m_template.Load()) return 0;
    // As many sheets as samples, also where a sheet takes two charts: those past the charts' end stay empty.
    for (int nSheet = 1; nSheet <= samples.GetSize(); nSheet++)
        if (!PlaceSheet(samples, SheetCorner(ptPicked, nSheet), nSheet)) return 0;
    return 1;
}

int CSheetMaker::PlaceSheet(const CArray<QYPropty>& samples, const AcGePoint3d& ptCorner, int nSheet) {
    m_template.AddFrame(nSheet, SheetBlockPoint(ptCorner));
    CreateTextStyleFromIni(g_pSheetTextStyle, m_idTextStyle, m_pDatabase);
    m_strLabel.Empty();
    m_strMethod.Empty();
    const AcGePoint3d ptFirst = FirstChartPoint(ptCorner, m_dialog.m_nGCBZ);
    const int nFirst = (nSheet - 1) * m_nChartsPerSheet;
    const int nRows = m_nChartsPerSheet / m_nChartsPerRow;
    for (int nRow = 0; nRow < nRows; nRow++) {
        for (int nColumn = 0; nColumn < m_nChartsPerRow; nColumn++) {
            const int nSample = nFirst + nRow * m_nChartsPerRow + nColumn;
            if (nSample >= samples.GetSize()) break;
            const AcGePoint3d ptChart(ptFirst.x + g_dSheetStep * nColumn, ptFirst.y - g_dSheetHeight * nRow,
                                      0.0);
            if (!PlaceChart(samples[nSample], ptChart)) return 0;
        }
        AddTexts(ptCorner);
    }
    return 1;
}

void CSheetMaker::AddTexts(const AcGePoint3d& ptCorner) const {
    AddSheetText({ptCorner.x + 28.0, ptCorner.y - 46.0, ptCorner.z}, m_strLabel);
    const AcGePoint3d ptMethod = SheetBlockPoint(ptCorner) + m_template.MethodOffset();
    AddSheetText({ptMethod.x, ptMethod.y, 0.0}, m_strMethod);
    if (m_dialog.m_nGCBZ == g_nStandardWithStrip) AddTitleStrip(ptCorner, m_dialog);
}

int CSheetMaker::PlaceChart(const QYPropty& sample, const AcGePoint3d& ptChart) {
    auto pChart = std::make_unique<CBRENChart>();
    pChart->m_ptBase = ptChart;
    pChart->m_nGCSY = m_dialog.m_nGCSY;
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
    MakeSheetFrame(m_dialog, sample, ptChart, m_idTextStyle, idChart); // which goes again: see there
    m_strLabel.Format("试样编号：%s-%s", sample.m_strZKBH.GetString(), sample.m_strQYBH.GetString());
    m_strMethod = sample.m_strSYFF;
    return 1;
}
