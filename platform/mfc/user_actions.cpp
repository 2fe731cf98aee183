#include "platform/mfc/user_actions.h"

#include "platform/mfc/radio_group.h"

namespace {

// A handler may have closed the dialog: then nothing more is told.
void Notify(const CWnd& control, int nCode) {
    auto* pDialog = dynamic_cast<CModalWindow*>(control.GetParent());
    if (pDialog && pDialog->ContinueModal()) pDialog->OnCommand(control.GetDlgCtrlID(), nCode);
}

void NotifySelection(const CWnd& control) {
    if (control.GetControl()->m_kind != CControlKind::Combo) return Notify(control, LBN_SELCHANGE);
    for (const int nCode : {CBN_DROPDOWN, CBN_SELENDOK, CBN_SELCHANGE, CBN_CLOSEUP})
        Notify(control, nCode);
}

} // namespace

void UserSelect(CWnd& control, int index, bool bKeepOthers) {
    CControl& state = *control.GetControl();
    if (!bKeepOthers || state.m_kind != CControlKind::MultiList)
        for (CListEntry& entry : state.m_arEntries)
            entry.m_bSelected = false;
    state.m_arEntries[index].m_bSelected = true;
    state.m_nCaret = index;
    NotifySelection(control);
}

void UserDeselect(CWnd& control, int index) {
    control.GetControl()->m_arEntries[index].m_bSelected = false;
    control.GetControl()->m_nCaret = index;
    NotifySelection(control);
}

void UserDoubleClick(CWnd& list, int index) {
    UserSelect(list, index);
    Notify(list, LBN_DBLCLK);
}

void UserClick(CWnd& control) {
    CControl& state = *control.GetControl();
    if (state.m_kind == CControlKind::Check) state.m_nCheck = state.m_nCheck == 0;
    if (state.m_kind == CControlKind::Radio) {
        for (const CWnd* pOther : RadioGroup(control))
            pOther->GetControl()->m_nCheck = 0;
        state.m_nCheck = 1;
    }
    Notify(control, BN_CLICKED);
}

void UserSetText(CWnd& edit, const CString& text) {
    edit.SetWindowText(text);
    Notify(edit, EN_UPDATE);
    Notify(edit, EN_CHANGE);
}

void UserSetDate(CWnd& control, std::chrono::year_month_day date) {
    control.GetControl()->m_date = date;
    Notify(control, DTN_DATETIMECHANGE);
}
