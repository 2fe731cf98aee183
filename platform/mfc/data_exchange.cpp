#include "platform/mfc/data_exchange.h"

namespace {

// Null when the exchange has failed or there is no such control, which fails it.
CWnd* Item(CDataExchange* pDX, UINT nIDC) {
    if (pDX->HasFailed()) return nullptr;
    CWnd* pItem = pDX->m_pDlgWnd->GetDlgItem(nIDC);
    if (!pItem) pDX->Fail();
    return pItem;
}

} // namespace

void DDX_Control(CDataExchange* pDX, UINT nIDC, CWnd& rControl) {
    const CWnd* pItem = Item(pDX, nIDC);
    if (pItem && pItem->GetControl() != rControl.GetControl()) rControl.SubclassDlgItem(nIDC, pDX->m_pDlgWnd);
}

void DDX_Check(CDataExchange* pDX, UINT nIDC, int& value) {
    const CWnd* pItem = Item(pDX, nIDC);
    if (!pItem) return;
    int& nCheck = pItem->GetControl()->m_nCheck;
    if (pDX->m_bSaveAndValidate) {
        value = nCheck;
    } else {
        nCheck = value != 0;
    }
}

void DDX_Text(CDataExchange* pDX, UINT nIDC, CString& value) {
    CWnd* pItem = Item(pDX, nIDC);
    if (!pItem) return;
    if (pDX->m_bSaveAndValidate) {
        pItem->GetWindowText(value);
    } else {
        pItem->SetWindowText(value);
    }
}
