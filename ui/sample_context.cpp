#include "ui/sample_context.h"

#include "data/criteria.h"
#include "data/qu_yang_record.h"
#include "data/show_message.h"
#include "data/tu_ceng_record.h"
#include "platform/acad/editor.h"

namespace {

constexpr double g_dLeastIP = 0.0001; // below it, either way, a liquidity index means nothing

CString TwoDecimals(double value) {
    CString text;
    text.Format("%.2f", value);
    return text;
}

bool IsNull(DBSTATUS status) {
    return status == DBSTATUS_S_ISNULL;
}

void ReadIndices(const CQuYangRecord& sample, CSampleContext* context) {
    if (IsNull(sample.m_dwStatusQYYX) || IsNull(sample.m_dwStatusQYSY)) return;
    const double plasticLimit = sample.m_fQYSY;
    const double ip = static_cast<double>(sample.m_fQYYX) - plasticLimit;
    context->m_strIP = TwoDecimals(ip);
    if (IsNull(sample.m_dwStatusQYHSL) || (ip > -g_dLeastIP && ip < g_dLeastIP)) return;
    context->m_strIL = TwoDecimals((static_cast<double>(sample.m_fQYHSL) - plasticLimit) / ip);
}

// The layer that holds the sample from top to bottom; without one the text stays a blank.
void ReadLayer(int nGCSY, const CString& strZKBH, double top, double thickness, const CString& strShown,
               CString* layer, int* pbTuCengOk) {
    CTuCengRecord record;
    *layer = " ";
    if (!record.OpenRows(record.QueryFor(LayerCriterion(nGCSY, strZKBH, top, thickness)), 0, 1)) {
        acutPrintf(L"\n数据库z_g_TuCengSet表取样编号%hs数据TCMC不全!", strShown.GetString());
        *pbTuCengOk = 0;
    } else if (record.MoveFirstRow() != 0) {
        acutPrintf(L"\n数据库z_g_TuCengSet表中无相应土层名称!");
        *pbTuCengOk = 0;
    } else {
        *layer = record.m_szTCMC;
    }
    record.CloseRows();
}

} // namespace

int ReadSampleContext(int nGCSY, const CString& strZKBH, const CString& strQYBH, const CString& strShown,
                      CSampleContext* context, int* pbQuYangOk, int* pbTuCengOk) {
    CQuYangRecord sample;
    if (!sample.OpenRows(sample.QueryFor(SampleCriterion(nGCSY, strZKBH, strQYBH)), 0, 1)) {
        ShowMessage("数据库z_c_QuYang打开有错误!");
        *pbQuYangOk = 0;
        return 0;
    }
    if (sample.MoveFirstRow() != 0) {
        acutPrintf(L"\n数据库z_c_QuYang数据不全!");
        *pbQuYangOk = 0;
        return 0;
    }
    const bool bDepth = !IsNull(sample.m_dwStatusQYSD);
    if (bDepth) {
        context->m_strDepth = TwoDecimals(sample.m_fQYSD);
    } else {
        acutPrintf(L"\n数据库z_c_QuYang数据QYSD不全!");
    }
    if (!IsNull(sample.m_dwStatusQYHSL)) context->m_strWater = TwoDecimals(sample.m_fQYHSL);
    ReadIndices(sample, context);
    if (!bDepth) {
        acutPrintf(L"\n数据库z_c_QuYang取样编号%hs数据QYSD不全!", strShown.GetString());
        *pbQuYangOk = 0;
    }
    const bool bThickness = !IsNull(sample.m_dwStatusQYHD);
    if (!bThickness) {
        acutPrintf(L"\n数据库z_c_QuYang取样编号%hs数据QYHD不全!", strShown.GetString());
        *pbTuCengOk = 0;
    }
    const double top = bDepth ? sample.m_fQYSD : 0, thickness = bThickness ? sample.m_fQYHD : 0;
    sample.CloseRows();
    ReadLayer(nGCSY, strZKBH, top, thickness, strShown, &context->m_strLayer, pbTuCengOk);
    return 1;
}
