#include "platform/mfc/dialog.h"

#include "platform/mfc/resources.h"

BOOL CDialog::InitModalIndirect(const CDialogTemplate* pTemplate) {
    m_pTemplate = pTemplate;
    return pTemplate != nullptr;
}

BOOL CDialog::OnInitDialog() {
    UpdateData(FALSE);
    return TRUE;
}

BOOL CDialog::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (CModalWindow::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) return TRUE;
    if (nCode != BN_CLICKED || (nID != ID_OK && nID != ID_CANCEL)) return FALSE;
    if (nID == ID_OK) {
        OnOK();
    } else {
        OnCancel();
    }
    return TRUE;
}

void CDialog::OnOK() {
    if (UpdateData(TRUE)) EndDialog(ID_OK);
}

void CDialog::OnCancel() {
    EndDialog(ID_CANCEL);
}

bool CDialog::Create() {
    const CDialogTemplate* pTemplate = FindTemplate();
    if (pTemplate) CreateFrom(*pTemplate);
    return pTemplate != nullptr;
}

const CDialogTemplate* CDialog::FindTemplate() const {
    const HINSTANCE hResources = AfxGetResourceHandle();
    if (m_pTemplate || !hResources) return m_pTemplate;
    return m_nTemplate ? hResources->FindDialog(m_nTemplate) : hResources->FindDialog(m_strTemplate.c_str());
}
