#pragma once

#include "platform/mfc/window.h"

inline constexpr int LB_ERR = -1;
inline constexpr int CB_ERR = -1;

/// What list boxes and combo boxes have in common: texts in the order given. At most one is selected, but in
/// a list box for several. Indices count from 0; -1 (LB_ERR, CB_ERR) is the answer for none.
class CEntryWnd : public CWnd {
public:
    int GetCount() const;
    /// Index of the new entry.
    int AddString(const char* text) { return InsertString(-1, text); }
    /// -1 appends. LB_ERR for an index beyond the end.
    int InsertString(int index, const char* text);
    void ResetContent();

    /// The selected entry.
    virtual int GetCurSel() const;
    /// -1 takes the selection away. LB_ERR for a bad index and for -1.
    virtual int SetCurSel(int index);

    /// Leaves the text as it is for a bad index.
    void GetEntryText(int index, CString& text) const;

protected:
    bool Has(int index) const { return index >= 0 && index < GetCount(); }
};
