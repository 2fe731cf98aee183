#pragma once
// A list box without a dialog.

#include "platform/mfc/list_box.h"

class CTestList : public CListBox {
public:
    explicit CTestList(CControlKind kind) {
        auto control = std::make_shared<CControl>();
        control->m_kind = kind;
        Attach(control);
    }
    CTestList(CControlKind kind, const std::vector<const char*>& texts)
        : CTestList(kind) {
        for (const char* text : texts)
            AddString(text);
    }
    /// The entries in a row, `>` before a selected one, a blank before any other.
    std::string Shown() const {
        std::string shown;
        for (int i = 0; i < GetCount(); ++i) {
            CString text;
            GetText(i, text);
            shown += (GetSel(i) ? ">" : " ") + std::string(text);
        }
        return shown;
    }
};
