#pragma once

#include "platform/mfc/window.h"

inline constexpr int LB_ERR = -1;

/// A list box of texts in the order given, for one selected entry or for several. Indices count from 0.
class CListBox : public CWnd {
public:
    bool IsMultiple() const;
    int GetCount() const;
    /// Index of the new entry.
    int AddString(const char* text) { return InsertString(-1, text); }
    /// -1 appends. LB_ERR for an index beyond the end.
    int InsertString(int index, const char* text);
    /// Entries left, or LB_ERR.
    int DeleteString(int index);
    void ResetContent();
    /// Leaves the text as it is for a bad index.
    void GetText(int index, CString& text) const;

    /// The selected entry; in a list for several the one that has the focus, selected or not. LB_ERR when
    /// there is none.
    int GetCurSel() const;
    /// -1 takes the selection away. LB_ERR for a bad index, for -1, and in a list for several.
    int SetCurSel(int index);

    /// 1 when selected, 0 when not, LB_ERR for a bad index.
    int GetSel(int index) const;
    /// -1 for all entries. LB_ERR for a bad index, and in a list for one.
    int SetSel(int index, BOOL bSelect = TRUE);
    /// LB_ERR in a list for one.
    int GetSelCount() const;
    /// Takes down up to nMaxItems indices of selected entries, in order. Their number; LB_ERR in a list for
    /// one.
    int GetSelItems(int nMaxItems, int* indices) const;

private:
    bool Has(int index) const { return index >= 0 && index < GetCount(); }
};
