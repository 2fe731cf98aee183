#include "ui/bren_dlg.h"

#include "commands/chart_marks.h"
#include "data/project_context.h"
#include "data/show_message.h"
#include "platform/acad/editor.h"
#include "ui/chart_titles.h"
#include "ui/resources.h"
#include "ui/sample_context.h"
#include "ui/selection_keys.h"

namespace {

constexpr int g_nMostSamples = 100;

} // namespace

CBRENDlg::CBRENDlg(const char* caption, void* pOwner)
    : CPropertySheet(caption, pOwner) {
    AddPage(&m_pageGen);
}

BOOL CBRENDlg::OnInitDialog() {
    m_pageGen.m_nGCSY = m_nGCSY;
    m_bHasData = m_pageGen.LoadBoreholes();
    const BOOL bResult = CPropertySheet::OnInitDialog();
    SetIcon(IDI_TERVO, TRUE);
    SetIcon(IDI_TERVO, FALSE);
    SetActivePage(&m_pageGen);
    return bResult;
}

BOOL CBRENDlg::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (nID != ID_OK || nCode != BN_CLICKED)
        return CPropertySheet::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
    m_pageGen.UpdateData();
    switch (AllSamples() ? ConfirmAll() : ConfirmSelection()) {
    case CNext::Stay:
        return ContinueModal();
    case CNext::Close:
        return FALSE;
    case CNext::Base:
        break;
    }
    return CPropertySheet::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

CBRENDlg::CNext CBRENDlg::StayWith(const char* message) {
    ShowMessage(message);
    SetActivePage(&m_pageGen);
    return CNext::Stay;
}

CBRENDlg::CNext CBRENDlg::ConfirmSelection() {
    if (!m_bHasData) return CNext::Close;
    if (!m_pageGen.m_bSamplesValid) {
        m_bSamplesOk = 0;
        return CNext::Close;
    }
    std::vector<int> selected(g_nMostSamples);
    const int count = m_pageGen.m_listQY.GetSelItems(g_nMostSamples, selected.data());
    if (count == LB_ERR) return CNext::Close;
    selected.resize(static_cast<std::size_t>(count));
    if (selected.empty() && m_pageGen.m_listQY.GetCount() > 0) return StayWith("至少选取一项取样编号!");
    m_strZKBH = m_pageGen.m_strZKBH;
    ReadProjectAndAnnotation();
    acutPrintf(L"\n读取z_c_QuYang表数据...");
    acutPrintf(L"\n读取z_g_TuCengSet表数据...");
    const CString strWithout = SamplesWithoutMethod(selected);
    if (!strWithout.IsEmpty())
        return StayWith("试样" + strWithout + "中没有试验方法，不能生成三轴剪切试验曲线!");
    return GatherSelection(selected);
}

CBRENDlg::CNext CBRENDlg::GatherSelection(const std::vector<int>& selected) {
    for (const int index : selected) {
        CString strQYBH;
        m_pageGen.m_listQY.GetText(index, strQYBH);
        strQYBH = WithoutMark(strQYBH);
        m_saSelSYFF.Add(m_pageGen.m_saSYFF[index]);
        m_saSelQY.Add(strQYBH);
        if (!AddContext(m_strZKBH, strQYBH, strQYBH, nullptr)) return CNext::Close;
    }
    PrintTableResults();
    MarkSelection();
    return CNext::Base;
}

// "【1-1】、【1-2】", empty when all have one.
CString CBRENDlg::SamplesWithoutMethod(const std::vector<int>& selected) const {
    CString samples;
    for (const int index : selected) {
        if (!m_pageGen.m_saSYFF[index].IsEmpty()) continue;
        CString strQYBH;
        m_pageGen.m_listQY.GetText(index, strQYBH);
        samples.AppendFormat("【%s】、", WithoutMark(strQYBH).GetString());
    }
    return samples.Left(samples.GetLength() - 2);
}

CBRENDlg::CNext CBRENDlg::ConfirmAll() {
    m_pageGen.CollectAll();
    if (m_pageGen.m_arAll.IsEmpty()) return StayWith("请选择钻孔编号");
    const CNext next = GatherAll();
    if (next == CNext::Base) WriteAllMarks();
    return next;
}

CBRENDlg::CNext CBRENDlg::GatherAll() {
    int count = 0;
    for (const arZKBH& record : m_pageGen.m_arAll)
        count += record.m_arQY.GetSize();
    if (count == 0) return StayWith("没有可用的取样编号!");
    ReadProjectAndAnnotation();
    for (arZKBH& record : m_pageGen.m_arAll)
        for (QYPropty& sample : record.m_arQY)
            if (!AddContext(sample.m_strZKBH, sample.m_strQYBH, "", &sample)) return CNext::Close;
    PrintTableResults();
    return CNext::Base;
}

int CBRENDlg::AddContext(const CString& strZKBH, const CString& strQYBH, const CString& strShown,
                         QYPropty* sample) {
    CSampleContext context;
    if (!ReadSampleContext(m_nGCSY, strZKBH, strQYBH, strShown, &context, &m_bQuYangOk, &m_bTuCengOk))
        return 0;
    m_saDepth.Add(context.m_strDepth);
    m_saWater.Add(context.m_strWater);
    m_saIP.Add(context.m_strIP);
    m_saIL.Add(context.m_strIL);
    m_saLayer.Add(context.m_strLayer);
    if (!sample) return 1;
    sample->m_strDepth = context.m_strDepth;
    sample->m_strWater = context.m_strWater;
    sample->m_strIP = context.m_strIP;
    sample->m_strIL = context.m_strIL;
    sample->m_strLayer = context.m_strLayer;
    return 1;
}

void CBRENDlg::ReadProjectAndAnnotation() {
    m_strGCMC = ReadProjectText("GCMC");
    m_strGCBH = ReadProjectText("GCBH");
    m_bDate = m_pageZS.m_bDate;
    m_bChecker = m_pageZS.m_bChecker;
    m_bTester = m_pageZS.m_bTester;
    m_bUnit = m_pageZS.m_bUnit;
    m_strChecker = m_pageZS.m_strChecker;
    m_strUnit = m_pageZS.m_strUnit;
    m_strTester = m_pageZS.m_strTester;
    m_strDate = m_pageZS.m_strDate;
    m_tDate = m_pageZS.m_tDate;
}

void CBRENDlg::PrintTableResults() const {
    acutPrintf(m_bQuYangOk ? L"\n读取z_c_QuYang表数据成功!" : L"\n读取z_c_QuYang表数据失败!");
    acutPrintf(m_bTuCengOk ? L"\n读取z_g_TuCengSet表数据成功!\n" : L"\n读取z_g_TuCengSet表数据失败!");
}

void CBRENDlg::MarkSelection() {
    SaveMarks(g_pMarksSection, SampleMarksKey(m_strZKBH), &m_pageGen.m_listQY, g_strMarksIni);
    if (AllDone(&m_pageGen.m_listQY))
        SaveMarks(g_pMarksSection, BoreholeMarksKey(), &m_pageGen.m_listZK, g_strMarksIni);
}

void CBRENDlg::WriteAllMarks() const {
    CStringArray boreholes;
    for (const arZKBH& record : m_pageGen.m_arByZK) {
        WriteMarks(g_pMarksSection, SampleMarksKey(record.m_strZKBH), record.m_saQY, g_strMarksIni);
        boreholes.Add(record.m_strZKBH);
    }
    boreholes.Add(g_pAllSamplesTitle);
    WriteMarks(g_pMarksSection, BoreholeMarksKey(), boreholes, g_strMarksIni);
}
