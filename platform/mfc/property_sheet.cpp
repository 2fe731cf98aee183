#include "platform/mfc/property_sheet.h"

#include <algorithm>

namespace {

constexpr CControlPlace OK_PLACE{130, 200, 50, 14};
constexpr CControlPlace CANCEL_PLACE{184, 200, 50, 14};
constexpr CControlPlace HELP_PLACE{238, 200, 50, 14};

} // namespace

CPropertySheet::CPropertySheet(const char* caption, void* pOwner, UINT iSelectPage)
    : CModalWindow(pOwner)
    , m_strCaption(caption)
    , m_nFirstPage(iSelectPage) {}

void CPropertySheet::AddPage(CPropertyPage* pPage) {
    pPage->m_pSheet = this;
    m_arPages.push_back(pPage);
}

CPropertyPage* CPropertySheet::GetPage(int index) const {
    return index >= 0 && index < GetPageCount() ? m_arPages[index] : nullptr;
}

BOOL CPropertySheet::SetActivePage(CPropertyPage* pPage) {
    if (std::find(m_arPages.begin(), m_arPages.end(), pPage) == m_arPages.end()) return FALSE;
    if (pPage == m_pActive) return TRUE;
    if (m_pActive && !m_pActive->OnKillActive()) return FALSE;
    const bool bNew = !pPage->GetControl();
    if (bNew && !pPage->Create()) return FALSE;
    m_pActive = pPage;
    if (bNew) pPage->OnInitDialog();
    return pPage->OnSetActive();
}

CString CPropertySheet::GetPageCaption(const CPropertyPage& page) const {
    const CDialogTemplate* pTemplate = page.FindTemplate();
    return pTemplate ? CString(pTemplate->m_strCaption) : CString();
}

BOOL CPropertySheet::OnInitDialog() {
    if (!SetActivePage(GetPage(static_cast<int>(m_nFirstPage)))) EndDialog(-1);
    return TRUE;
}

void CPropertySheet::OnCommand(UINT nId, int nCode) {
    if (OnCmdMsg(nId, nCode, nullptr, nullptr) || nCode != BN_CLICKED) return;
    if (nId == ID_OK) PressOk();
    if (nId == ID_CANCEL) PressCancel();
}

std::vector<CWnd*> CPropertySheet::GetItems() const {
    std::vector<CWnd*> items = m_pActive ? m_pActive->GetItems() : std::vector<CWnd*>();
    const std::vector<CWnd*> own = CModalWindow::GetItems();
    items.insert(items.end(), own.begin(), own.end());
    return items;
}

bool CPropertySheet::Create() {
    CDialogTemplate sheet;
    sheet.m_strCaption = m_strCaption.GetString();
    sheet.m_arControls = {{ID_OK, CControlKind::Button, "确定", OK_PLACE, CONTROL_DEFAULT},
                          {ID_CANCEL, CControlKind::Button, "取消", CANCEL_PLACE, CONTROL_PLAIN}};
    const auto hasHelp = [](const CPropertyPage* pPage) { return (pPage->m_psp.dwFlags & PSP_HASHELP) != 0; };
    if (std::any_of(m_arPages.begin(), m_arPages.end(), hasHelp))
        sheet.m_arControls.push_back({ID_HELP, CControlKind::Button, "帮助", HELP_PLACE, CONTROL_PLAIN});
    CreateFrom(sheet);
    return true;
}

void CPropertySheet::Destroy() {
    for (CPropertyPage* pPage : m_arPages) {
        pPage->Destroy();
        pPage->m_bShownBefore = false;
    }
    m_pActive = nullptr;
    CModalWindow::Destroy();
}

void CPropertySheet::PressOk() {
    if (m_pActive && !m_pActive->OnKillActive()) return;
    for (CPropertyPage* pPage : m_arPages)
        if (pPage->GetControl() && !pPage->OnApply()) return;
    EndDialog(ID_OK);
}

void CPropertySheet::PressCancel() {
    for (CPropertyPage* pPage : m_arPages)
        if (pPage->GetControl()) pPage->OnReset();
    EndDialog(ID_CANCEL);
}
