#pragma once

#include "platform/mfc/entry_window.h"

/// A list box, for one selected entry or for several.
class CListBox : public CEntryWnd {
public:
    bool IsMultiple() const;
    /// Entries left, or LB_ERR.
    int DeleteString(int index);
    /// Leaves the text as it is for a bad index.
    void GetText(int index, CString& text) const { GetEntryText(index, text); }

    /// In a list for several the entry that has the focus, selected or not.
    int GetCurSel() const override;
    /// LB_ERR in a list for several.
    int SetCurSel(int index) override;

    /// 1 when selected, 0 when not, LB_ERR for a bad index.
    int GetSel(int index) const;
    /// -1 for all entries. LB_ERR for a bad index, and in a list for one.
    int SetSel(int index, BOOL bSelect = TRUE);
    /// LB_ERR in a list for one.
    int GetSelCount() const;
    /// Takes down up to nMaxItems indices of selected entries, in order, as LB_GETSELITEMS does: those beyond
    /// are left out. The number taken down; LB_ERR in a list for one.
    int GetSelItems(int nMaxItems, int* indices) const;
};
