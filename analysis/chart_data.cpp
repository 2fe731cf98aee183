// From a sample's rows in the table to its chart.

#include "analysis/reduction.h"
#include "data/criteria.h"
#include "data/san_zhou_csxm_record.h"
#include "data/show_message.h"
#include "platform/acad/editor.h"

namespace {
CTestReading ReadingOf(const CSanZhouCSXMRecord& row) {
    CTestReading reading;
    reading.m_nSJBH = row.m_nSJBH;
    reading.m_dWY = row.m_fWY;
    reading.m_dSYGD = row.m_fSYGD;
    reading.m_dSYZJ = row.m_fSYZJ;
    reading.m_dCLHXS = row.m_fCLHXS;
    reading.m_dGJKXYL = row.m_fGJKXYL;
    reading.m_dCLHDS = row.m_fCLHDS;
    reading.m_dZXBX = row.m_fZXBX;
    reading.m_dJQPS = row.m_fJQPS;
    reading.m_dKXYL = row.m_fKXYL;
    reading.m_dGJPS = row.m_fGJPS;
    reading.m_nJLLX = row.m_nJLLX;
    return reading;
}
} // namespace

int CBRENChart::ComputeChartData() {
    if (Method() == CTestMethod::None) return 0;

    CSanZhouCSXMRecord rows;
    if (!rows.OpenRows(rows.QueryFor(ReadingsCriterion(m_nGCSY, m_strZKBH, m_strQYBH)), 0, 1)) {
        ShowMessage("数据库z_c_SanZhouCSXM打开有错误!");
        return 0;
    }
    if (rows.MoveFirstRow() != 0) {
        rows.CloseRows();
        acutPrintf(L"\n数据库z_c_SanZhouCSXM无初始数据!");
        return 0;
    }
    CReduction reduction(*this);
    do {
        if (!reduction.AddReading(ReadingOf(rows))) return 0;
    } while (rows.MoveNextRow() == 0);
    rows.CloseRows();
    return reduction.Finish();
}
