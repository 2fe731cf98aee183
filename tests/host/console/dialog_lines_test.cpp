#include "host/console/dialog_lines.h"

#include <gtest/gtest.h>

#include "platform/windows/code_page.h"
#include "tests/host/console/test_dialog.h"
#include "tests/platform/mfc/dialog_script.h"

using namespace TestDialog;

namespace {

// A dialog that is open while a test runs its lines.
class DialogLine : public testing::Test {
protected:
    // Runs a test's body inside the dialog and gives the dialog's result.
    int Open(std::function<void()> body) {
        const CDialogScript script([&](CModalWindow&) { body(); });
        return m_dialog.DoModal();
    }
    // The notifications that the lines caused; the failure's text for one that is refused.
    std::string Notes(const std::vector<const char*>& lines) {
        m_dialog.m_strLog.clear();
        try {
            for (const char* line : lines)
                RunDialogLine(m_dialog, ToUtf8(line));
        } catch (const CBadDialogLine& bad) {
            return bad.what();
        }
        return m_dialog.m_strLog;
    }
    static std::string WithControls(const std::string& text) { return text + "; controls here: " + CONTROLS; }

    CTestDialog m_dialog;
};

} // namespace

TEST_F(DialogLine, OkAnEmptyLineAndCancelPressTheButtons) {
    EXPECT_EQ(Open([&] { EXPECT_EQ(Notes({"ok"}), " 1:0"); }), 1);
    EXPECT_EQ(Open([&] { EXPECT_EQ(Notes({""}), " 1:0"); }), 1);
    EXPECT_EQ(Open([&] { EXPECT_EQ(Notes({"  "}), " 1:0"); }), 1);
    EXPECT_EQ(Open([&] { EXPECT_EQ(Notes({"cancel"}), " 2:0"); }), 2);
    EXPECT_EQ(Open([&] { EXPECT_EQ(Notes({"click 1"}), " 1:0"); }), 1);
}

TEST_F(DialogLine, OkIsRefusedWhileTheButtonIsDisabled) {
    Open([&] {
        m_dialog.GetDlgItem(ID_OK)->EnableWindow(FALSE);
        EXPECT_EQ(Notes({""}).substr(0, 21), "control 1 is disabled");
        EXPECT_EQ(Notes({"ok"}).substr(0, 21), "control 1 is disabled");
    });
}

TEST_F(DialogLine, SelectMakesTheTextsTheSelectionAndNotifiesAfterEach) {
    Open([&] {
        EXPECT_EQ(Notes({"select 11 1-1 试样"}), " 11:1 11:1");
        EXPECT_EQ(m_dialog.Selected(SEVERAL), "[1-1][试样]");
        EXPECT_EQ(Notes({"select 11 试样"}), " 11:1"); // selected already
        EXPECT_EQ(m_dialog.Selected(SEVERAL), "[试样]");
    });
}

TEST_F(DialogLine, SelectInAListForOneAndInACombo) {
    Open([&] {
        EXPECT_EQ(Notes({"select 10 1-1"}), " 10:1");
        EXPECT_EQ(m_dialog.Selected(ONE), "[1-1]");
        EXPECT_EQ(Notes({"select 12 1-1"}), " 12:7 12:9 12:1 12:8");
        EXPECT_EQ(m_dialog.Selected(COMBO), "[1-1]");
        EXPECT_EQ(Notes({"select 10 1-1 试样"}), "list 10 takes one entry");
        EXPECT_EQ(Notes({"select 12 1-1 试样"}), "combo 12 takes one entry");
    });
}

TEST_F(DialogLine, SelectNeedsNoMarkInFrontOfAnEntry) {
    Open([&] {
        Notes({"select 11 1-2"});
        EXPECT_EQ(m_dialog.Selected(SEVERAL), "[*1-2]");
        Notes({"select 11 none", "select 11 *1-2"});
        EXPECT_EQ(m_dialog.Selected(SEVERAL), "[*1-2]");
    });
}

TEST_F(DialogLine, SelectRefusesATextOfNoEntryOrOfTwo) {
    Open([&] {
        EXPECT_EQ(Notes({"select 11 1-1 ALL"}), "multilist 11 has no entry \"ALL\"");
        EXPECT_EQ(m_dialog.Selected(SEVERAL), ""); // nothing done
        EXPECT_EQ(Notes({"select 11 1"}), "multilist 11 has no entry \"1\"");
        EXPECT_EQ(Notes({"select 11 twin"}), "multilist 11 has more than one entry \"twin\"");
        EXPECT_EQ(Notes({"select 11 *twin"}), " 11:1");
        EXPECT_EQ(Notes({"select 11 \"\""}), "multilist 11 has no entry \"\"");
    });
}

TEST_F(DialogLine, SelectAllAndNone) {
    Open([&] {
        EXPECT_EQ(Notes({"select 11 all"}), " 11:1 11:1 11:1 11:1 11:1 11:1");
        EXPECT_EQ(m_dialog.Selected(SEVERAL), "[1-1][*1-2][all][试样][twin][*twin]");
        EXPECT_EQ(Notes({"select 11 1-1 试样", "select 11 none"}), " 11:1 11:1 11:1 11:1");
        EXPECT_EQ(m_dialog.Selected(SEVERAL), "");
        EXPECT_EQ(Notes({"select 11 none"}), "");
        EXPECT_EQ(Notes({"select 10 1-1", "select 10 none"}), " 10:1 10:1");
        EXPECT_EQ(m_dialog.Selected(ONE), "");
        EXPECT_EQ(Notes({"select 10 all"}), "list 10 takes one entry");
    });
}

TEST_F(DialogLine, SelectTakesAllInQuotesForAText) {
    Open([&] {
        EXPECT_EQ(Notes({"select 11 \"all\""}), " 11:1");
        EXPECT_EQ(m_dialog.Selected(SEVERAL), "[all]");
        EXPECT_EQ(Notes({"select 11 1-1 \"all\""}), " 11:1 11:1");
        EXPECT_EQ(Notes({"select 11 1-1 all"}), "all stands alone, or in quotes as a text");
    });
}

TEST_F(DialogLine, SelectStopsWhenAHandlerClosesTheDialog) {
    m_dialog.m_nClosing = SEVERAL;
    EXPECT_EQ(Open([&] { EXPECT_EQ(Notes({"select 11 1-1 试样"}), " 11:1"); }), 77);
    EXPECT_EQ(Open([&] { EXPECT_EQ(Notes({"select 11 all"}), " 11:1"); }), 77);
}

TEST_F(DialogLine, DoubleClickSelectsAndDoubleClicks) {
    Open([&] {
        EXPECT_EQ(Notes({"dblclick 11 1-2"}), " 11:1 11:2");
        EXPECT_EQ(m_dialog.Selected(SEVERAL), "[*1-2]");
        EXPECT_EQ(Notes({"dblclick 10 试样"}), " 10:1 10:2");
        EXPECT_EQ(Notes({"dblclick 11 a b"}), "usage: dblclick N TEXT");
        EXPECT_EQ(Notes({"dblclick 11 nothing"}), "multilist 11 has no entry \"nothing\"");
        EXPECT_EQ(Notes({"dblclick 12 1-1"}), WithControls("combo 12 is no list or multilist"));
    });
}

TEST_F(DialogLine, CheckAndUncheckDoNothingInThatState) {
    Open([&] {
        EXPECT_EQ(Notes({"uncheck 14"}), "");
        EXPECT_EQ(Notes({"check 14", "check 14"}), " 14:0");
        EXPECT_EQ(m_dialog.State(CHECK).m_nCheck, 1);
        EXPECT_EQ(Notes({"uncheck 14", "uncheck 14"}), " 14:0");
        EXPECT_EQ(m_dialog.State(CHECK).m_nCheck, 0);
    });
}

TEST_F(DialogLine, CheckTakesARadioButtonAndUncheckDoesNot) {
    Open([&] {
        EXPECT_EQ(Notes({"check 15", "check 16", "check 16"}), " 15:0 16:0");
        EXPECT_EQ(m_dialog.State(RADIO_A).m_nCheck, 0);
        EXPECT_EQ(m_dialog.State(RADIO_B).m_nCheck, 1);
        EXPECT_EQ(Notes({"uncheck 16"}), WithControls("radio 16 is no check"));
    });
}

TEST_F(DialogLine, SetTypesATextOrADate) {
    Open([&] {
        EXPECT_EQ(Notes({"set 13 \"图 幅\""}), " 13:1024 13:768");
        EXPECT_STREQ(m_dialog.State(EDIT).m_strText, "图 幅");
        Notes({"set 13 \"\""});
        EXPECT_STREQ(m_dialog.State(EDIT).m_strText, "");
        EXPECT_EQ(Notes({"set 18 2024-03-09"}), " 18:-759");
        EXPECT_EQ(m_dialog.State(DATE).m_date.day(), std::chrono::day(9));
        EXPECT_EQ(m_dialog.State(DATE).m_date.month(), std::chrono::March);
    });
}

TEST_F(DialogLine, SetRefusesWhatIsNoDate) {
    Open([&] {
        for (const char* date :
             {"2024-3-9", "2024-02-30", "2023-02-29", "20240309", "2024-13-01", "+024-03-09"})
            EXPECT_EQ(Notes({(std::string("set 18 ") + date).c_str()}),
                      std::string(date) + " is no date like 2024-03-09");
        EXPECT_EQ(Notes({"set 18 1899-12-31"}), "1899-12-31 is before 1900");
        EXPECT_EQ(m_dialog.State(DATE).m_date.month(), std::chrono::December);
        EXPECT_EQ(Notes({"set 18 1900-01-01"}), " 18:-759");
    });
}

TEST_F(DialogLine, SetRefusesAReadOnlyFieldAndACharacterOutsideTheCodePage) {
    Open([&] {
        EXPECT_EQ(Notes({"set 22 x"}), "edit 22 is read-only");
        try {
            RunDialogLine(m_dialog, "set 13 \xF0\x9F\x98\x80");
            FAIL() << "not refused";
        } catch (const CBadDialogLine& bad) {
            EXPECT_STREQ(bad.what(), "the character \xF0\x9F\x98\x80 is not in the code page");
        }
        EXPECT_STREQ(m_dialog.State(EDIT).m_strText, "a\"b");
    });
}

TEST_F(DialogLine, ClickTakesButtonsOnly) {
    Open([&] {
        EXPECT_EQ(Notes({"click 17"}), " 17:0");
        EXPECT_EQ(Notes({"click 14"}), WithControls("check 14 is no button"));
    });
}

TEST_F(DialogLine, AControlThatIsNotThereDisabledOrHiddenIsRefusedNamingThoseThereAre) {
    Open([&] {
        EXPECT_EQ(Notes({"click 99"}), WithControls("no control 99"));
        EXPECT_EQ(Notes({"click 20"}), WithControls("control 20 is disabled"));
        EXPECT_EQ(Notes({"click 21"}), WithControls("control 21 is hidden"));
        EXPECT_EQ(Notes({"click 1x"}), WithControls("no control 1x"));
        EXPECT_EQ(Notes({"click -1"}), WithControls("no control -1"));
        EXPECT_EQ(Notes({"select 19 x"}), WithControls("label 19 is no list or multilist or combo"));
    });
}

TEST_F(DialogLine, EveryLineRefusesAControlThatTheUserCannotReach) {
    Open([&] {
        for (const UINT nId : {ONE, COMBO, EDIT, CHECK, RADIO_A, DATE})
            m_dialog.GetDlgItem(nId)->EnableWindow(FALSE);
        for (const char* line : {"select 10 1-1", "dblclick 10 1-1", "select 12 none", "set 13 x", "check 14",
                                 "uncheck 14", "check 15", "set 18 2024-03-09"}) {
            const std::string number(line + std::string(line).find(' ') + 1, 2);
            EXPECT_EQ(Notes({line}).substr(0, 24), "control " + number + " is disabled; ") << line;
        }
    });
}

TEST_F(DialogLine, AnUnknownLineOrOneWithTooFewOrTooManyWordsIsRefused) {
    Open([&] {
        EXPECT_EQ(Notes({"press 1"}), WithControls("no dialog line press"));
        EXPECT_EQ(Notes({"\"ok\""}), WithControls("no dialog line ok"));
        EXPECT_EQ(Notes({"OK"}), WithControls("no dialog line OK"));
        EXPECT_EQ(Notes({"ok now"}), "usage: ok");
        EXPECT_EQ(Notes({"cancel 2"}), "usage: cancel");
        EXPECT_EQ(Notes({"show 11"}), "usage: show");
        EXPECT_EQ(Notes({"select 11"}), "usage: select N TEXT...");
        EXPECT_EQ(Notes({"check"}), "usage: check N");
        EXPECT_EQ(Notes({"check 14 15"}), "usage: check N");
        EXPECT_EQ(Notes({"uncheck 14 15"}), "usage: uncheck N");
        EXPECT_EQ(Notes({"set 13"}), "usage: set N TEXT");
        EXPECT_EQ(Notes({"set 13 a b"}), "usage: set N TEXT");
        EXPECT_EQ(Notes({"click"}), "usage: click N");
        EXPECT_EQ(Notes({"page"}), "usage: page TEXT");
        EXPECT_EQ(Notes({"select 11 \"1-1"}), "a quote is not closed");
    });
}

TEST_F(DialogLine, ShowGivesTheDialogsLines) {
    Open([&] {
        const std::vector<std::string> lines = RunDialogLine(m_dialog, "show");
        ASSERT_FALSE(lines.empty());
        EXPECT_EQ(lines[0], ToUtf8("dialog 30 \"取样\""));
        EXPECT_EQ(m_dialog.m_strLog, "");
    });
}

TEST_F(DialogLine, PageIsForSheetsOnly) {
    Open([&] { EXPECT_EQ(Notes({"page 取样"}), "this dialog has no pages"); });
}

TEST(DialogLineInASheet, PageChangesThePageAndRefusesOneThatIsNotThere) {
    const CDialogTemplate own = PageTemplate();
    CDialogTemplate other = own;
    other.m_strCaption = "标注 二";
    other.m_nId = 31;
    CPropertyPage first(0U), second(0U);
    first.m_psp.dwFlags = second.m_psp.dwFlags = PSP_DLGINDIRECT;
    first.m_psp.pResource = &own;
    second.m_psp.pResource = &other;
    CPropertySheet sheet("sheet");
    sheet.AddPage(&first);
    sheet.AddPage(&second);
    const CDialogScript script([&](CModalWindow& window) {
        RunDialogLine(window, ToUtf8("page \"标注 二\""));
        EXPECT_EQ(sheet.GetActivePage(), &second);
        try {
            RunDialogLine(window, ToUtf8("page 标注"));
            FAIL() << "not refused";
        } catch (const CBadDialogLine& bad) {
            EXPECT_EQ(bad.what(), ToUtf8("no page \"标注\"; pages here: \"取样\", \"标注 二\""));
        }
        EXPECT_EQ(sheet.GetActivePage(), &second);
        RunDialogLine(window, "ok"); // the sheet's own button
    });
    EXPECT_EQ(sheet.DoModal(), 1);
}
