#include "platform/mfc/list_box.h"

#include <algorithm>

bool CListBox::IsMultiple() const {
    return GetControl() && GetControl()->m_kind == CControlKind::MultiList;
}

int CListBox::DeleteString(int index) {
    if (!Has(index)) return LB_ERR;
    auto& entries = GetControl()->m_arEntries;
    entries.erase(entries.begin() + index);
    int& caret = GetControl()->m_nCaret;
    caret = std::clamp(caret, 0, std::max(GetCount() - 1, 0));
    return GetCount();
}

int CListBox::GetCurSel() const {
    if (!IsMultiple()) return CEntryWnd::GetCurSel();
    return GetCount() > 0 ? GetControl()->m_nCaret : LB_ERR;
}

int CListBox::SetCurSel(int index) {
    return IsMultiple() ? LB_ERR : CEntryWnd::SetCurSel(index);
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
