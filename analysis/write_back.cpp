// The adopted values on their way into the project's table, where the rest of the suite reads them.

#include "analysis/numbers.h"
#include "chart/chart_entity.h"
#include "data/criteria.h"
#include "data/date_text.h"
#include "data/project_check.h"
#include "data/san_zhou_record.h"
#include "data/table_errors.h"
#include "platform/acad/editor.h"
#include "platform/windows/code_page.h"

namespace {
void Clear(CSanZhouRecord& row) {
    for (DBSTATUS* pStatus :
         {&row.m_dwStatusUUC, &row.m_dwStatusUUF, &row.m_dwStatusCUC, &row.m_dwStatusCUF, &row.m_dwStatusCUCE,
          &row.m_dwStatusCUFE, &row.m_dwStatusCDC, &row.m_dwStatusCDF})
        *pStatus = DBSTATUS_S_ISNULL;
}

/// A value reaches the table with two decimals and in single precision.
void Fill(float& fColumn, DBSTATUS& status, double dValue) {
    fColumn = static_cast<float>(RoundToTwoDecimals(dValue));
    status = DBSTATUS_S_OK;
}
} // namespace

int CBRENChart::CheckProjectForStore() {
    if (CheckProjectNumber(m_nGCSY, m_strGCBH)) return 1;
    acutPrintf(L"\n数据存储失败!");
    g_bChartDataChanged = 0;
    return 0;
}

int CBRENChart::StoreAdoptedValues() {
    CSanZhouRecord row;
    if (!row.OpenRows(row.QueryFor(SampleCriterion(m_nGCSY, m_strZKBH, m_strQYBH)), 0, 1)) {
        ReportTableError(TableError_Triaxial);
        return 0;
    }
    if (row.MoveFirstRow() != 0) {
        acutPrintf(L"\n三轴剪切试验表中无对应项!");
        return 0;
    }
    GbkCopy(row.m_szSYRQ, sizeof row.m_szSYRQ, DateText(CTime::GetCurrentTime()).View());
    Clear(row); // a store erases what another method had left in the row
    switch (Method()) {
    case CTestMethod::UU:
        Fill(row.m_fUUC, row.m_dwStatusUUC, m_dAdoptC);
        Fill(row.m_fUUF, row.m_dwStatusUUF, m_dAdoptPhi);
        break;
    case CTestMethod::CU:
        Fill(row.m_fCUC, row.m_dwStatusCUC, m_dAdoptC);
        Fill(row.m_fCUF, row.m_dwStatusCUF, m_dAdoptPhi);
        Fill(row.m_fCUCE, row.m_dwStatusCUCE, m_dAdoptCEff);
        Fill(row.m_fCUFE, row.m_dwStatusCUFE, m_dAdoptPhiEff);
        break;
    case CTestMethod::CD:
        Fill(row.m_fCDC, row.m_dwStatusCDC, m_dAdoptC);
        Fill(row.m_fCDF, row.m_dwStatusCDF, m_dAdoptPhi);
        break;
    case CTestMethod::None:
        break;
    }
    row.StoreRow(); // the provider itself reports a store that it gave up
    return 1;
}
