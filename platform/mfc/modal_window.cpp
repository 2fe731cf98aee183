#include "platform/mfc/modal_window.h"

#include "platform/mfc/combo_box.h"
#include "platform/mfc/date_time_ctrl.h"
#include "platform/mfc/list_box.h"

namespace {

CDialogPresenter* g_pPresenter = nullptr;

std::shared_ptr<CControl> MakeControl(const CControlTemplate& from, CWnd* pParent) {
    auto control = std::make_shared<CControl>();
    control->m_nId = from.m_nId;
    control->m_kind = from.m_kind;
    control->m_place = from.m_place;
    control->m_nFlags = from.m_nFlags;
    control->m_strText = from.m_strCaption;
    control->m_bEnabled = !(from.m_nFlags & CONTROL_DISABLED);
    control->m_bVisible = !(from.m_nFlags & CONTROL_HIDDEN);
    control->m_bReadOnly = (from.m_nFlags & CONTROL_READONLY) != 0;
    if (from.m_kind == CControlKind::Date) control->m_date = CTime::GetCurrentTime().GetDate();
    control->m_pParent = pParent;
    return control;
}

std::unique_ptr<CWnd> MakeHandle(CControlKind kind) {
    switch (kind) {
    case CControlKind::List:
    case CControlKind::MultiList:
        return std::make_unique<CListBox>();
    case CControlKind::Combo:
        return std::make_unique<CComboBox>();
    case CControlKind::Date:
        return std::make_unique<CDateTimeCtrl>();
    default:
        return std::make_unique<CWnd>();
    }
}

} // namespace

CDialogPresenter* DialogPresenter() {
    return g_pPresenter;
}

void SetDialogPresenter(CDialogPresenter* pPresenter) {
    g_pPresenter = pPresenter;
}

int CModalWindow::DoModal() {
    CDialogPresenter* pPresenter = DialogPresenter();
    if (!pPresenter || !Create()) return -1;
    m_bOpen = true;
    OnInitDialog();
    if (m_bOpen) pPresenter->RunModal(*this);
    if (m_bOpen) EndDialog(ID_CANCEL);
    Destroy();
    return m_nResult;
}

void CModalWindow::EndDialog(int nResult) {
    m_nResult = nResult;
    m_bOpen = false;
}

void CModalWindow::OnCommand(UINT nId, int nCode) {
    OnCmdMsg(nId, nCode, nullptr, nullptr);
}

CWnd* CModalWindow::GetDlgItem(UINT nId) const {
    for (const auto& pItem : m_arItems)
        if (pItem->GetDlgCtrlID() == nId) return pItem->GetControl()->m_pHandle;
    return nullptr;
}

std::vector<CWnd*> CModalWindow::GetItems() const {
    std::vector<CWnd*> items;
    for (const auto& pItem : m_arItems)
        items.push_back(pItem->GetControl()->m_pHandle);
    return items;
}

void CModalWindow::Destroy() {
    for (const auto& pItem : m_arItems)
        pItem->GetControl()->m_pHandle->m_pControl.reset();
    m_arItems.clear();
    Attach(nullptr);
}

void CModalWindow::CreateFrom(const CDialogTemplate& dialog) {
    CControlTemplate self;
    self.m_nId = dialog.m_nId;
    self.m_kind = CControlKind::Dialog;
    self.m_strCaption = dialog.m_strCaption;
    self.m_place = {0, 0, dialog.m_cx, dialog.m_cy};
    Attach(MakeControl(self, nullptr));
    for (const CControlTemplate& control : dialog.m_arControls) {
        m_arItems.push_back(MakeHandle(control.m_kind));
        CWnd& item = *m_arItems.back();
        item.m_pControl = MakeControl(control, this);
        item.m_pControl->m_pHandle = &item;
    }
}
