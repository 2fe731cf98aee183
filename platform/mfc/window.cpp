#include "platform/mfc/window.h"

#include "platform/mfc/data_exchange.h"

CWnd* CWnd::GetDlgItem(UINT /*nId*/) const {
    return nullptr;
}

BOOL CWnd::EnableWindow(BOOL bEnable) {
    if (!m_pControl) return FALSE;
    const bool bWasDisabled = !m_pControl->m_bEnabled;
    m_pControl->m_bEnabled = bEnable != FALSE;
    return bWasDisabled;
}

BOOL CWnd::ShowWindow(int nCmdShow) {
    if (!m_pControl) return FALSE;
    const bool bWasVisible = m_pControl->m_bVisible;
    m_pControl->m_bVisible = nCmdShow != 0;
    return bWasVisible;
}

void CWnd::SetWindowText(const char* text) {
    if (m_pControl) m_pControl->m_strText = text;
}

void CWnd::GetWindowText(CString& text) const {
    text = m_pControl ? m_pControl->m_strText : CString();
}

BOOL CWnd::SubclassDlgItem(UINT nId, CWnd* pParent) {
    const CWnd* pItem = pParent->GetDlgItem(nId);
    if (!pItem) return FALSE;
    m_pControl = pItem->m_pControl;
    m_pControl->m_pHandle = this;
    return TRUE;
}

BOOL CWnd::UpdateData(BOOL bSaveAndValidate) {
    if (!m_pControl) return FALSE;
    CDataExchange exchange(this, bSaveAndValidate);
    DoDataExchange(&exchange);
    if (exchange.HasFailed()) m_pControl->m_nFocus = exchange.GetLastControl();
    return !exchange.HasFailed();
}

BOOL CWnd::OnCmdMsg(UINT nID, int nCode, void* /*pExtra*/, AFX_CMDHANDLERINFO* /*pHandlerInfo*/) {
    for (const CMessageEntry& entry : GetMessageMap()) {
        if (entry.m_nId != nID || entry.m_nCode != nCode) continue;
        (this->*entry.m_pHandler)();
        return TRUE;
    }
    return FALSE;
}
