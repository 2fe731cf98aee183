#include "host/desktop/dialogs/selection_change.h"

#include <algorithm>

#include "platform/mfc/user_actions.h"

namespace {

using CEntries = std::vector<CListEntry>;

bool IsSelected(const CEntries& entries, int nRow) {
    return nRow < static_cast<int>(entries.size()) && entries[nRow].m_bSelected;
}

} // namespace

void ChangeSelection(CWnd& list, const std::vector<int>& arRows) {
    const CEntries& entries = list.GetControl()->m_arEntries;
    const bool bKeepsSome =
        std::any_of(arRows.begin(), arRows.end(), [&](int nRow) { return IsSelected(entries, nRow); });
    // Else the first entry taken ends the selection of the others, as a plain click does.
    bool bKeepOthers = bKeepsSome;
    for (int nRow = 0; (bKeepsSome || arRows.empty()) && nRow < static_cast<int>(entries.size()); ++nRow)
        if (entries[nRow].m_bSelected && !std::binary_search(arRows.begin(), arRows.end(), nRow))
            UserDeselect(list, nRow);
    for (const int nRow : arRows) {
        if (nRow >= static_cast<int>(entries.size())) break; // a handler took it away
        if (entries[nRow].m_bSelected) continue;
        UserSelect(list, nRow, bKeepOthers);
        bKeepOthers = true;
    }
}
