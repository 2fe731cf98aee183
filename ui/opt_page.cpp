#include "ui/opt_page.h"

#include "platform/mfc/data_exchange.h"
#include "ui/page_settings.h"
#include "ui/resources.h"

namespace {

constexpr int g_nFixedSize = 2;
constexpr int g_nMostPerRow = 100000;

} // namespace

const CRuntimeClass COptPage::classCOptPage = {"COptPage", nullptr, []() -> CWnd* { return new COptPage; }};

COptPage::COptPage()
    : CNPropertyPage(IDD_OPT_PAGE) {
    m_psp.dwFlags &= ~PSP_HASHELP;
}

BOOL COptPage::OnInitDialog() {
    CNPropertyPage::OnInitDialog();
    m_bFrameBorder = ReadPageNumber(g_settingOuterFrame);
    m_bOneDwg = ReadPageNumber(g_settingOneFile);
    m_strSheetSize = ReadPageText(g_settingSheetSize);
    m_nPerRow = ReadPageNumber(g_settingFramesPerRow);
    for (const char* pSize : {"A0", "A1", "A2", "A3", "A4"})
        m_comboSize.AddString(pSize);
    EnablePerRow();
    if (m_nMode == g_nFixedSize) m_comboSize.EnableWindow(FALSE);
    UpdateData(FALSE);
    return TRUE;
}

void COptPage::OnOK() {
    WritePageNumber(g_settingOuterFrame, m_bFrameBorder);
    WritePageNumber(g_settingOneFile, m_bOneDwg);
    WritePageText(g_settingSheetSize, m_strSheetSize);
    WritePageNumber(g_settingFramesPerRow, m_nPerRow);
    CNPropertyPage::OnOK();
}

void COptPage::EnablePerRow() {
    GetDlgItem(IDC_PER_ROW)->EnableWindow(m_bOneDwg != 0);
}

void COptPage::OnSizeClosedUp() {
    m_comboSize.GetLBText(m_comboSize.GetCurSel(), m_strSheetSize);
}

void COptPage::OnOneDwg() {
    m_bOneDwg = !m_bOneDwg;
    EnablePerRow();
}

void COptPage::DoDataExchange(CDataExchange* pDX) {
    DDX_Control(pDX, IDC_SHEET_SIZE, m_comboSize);
    DDX_Check(pDX, IDC_FRAME_BORDER, m_bFrameBorder);
    DDX_CBString(pDX, IDC_SHEET_SIZE, m_strSheetSize);
    DDX_Check(pDX, IDC_ONE_DWG, m_bOneDwg);
    DDX_Text(pDX, IDC_PER_ROW, m_nPerRow);
    DDV_MinMaxInt(pDX, m_nPerRow, 1, g_nMostPerRow);
}

std::span<const CMessageEntry> COptPage::GetMessageMap() const {
    static const CMessageEntry map[] = {{IDC_SHEET_SIZE, CBN_CLOSEUP, &COptPage::OnSizeClosedUp},
                                        {IDC_ONE_DWG, BN_CLICKED, &COptPage::OnOneDwg}};
    return map;
}
