#include "platform/mfc/list_box.h"

#include <algorithm>

bool CListBox::IsMultiple() const {
    return GetControl() && GetControl()->m_kind == CControlKind::MultiList;
}

int CListBox::GetCount() const {
    return GetControl() ? static_cast<int>(GetControl()->m_arEntries.size()) : 0;
}

int CListBox::InsertString(int index, const char* text) {
    if (!GetControl() || index > GetCount()) return LB_ERR;
    const int place = index < 0 ? GetCount() : index;
    auto& entries = GetControl()->m_arEntries;
    entries.insert(entries.begin() + place, CListEntry{text});
    return place;
}

int CListBox::DeleteString(int index) {
    if (!Has(index)) return LB_ERR;
    auto& entries = GetControl()->m_arEntries;
    entries.erase(entries.begin() + index);
    int& caret = GetControl()->m_nCaret;
    caret = std::clamp(caret, 0, std::max(GetCount() - 1, 0));
    return GetCount();
}

void CListBox::ResetContent() {
    if (!GetControl()) return;
    GetControl()->m_arEntries.clear();
    GetControl()->m_nCaret = 0;
}

void CListBox::GetText(int index, CString& text) const {
    if (Has(index)) text = GetControl()->m_arEntries[index].m_strText;
}

int CListBox::GetCurSel() const {
    if (GetCount() == 0) return LB_ERR;
    if (IsMultiple()) return GetControl()->m_nCaret;
    for (int i = 0; i < GetCount(); ++i)
        if (GetControl()->m_arEntries[i].m_bSelected) return i;
    return LB_ERR;
}

int CListBox::SetCurSel(int index) {
    if (!GetControl() || IsMultiple() || index >= GetCount()) return LB_ERR;
    for (CListEntry& entry : GetControl()->m_arEntries)
        entry.m_bSelected = false;
    if (index < 0) return LB_ERR;
    GetControl()->m_arEntries[index].m_bSelected = true;
    GetControl()->m_nCaret = index;
    return index;
}

int CListBox::GetSel(int index) const {
    return Has(index) ? GetControl()->m_arEntries[index].m_bSelected : LB_ERR;
}

int CListBox::SetSel(int index, BOOL bSelect) {
    if (!IsMultiple()) return LB_ERR;
    if (index == -1) {
        for (CListEntry& entry : GetControl()->m_arEntries)
            entry.m_bSelected = bSelect != FALSE;
        return 0;
    }
    if (!Has(index)) return LB_ERR;
    GetControl()->m_arEntries[index].m_bSelected = bSelect != FALSE;
    GetControl()->m_nCaret = index;
    return 0;
}

int CListBox::GetSelCount() const {
    if (!IsMultiple()) return LB_ERR;
    const auto& entries = GetControl()->m_arEntries;
    return static_cast<int>(std::count_if(entries.begin(), entries.end(),
                                          [](const CListEntry& entry) { return entry.m_bSelected; }));
}

int CListBox::GetSelItems(int nMaxItems, int* indices) const {
    if (!IsMultiple()) return LB_ERR;
    int count = 0;
    for (int i = 0; i < GetCount() && count < nMaxItems; ++i)
        if (GetControl()->m_arEntries[i].m_bSelected) indices[count++] = i;
    return count;
}
