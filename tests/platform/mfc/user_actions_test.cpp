#include "platform/mfc/user_actions.h"

#include <gtest/gtest.h>

#include "platform/mfc/dialog.h"
#include "platform/mfc/list_box.h"
#include "tests/platform/mfc/dialog_script.h"

namespace {

constexpr UINT ONE = 1, SEVERAL = 2, COMBO = 3, CHECK = 4, EDIT = 5, DATE = 6, PUSH = 7;
constexpr UINT RADIO_A = 11, RADIO_B = 12, RADIO_C = 13;

const CDialogTemplate& Template() {
    static const CDialogTemplate dialog{9,
                                        "",
                                        "",
                                        10,
                                        10,
                                        {{ONE, CControlKind::List, "", {}, 0},
                                         {SEVERAL, CControlKind::MultiList, "", {}, 0},
                                         {COMBO, CControlKind::Combo, "", {}, 0},
                                         {CHECK, CControlKind::Check, "", {}, 0},
                                         {EDIT, CControlKind::Edit, "", {}, 0},
                                         {DATE, CControlKind::Date, "", {}, 0},
                                         {PUSH, CControlKind::Button, "", {}, 0},
                                         {RADIO_A, CControlKind::Radio, "", {}, CONTROL_GROUP},
                                         {RADIO_B, CControlKind::Radio, "", {}, 0},
                                         {RADIO_C, CControlKind::Radio, "", {}, CONTROL_GROUP}}};
    return dialog;
}

// Writes down each notification, and closes at one of them if told so.
class CNotedDialog : public CDialog {
public:
    CNotedDialog() { InitModalIndirect(&Template()); }
    BOOL OnInitDialog() override {
        for (const UINT nId : {ONE, SEVERAL, COMBO})
            for (const char* text : {"a", "b", "c"})
                GetDlgItem(nId)->GetControl()->m_arEntries.push_back({text});
        return CDialog::OnInitDialog();
    }
    BOOL OnCmdMsg(UINT nID, int nCode, void* /*pExtra*/, AFX_CMDHANDLERINFO* /*pHandlerInfo*/) override {
        m_strLog += " " + std::to_string(nID) + ":" + std::to_string(nCode);
        if (nCode == m_nClosingCode) EndDialog(5);
        return TRUE;
    }
    std::string Selected(UINT nId) const {
        std::string texts;
        for (const CListEntry& entry : GetDlgItem(nId)->GetControl()->m_arEntries)
            if (entry.m_bSelected) texts += entry.m_strText;
        return texts;
    }
    std::string Checked() const {
        std::string states;
        for (const UINT nId : {RADIO_A, RADIO_B, RADIO_C})
            states += std::to_string(GetDlgItem(nId)->GetControl()->m_nCheck);
        return states;
    }

    std::string m_strLog;
    int m_nClosingCode = -1;
};

// The notifications of what the user does.
std::string Notes(CNotedDialog& dialog, std::function<void()> user) {
    const CDialogScript script([&](CModalWindow&) { user(); });
    dialog.DoModal();
    return dialog.m_strLog;
}

} // namespace

TEST(UserActions, SelectingInAListForOneMovesTheSelection) {
    CNotedDialog dialog;
    EXPECT_EQ(Notes(dialog,
                    [&] {
                        UserSelect(*dialog.GetDlgItem(ONE), 0);
                        UserSelect(*dialog.GetDlgItem(ONE), 2, true);
                        EXPECT_EQ(dialog.Selected(ONE), "c");
                    }),
              " 1:1 1:1");
}

TEST(UserActions, SelectingInAListForSeveralKeepsTheOthersOnlyWhenAsked) {
    CNotedDialog dialog;
    EXPECT_EQ(Notes(dialog,
                    [&] {
                        CWnd& list = *dialog.GetDlgItem(SEVERAL);
                        UserSelect(list, 0);
                        UserSelect(list, 2, true);
                        EXPECT_EQ(dialog.Selected(SEVERAL), "ac");
                        UserSelect(list, 1);
                        EXPECT_EQ(dialog.Selected(SEVERAL), "b");
                        UserSelect(list, 1);
                        UserDeselect(list, 1);
                        EXPECT_EQ(dialog.Selected(SEVERAL), "");
                    }),
              " 2:1 2:1 2:1 2:1 2:1");
}

TEST(UserActions, SelectingInAComboOpensAndClosesItsList) {
    CNotedDialog dialog;
    EXPECT_EQ(Notes(dialog,
                    [&] {
                        UserSelect(*dialog.GetDlgItem(COMBO), 1);
                        EXPECT_EQ(dialog.Selected(COMBO), "b");
                    }),
              " 3:7 3:9 3:1 3:8");
}

TEST(UserActions, DoubleClickSelectsFirst) {
    CNotedDialog dialog;
    EXPECT_EQ(Notes(dialog,
                    [&] {
                        UserDoubleClick(*dialog.GetDlgItem(SEVERAL), 1);
                        EXPECT_EQ(dialog.Selected(SEVERAL), "b");
                    }),
              " 2:1 2:2");
}

TEST(UserActions, NothingMoreIsToldOnceAHandlerClosedTheDialog) {
    CNotedDialog dialog;
    dialog.m_nClosingCode = LBN_SELCHANGE;
    EXPECT_EQ(Notes(dialog, [&] { UserDoubleClick(*dialog.GetDlgItem(ONE), 1); }), " 1:1");
}

TEST(UserActions, ClickTurnsACheckBoxOver) {
    CNotedDialog dialog;
    EXPECT_EQ(Notes(dialog,
                    [&] {
                        const int& nCheck = dialog.GetDlgItem(CHECK)->GetControl()->m_nCheck;
                        UserClick(*dialog.GetDlgItem(CHECK));
                        EXPECT_EQ(nCheck, 1);
                        UserClick(*dialog.GetDlgItem(CHECK));
                        EXPECT_EQ(nCheck, 0);
                        UserClick(*dialog.GetDlgItem(PUSH));
                    }),
              " 4:0 4:0 7:0");
}

TEST(UserActions, ClickOnARadioButtonTakesTheMarkFromItsGroupOnly) {
    CNotedDialog dialog;
    EXPECT_EQ(Notes(dialog,
                    [&] {
                        UserClick(*dialog.GetDlgItem(RADIO_C));
                        UserClick(*dialog.GetDlgItem(RADIO_A));
                        EXPECT_EQ(dialog.Checked(), "101");
                        UserClick(*dialog.GetDlgItem(RADIO_B));
                        EXPECT_EQ(dialog.Checked(), "011");
                    }),
              " 13:0 11:0 12:0");
}

TEST(UserActions, TypingAndDatesAreTold) {
    CNotedDialog dialog;
    const std::chrono::year_month_day date{std::chrono::year(2024), std::chrono::month(3),
                                           std::chrono::day(9)};
    EXPECT_EQ(Notes(dialog,
                    [&] {
                        UserSetText(*dialog.GetDlgItem(EDIT), "typed");
                        UserSetDate(*dialog.GetDlgItem(DATE), date);
                        EXPECT_STREQ(dialog.GetDlgItem(EDIT)->GetControl()->m_strText, "typed");
                        EXPECT_EQ(dialog.GetDlgItem(DATE)->GetControl()->m_date, date);
                    }),
              " 5:1024 5:768 6:-759");
}
