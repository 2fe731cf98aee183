#include "ui/gen_page.h"

#include "commands/chart_marks.h"
#include "data/criteria.h"
#include "data/frame_template.h"
#include "data/project_context.h"
#include "data/san_zhou_csxm_record.h"
#include "data/san_zhou_record.h"
#include "data/show_message.h"
#include "data/suite_statements.h"
#include "platform/acad/editor.h"
#include "platform/mfc/data_exchange.h"
#include "platform/windows/shell.h"
#include "ui/resources.h"
#include "ui/selection_keys.h"

namespace {

constexpr const char* g_pConfigProgram = "\\TervoConfig.exe"; // below the root
// The quote is not closed: the program takes it so.
constexpr const char* g_pConfigArguments = "/s \"成果图-室内试验";

// Opens the readings and goes to the first row; reports and gives false when there is none.
bool OpenReadings(CSanZhouCSXMRecord& record, const CString& criterion) {
    if (!record.OpenRows(record.QueryFor(criterion), 0, 1)) {
        ShowMessage("数据库z_c_SanZhouCSXM打开错误!");
        return false;
    }
    if (record.MoveFirstRow() == 0) return true;
    acutPrintf(L"\n数据库z_c_SanZhouCSXM当前工程没有数据!");
    record.CloseRows();
    return false;
}

} // namespace

CGenPage::CGenPage()
    : CNPropertyPage(IDD_GEN_PAGE) {
    m_psp.dwFlags &= ~PSP_HASHELP;
}

int CGenPage::LoadBoreholes() {
    CSanZhouCSXMRecord record;
    if (!OpenReadings(record, ProjectListCriterion(m_nGCSY))) return 0;
    m_strZKBH = record.m_szZKBH;
    CString strFormerZK, strFormerQY;
    bool bFirst = true;
    do {
        const CString strZK = record.m_szZKBH, strQY = record.m_szQYBH;
        if (bFirst || strZK != strFormerZK) {
            m_saZKPlain.Add(strZK);
            m_saZK.Add(strZK);
        }
        if (strZK == m_strZKBH && (bFirst || strQY != strFormerQY)) {
            m_saQY.Add(strQY);
            ReadTestMethod(strZK, strQY);
        }
        strFormerZK = strZK;
        strFormerQY = strQY;
        bFirst = false;
    } while (record.MoveNextRow() == 0);
    record.CloseRows();
    return 1;
}

// One entry of m_saSYFF comes of it in any case, so that it stays parallel to the samples.
void CGenPage::ReadTestMethod(const CString& strZKBH, const CString& strQYBH) {
    CSanZhouRecord record;
    CString strSYFF;
    if (!record.OpenRows(record.QueryFor(SampleCriterion(m_nGCSY, strZKBH, strQYBH)), 0, 1)) {
        ShowMessage("数据库z_c_SanZhou打开错误!");
        m_bSamplesValid = 0;
    } else if (record.MoveFirstRow() != 0) {
        acutPrintf(L"\n数据库z_c_SanZhou数据SYFF不全!");
        m_bSamplesValid = 0;
    } else if (record.m_dwStatusSYFF != DBSTATUS_S_ISNULL) {
        strSYFF = record.m_szSYFF;
    }
    record.CloseRows();
    m_saSYFF.Add(strSYFF);
}

BOOL CGenPage::OnInitDialog() {
    CNPropertyPage::OnInitDialog();
    m_saCurQY.RemoveAll();
    for (const CString& strZK : m_saZK)
        m_listZK.AddString(strZK);
    for (const CString& strQY : m_saQY)
        m_listQY.AddString(strQY);
    LoadMarks(g_pMarksSection, BoreholeMarksKey(), &m_listZK, g_strMarksIni);
    GetFrameTemplate(g_pszChartFunction, &m_strFrameFile, &m_strFramePath);
    m_listZK.SetCurSel(0);
    LoadSamples();
    return TRUE;
}

void CGenPage::LoadSamples() {
    if (!m_bAll) {
        const int index = m_listZK.GetCurSel();
        if (index == LB_ERR) return;
        m_listZK.GetText(index, m_strZKBH);
        UpdateData();
    }
    ReadSamples();
}

// Result 0, and the lists as they were, when the borehole's readings cannot be had.
int CGenPage::ReadSamples() {
    m_strZKBH = WithoutMark(m_strZKBH);
    CSanZhouCSXMRecord record;
    if (!OpenReadings(record, BoreholeListCriterion(m_nGCSY, m_strZKBH))) return 0;
    m_listQY.ResetContent();
    m_saSYFF.RemoveAll();
    m_saCurQY.RemoveAll();
    do {
        const CString strQY = record.m_szQYBH;
        if (!m_saCurQY.IsEmpty() && strQY == m_saCurQY[m_saCurQY.GetUpperBound()]) continue;
        m_listQY.AddString(strQY);
        m_saCurQY.Add(strQY);
        ReadTestMethod(m_strZKBH, strQY);
    } while (record.MoveNextRow() == 0);
    record.CloseRows();
    LoadMarks(g_pMarksSection, SampleMarksKey(m_strZKBH), &m_listQY, g_strMarksIni);
    return 1;
}

void CGenPage::CollectAll() {
    m_arAll.RemoveAll();
    m_arByZK.RemoveAll();
    arZKBH all;
    for (int i = 0; i < m_saZKPlain.GetSize(); ++i) {
        m_strZKBH = m_saZKPlain[i];
        if (ReadSamples()) CollectBorehole(&all);
        m_listZK.SetCurSel(i);
        m_listQY.SetSel(0);
    }
    m_arAll.Add(all);
}

void CGenPage::CollectBorehole(arZKBH* all) {
    arZKBH borehole;
    borehole.m_strZKBH = m_strZKBH;
    for (int i = 0; i < m_saCurQY.GetSize(); ++i) {
        QYPropty sample;
        sample.m_strZKBH = m_strZKBH;
        sample.m_strQYBH = m_saCurQY[i];
        sample.m_strSYFF = m_saSYFF[i];
        all->m_arQY.Add(sample);
        borehole.m_saQY.Add(m_saCurQY[i]);
    }
    m_arByZK.Add(borehole);
}

void CGenPage::OnAllChanged() {
    UpdateData();
    for (const UINT nId : {IDC_QY_LIST, IDC_ZK_LIST, IDC_CLEAR_MARKS})
        GetDlgItem(nId)->EnableWindow(!m_bAll);
}

// The borehole keeps its mark when the last sample's goes.
void CGenPage::OnClearMarks() {
    const int index = m_listZK.GetCurSel();
    if (index == LB_ERR) {
        ShowMessage("请先选择钻孔,再删除!");
        return;
    }
    CString strZK;
    m_listZK.GetText(index, strZK);
    if (m_listQY.IsMultiple())
        ClearMarks(g_pMarksSection, SampleMarksKey(WithoutMark(strZK)), &m_listQY, g_strMarksIni);
    if (!AnyMarked(&m_listQY)) return;
    ClearMarks(g_pMarksSection, BoreholeMarksKey(), &m_listZK, g_strMarksIni);
    m_listZK.SetCurSel(index);
}

// Closes without an OK: the command is given again once the template is edited.
void CGenPage::OnEditTemplate() {
    CString strRoot;
    GetRootPath(&strRoot);
    ShellExecuteA(nullptr, "open", strRoot + g_pConfigProgram, g_pConfigArguments, nullptr, SW_SHOW);
    EndDialog(IDC_EDIT_TEMPLATE);
}

void CGenPage::DoDataExchange(CDataExchange* pDX) {
    DDX_Control(pDX, IDC_ZK_LIST, m_listZK);
    DDX_Control(pDX, IDC_QY_LIST, m_listQY);
    DDX_Check(pDX, IDC_ALL, m_bAll);
}

std::span<const CMessageEntry> CGenPage::GetMessageMap() const {
    static const CMessageEntry map[] = {{IDC_ZK_LIST, LBN_SELCHANGE, &CGenPage::LoadSamples},
                                        {IDC_CLEAR_MARKS, BN_CLICKED, &CGenPage::OnClearMarks},
                                        {IDC_ALL, BN_CLICKED, &CGenPage::OnAllChanged},
                                        {IDC_EDIT_TEMPLATE, BN_CLICKED, &CGenPage::OnEditTemplate}};
    return map;
}
