#pragma once

#include "platform/mfc/entry_window.h"

/// A combo box with a drop-down list, of whose entries one is selected; the user types no text of his own.
class CComboBox : public CEntryWnd {
public:
    /// Leaves the text as it is for a bad index.
    void GetLBText(int index, CString& text) const { GetEntryText(index, text); }
};
