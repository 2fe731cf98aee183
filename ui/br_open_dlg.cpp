#include "ui/br_open_dlg.h"

#include "commands/chart_folder.h"
#include "commands/document_session.h"
#include "commands/open_drawings.h"
#include "commands/text_lists.h"
#include "data/criteria.h"
#include "data/project_context.h"
#include "data/san_zhou_csxm_record.h"
#include "data/show_message.h"
#include "data/table_errors.h"
#include "platform/mfc/data_exchange.h"
#include "platform/mfc/file_find.h"
#include "ui/chart_titles.h"
#include "ui/resources.h"

namespace {

constexpr const char* g_pAllSamples = "全部";
constexpr const char* g_pChartFiles = "BR*";
constexpr const char* g_pEnding = ".dwg";
constexpr int g_nEnding = 4; // its length

int g_nSelectedAlone = 0; ///< the entry selected last, of the dialog before where none was yet

CString TitleOf(const CString& strPath) {
    const CString strStem = strPath.Left(strPath.GetLength() - g_nEnding);
    return strStem.Mid(strStem.ReverseFind('\\') + 1);
}

/// Of two selected entries keeps the one selected last.
void LimitSelection(CListBox& list) {
    int arSelected[2]{};
    const int nSelected = list.GetSelCount();
    list.GetSelItems(2, arSelected);
    if (nSelected == 1) g_nSelectedAlone = arSelected[0];
    if (nSelected != 2) return;
    list.SetSel(g_nSelectedAlone, FALSE);
    g_nSelectedAlone = arSelected[arSelected[0] == g_nSelectedAlone ? 1 : 0];
}

} // namespace

CBROpenDlg::CBROpenDlg(void* pOwner)
    : CDialog(IDD_OPEN, pOwner) {}

BOOL CBROpenDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    SetIcon(IDI_TERVO, TRUE);
    SetIcon(IDI_TERVO, FALSE);
    if (m_bPreset) {
        ShowPreset();
        return TRUE;
    }
    m_nGCSY = GetProjectIndex();
    m_strOpenGCBH = ReadProjectText("GCBH");
    if (!ListBoreholes()) return FALSE;
    if (ListCharts(g_pAllSamplesTitle) > 0) m_listZK.AddString(g_pAllSamples);
    m_listZK.SetCurSel(0);
    ListChartsOfBorehole();
    return TRUE;
}

void CBROpenDlg::ShowPreset() {
    m_listZK.SetCurSel(m_listZK.AddString(m_strOpenZK));
    m_listCharts.ResetContent();
    for (const CString& strTitle : m_saOpenFiles)
        m_listCharts.AddString(DisplayName(strTitle));
}

// Result 0, and an empty list, when there is none or the readings cannot be opened.
int CBROpenDlg::ListBoreholes() {
    CSanZhouCSXMRecord record;
    if (!record.OpenRows(record.QueryFor(OpenDialogListCriterion(m_nGCSY)), 0, 1)) {
        ReportTableError(TableError_TriaxialItems);
        return 0;
    }
    CStringArray saBoreholes;
    for (int nStatus = record.MoveFirstRow(); nStatus == 0; nStatus = record.MoveNextRow())
        FindOrAdd(saBoreholes, record.m_szZKBH);
    record.CloseRows();
    for (const CString& strZKBH : saBoreholes)
        m_listZK.AddString(strZKBH);
    return saBoreholes.IsEmpty() ? 0 : 1;
}

void CBROpenDlg::ListChartsOfBorehole() {
    m_listZK.GetText(m_listZK.GetCurSel(), m_strOpenZK);
    m_listCharts.ResetContent();
    m_saOpenFiles.RemoveAll();
    ListCharts(g_pChartFiles);
}

int CBROpenDlg::ListCharts(const char* pattern) {
    CFileFind find;
    int nFiles = 0;
    BOOL bMore = find.FindFile(ChartFolder(m_strOpenGCBH) + "\\" + pattern + g_pEnding);
    for (; bMore; nFiles++) {
        bMore = find.FindNextFile();
        const CString strTitle = TitleOf(find.GetFilePath());
        if (!MatchBorehole(m_strOpenZK, strTitle)) continue;
        m_saOpenFiles.Add(strTitle);
        m_listCharts.AddString(DisplayName(strTitle));
    }
    return nFiles;
}

void CBROpenDlg::OnOK() {
    if (m_listCharts.GetCurSel() == LB_ERR || m_listCharts.GetCount() == 0) {
        ShowMessage("请选择试样,然后确认!");
        return;
    }
    CStringArray saChosen;
    for (int i = 0; i < m_listCharts.GetCount(); i++)
        if (m_listCharts.GetSel(i) > 0) saChosen.Add(m_saOpenFiles[i]);
    m_strOpenResult = JoinTexts(saChosen, g_cPathSeparator);
    CDialog::OnOK();
}

void CBROpenDlg::OnZKChange() {
    if (!m_bPreset) ListChartsOfBorehole();
}

void CBROpenDlg::OnSampleDblClk() {
    OnOK();
}

// A program with one document takes one drawing.
void CBROpenDlg::OnSampleChange() {
    if (!IsMultiDocument()) LimitSelection(m_listCharts);
}

void CBROpenDlg::DoDataExchange(CDataExchange* pDX) {
    DDX_Control(pDX, IDC_OPEN_ZK_LIST, m_listZK);
    DDX_Control(pDX, IDC_OPEN_CHART_LIST, m_listCharts);
    DDX_LBString(pDX, IDC_OPEN_ZK_LIST, m_strOpenZK);
}

std::span<const CMessageEntry> CBROpenDlg::GetMessageMap() const {
    static const CMessageEntry map[] = {{IDC_OPEN_ZK_LIST, LBN_SELCHANGE, &CBROpenDlg::OnZKChange},
                                        {IDC_OPEN_CHART_LIST, LBN_DBLCLK, &CBROpenDlg::OnSampleDblClk},
                                        {IDC_OPEN_CHART_LIST, LBN_SELCHANGE, &CBROpenDlg::OnSampleChange}};
    return map;
}
