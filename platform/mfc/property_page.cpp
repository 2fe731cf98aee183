#include "platform/mfc/property_page.h"

#include "platform/mfc/property_sheet.h"

void CPropertyPage::EndDialog(int nResult) {
    if (m_pSheet) m_pSheet->EndDialog(nResult);
}

BOOL CPropertyPage::ContinueModal() const {
    return m_pSheet && m_pSheet->ContinueModal();
}

BOOL CPropertyPage::OnSetActive() {
    if (m_bShownBefore) UpdateData(FALSE);
    m_bShownBefore = true;
    return TRUE;
}

BOOL CPropertyPage::OnApply() {
    OnOK();
    return TRUE;
}

const CDialogTemplate* CPropertyPage::FindTemplate() const {
    return m_psp.dwFlags & PSP_DLGINDIRECT ? m_psp.pResource : CDialog::FindTemplate();
}
