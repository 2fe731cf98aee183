#pragma once
// A dialog with one control of each kind, which writes down its notifications.

#include "platform/mfc/list_box.h"
#include "platform/mfc/property_sheet.h"

namespace TestDialog {

inline constexpr UINT ONE = 10, SEVERAL = 11, COMBO = 12, EDIT = 13, CHECK = 14, RADIO_A = 15, RADIO_B = 16,
                      PUSH = 17;
inline constexpr UINT DATE = 18, LABEL = 19, DISABLED = 20, HIDDEN = 21, READ_ONLY = 22;

inline const CDialogTemplate& Template() {
    static const CDialogTemplate dialog{30,
                                        "",
                                        "取样",
                                        10,
                                        10,
                                        {{ONE, CControlKind::List, "", {}, 0},
                                         {SEVERAL, CControlKind::MultiList, "", {}, 0},
                                         {COMBO, CControlKind::Combo, "", {}, 0},
                                         {EDIT, CControlKind::Edit, "a\"b", {}, 0},
                                         {CHECK, CControlKind::Check, "check", {}, 0},
                                         {RADIO_A, CControlKind::Radio, "a", {}, CONTROL_GROUP},
                                         {RADIO_B, CControlKind::Radio, "b", {}, 0},
                                         {PUSH, CControlKind::Button, "push", {}, CONTROL_GROUP},
                                         {DATE, CControlKind::Date, "", {}, 0},
                                         {LABEL, CControlKind::Label, "two\r\nlines", {}, 0},
                                         {DISABLED, CControlKind::Button, "off", {}, CONTROL_DISABLED},
                                         {HIDDEN, CControlKind::Button, "gone", {}, CONTROL_HIDDEN},
                                         {READ_ONLY, CControlKind::Edit, "", {}, CONTROL_READONLY},
                                         {ID_OK, CControlKind::Button, "ok", {}, CONTROL_DEFAULT},
                                         {ID_CANCEL, CControlKind::Button, "cancel", {}, 0}}};
    return dialog;
}

/// The same as a page, which leaves the buttons 1 and 2 to its sheet.
inline CDialogTemplate PageTemplate() {
    CDialogTemplate page = Template();
    page.m_arControls.resize(page.m_arControls.size() - 2);
    return page;
}

inline constexpr const char* CONTROLS =
    "10 list, 11 multilist, 12 combo, 13 edit, 14 check, 15 radio, 16 radio, 17 button, 18 date, 19 label, "
    "20 button disabled, 22 edit, 1 button, 2 button";

} // namespace TestDialog

/// The notifications stand in m_strLog as `number:code`.
class CTestDialog : public CDialog {
public:
    CTestDialog() { InitModalIndirect(&TestDialog::Template()); }
    BOOL OnInitDialog() override {
        for (const UINT nId : {TestDialog::ONE, TestDialog::SEVERAL, TestDialog::COMBO})
            for (const char* text : {"1-1", "*1-2", "all", "试样", "twin", "*twin"})
                State(nId).m_arEntries.push_back({text});
        State(TestDialog::DATE).m_date = {std::chrono::year(2024), std::chrono::month(12),
                                          std::chrono::day(31)};
        return CDialog::OnInitDialog();
    }
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override {
        m_strLog += " " + std::to_string(nID) + ":" + std::to_string(nCode);
        if (nID == m_nClosing) EndDialog(77);
        if (nID == ID_CANCEL && m_bStays) return TRUE;
        return CDialog::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
    }
    CControl& State(UINT nId) const { return *GetDlgItem(nId)->GetControl(); }
    /// The selected texts, each in brackets.
    std::string Selected(UINT nId) const {
        std::string texts;
        for (const CListEntry& entry : State(nId).m_arEntries)
            if (entry.m_bSelected) texts += "[" + std::string(entry.m_strText) + "]";
        return texts;
    }

    std::string m_strLog;
    UINT m_nClosing = 0; ///< a notification of this control closes the dialog
    bool m_bStays = false;
};
