#include "platform/mfc/entry_window.h"

int CEntryWnd::GetCount() const {
    return GetControl() ? static_cast<int>(GetControl()->m_arEntries.size()) : 0;
}

int CEntryWnd::InsertString(int index, const char* text) {
    if (!GetControl() || index > GetCount()) return LB_ERR;
    const int place = index < 0 ? GetCount() : index;
    auto& entries = GetControl()->m_arEntries;
    entries.insert(entries.begin() + place, CListEntry{text});
    return place;
}

void CEntryWnd::ResetContent() {
    if (!GetControl()) return;
    GetControl()->m_arEntries.clear();
    GetControl()->m_nCaret = 0;
}

int CEntryWnd::GetCurSel() const {
    for (int i = 0; i < GetCount(); ++i)
        if (GetControl()->m_arEntries[i].m_bSelected) return i;
    return LB_ERR;
}

int CEntryWnd::SetCurSel(int index) {
    if (!GetControl() || index >= GetCount()) return LB_ERR;
    for (CListEntry& entry : GetControl()->m_arEntries)
        entry.m_bSelected = false;
    if (index < 0) return LB_ERR;
    GetControl()->m_arEntries[index].m_bSelected = true;
    GetControl()->m_nCaret = index;
    return index;
}

void CEntryWnd::GetEntryText(int index, CString& text) const {
    if (Has(index)) text = GetControl()->m_arEntries[index].m_strText;
}
