#include "ui/zs_page.h"

#include "platform/mfc/data_exchange.h"
#include "platform/mfc/exception.h"
#include "ui/chinese_date.h"
#include "ui/page_settings.h"
#include "ui/resources.h"

const CRuntimeClass CZSPage::classCZSPage = {"CZSPage", nullptr, []() -> CWnd* { return new CZSPage; }};

CZSPage::CZSPage()
    : CNPropertyPage(IDD_ZS_PAGE)
    , m_tDate(CTime::GetCurrentTime()) {
    m_psp.dwFlags &= ~PSP_HASHELP;
}

BOOL CZSPage::OnInitDialog() {
    CNPropertyPage::OnInitDialog();
    ReadSettings();
    ReadDate();
    UpdateData(FALSE);
    return TRUE;
}

void CZSPage::ReadSettings() {
    m_bDate = ReadPageNumber(g_settingShowDate);
    m_bTester = ReadPageNumber(g_settingShowTester);
    m_bUnit = ReadPageNumber(g_settingShowUnit);
    m_bChecker = ReadPageNumber(g_settingShowChecker);
    m_strChecker = ReadPageText(g_settingChecker);
    m_strUnit = ReadPageText(g_settingUnit);
    m_strTester = ReadPageText(g_settingTester);
    m_strDate = ReadPageText(g_settingDate);
}

// A text that says no day leaves the date as it is.
void CZSPage::ReadDate() {
    int nYear = 0, nMonth = 0, nDay = 0;
    if (!ParseChineseDate(m_strDate, &nYear, &nMonth, &nDay)) return;
    try {
        m_tDate = CTime(nYear, nMonth, nDay, 0, 0, 0);
    } catch (const CInvalidArgException&) { // no such day
    }
}

void CZSPage::OnOK() {
    WritePageNumber(g_settingShowDate, m_bDate);
    WritePageNumber(g_settingShowTester, m_bTester);
    WritePageNumber(g_settingShowUnit, m_bUnit);
    WritePageNumber(g_settingShowChecker, m_bChecker);
    WritePageText(g_settingChecker, m_strChecker);
    WritePageText(g_settingUnit, m_strUnit);
    WritePageText(g_settingTester, m_strTester);
    m_strDate = ChineseDate(m_tDate);
    WritePageText(g_settingDate, m_strDate);
    CNPropertyPage::OnOK();
}

void CZSPage::DoDataExchange(CDataExchange* pDX) {
    DDX_Control(pDX, IDC_DATE, m_dateCtrl);
    DDX_Check(pDX, IDC_SHOW_DATE, m_bDate);
    DDX_Check(pDX, IDC_SHOW_TESTER, m_bTester);
    DDX_Check(pDX, IDC_SHOW_UNIT, m_bUnit);
    DDX_Text(pDX, IDC_CHECKER, m_strChecker);
    DDX_Text(pDX, IDC_UNIT, m_strUnit);
    DDX_Text(pDX, IDC_TESTER, m_strTester);
    DDX_Check(pDX, IDC_SHOW_CHECKER, m_bChecker);
    DDX_DateTimeCtrl(pDX, IDC_DATE, m_tDate);
}
