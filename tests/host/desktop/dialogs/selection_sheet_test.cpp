// The selection sheet on the screen, beside the same sheet answered by a script.

#include <filesystem>

#include "tests/host/desktop/dialogs/module_dialogs.h"
#include "ui/bren_dlg.h"

namespace {

struct CSheet : CBRENDlg {
    CSheet()
        : CBRENDlg("生成三轴剪切试验成果图") {
        m_nGCSY = 1;
    }
};

std::string Joined(const CStringArray& texts) {
    std::string joined;
    for (const CString& text : texts)
        joined += "[" + std::string(text) + "]";
    return joined;
}

class SelectionSheetOnScreen : public CModuleDialogTest {
protected:
    SelectionSheetOnScreen() {
        for (const char* pZK : {"1", "2"})
            for (const char* pQY : {"-1", "-2", "-3"})
                AddSample(pZK, std::string(pZK) + pQY);
        AddLayer("1");
        AddLayer("2");
        Mark();
    }
    void Mark() const {
        std::filesystem::remove(g_strMarksIni.GetString());
        SetMarks("SYQXG12", "2-3");
    }
    /// What the sheet gathered, marked and printed.
    std::string Gathered(const CBRENDlg& sheet) {
        std::string gathered = std::string(sheet.m_strZKBH) + ":" + Joined(sheet.m_saSelQY) +
                               Joined(sheet.m_saDepth) + Joined(sheet.m_saSelSYFF) + Marks("SYQXG1") +
                               Marks("SYQXG11") + Marks("SYQXG12");
        return gathered + std::exchange(m_strPrinted, "");
    }
    void ExpectSame(const std::vector<std::string>& lines, const std::function<void()>& user) {
        CSheet scripted;
        const COutcome outcome = Script(scripted, lines);
        const std::string gathered = Gathered(scripted);
        Mark();
        EXPECT_EQ(ByHand(m_sheet, user), outcome);
        EXPECT_EQ(Gathered(m_sheet), gathered);
    }

    CSheet m_sheet;
};

} // namespace

TEST_F(SelectionSheetOnScreen, GathersTheSamplesChosenByTheMouse) {
    ExpectSame({"select 1010 2", "select 1011 2-1 2-3"}, [] {
        CUserHand::ClickEntry(IDC_ZK_LIST, 1);
        CUserHand::ClickEntry(IDC_QY_LIST, 0);
        CUserHand::ClickEntry(IDC_QY_LIST, 2, Qt::ControlModifier);
    });
    EXPECT_EQ(Joined(m_sheet.m_saSelQY), "[2-1][2-3]");
}

TEST_F(SelectionSheetOnScreen, GathersTheSamplesChosenByTheKeyboardAlone) {
    ExpectSame({"select 1010 2", "select 1011 2-1 2-2"}, [] {
        EXPECT_EQ(CUserHand::Focused(), IDC_ZK_LIST);
        CUserHand::Key(Qt::Key_Down);
        CUserHand::Key(Qt::Key_Tab);
        EXPECT_EQ(CUserHand::Focused(), IDC_QY_LIST);
        CUserHand::Key(Qt::Key_Space);
        CUserHand::Key(Qt::Key_Down, Qt::ShiftModifier);
    });
    EXPECT_EQ(Joined(m_sheet.m_saSelQY), "[2-1][2-2]");
}

TEST_F(SelectionSheetOnScreen, MarksTheBoreholeWhoseSamplesAreAllTaken) {
    ExpectSame({"select 1011 all"}, [] {
        CUserHand::TabTo(IDC_QY_LIST);
        CUserHand::Key(Qt::Key_A, Qt::ControlModifier);
    });
    EXPECT_EQ(Marks("SYQXG1"), "1");
}

TEST_F(SelectionSheetOnScreen, StaysWithItsMessageUntilASampleIsChosen) {
    EXPECT_EQ(WorkIn(m_sheet,
                     [&] {
                         CUserHand::Key(Qt::Key_Return);
                         EXPECT_EQ(Boxes(), "[至少选取一项取样编号!]");
                         EXPECT_TRUE(CUserHand::Window().isVisible());
                         CUserHand::ClickEntry(IDC_QY_LIST, 1);
                         CUserHand::Key(Qt::Key_Return);
                     }),
              ID_OK);
    EXPECT_EQ(Joined(m_sheet.m_saSelQY), "[1-2]");
}

TEST_F(SelectionSheetOnScreen, TakesTheMarksAwayByTheLetterOfTheButton) {
    ExpectSame({"select 1010 2", "select 1011 2-3", "click 1062"}, [&] {
        CUserHand::Key(Qt::Key_Down);
        CUserHand::ClickEntry(IDC_QY_LIST, 2);
        CUserHand::Key(Qt::Key_D, Qt::AltModifier);
        // The button is seen going down before it acts.
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return Entries(m_sheet.m_pageGen, IDC_QY_LIST) == " 2-1 2-2 2-3"; }));
        CUserHand::TabTo(IDC_QY_LIST);
    });
    EXPECT_EQ(Marks("SYQXG12"), "");
}

TEST_F(SelectionSheetOnScreen, GreysTheListsWhileAllSamplesAreChosen) {
    ExpectSame({"check 1063", "uncheck 1063", "check 1063"}, [] {
        CUserHand::TabTo(IDC_ALL);
        CUserHand::Key(Qt::Key_Space);
        EXPECT_FALSE(CUserHand::Widget(IDC_ZK_LIST).isEnabled());
        EXPECT_FALSE(CUserHand::Widget(IDC_QY_LIST).isEnabled());
        EXPECT_FALSE(CUserHand::Widget(IDC_CLEAR_MARKS).isEnabled());
        CUserHand::Key(Qt::Key_Space);
        EXPECT_TRUE(CUserHand::Widget(IDC_ZK_LIST).isEnabled());
        CUserHand::Click(IDC_ALL);
    });
    EXPECT_TRUE(m_sheet.AllSamples());
}

TEST_F(SelectionSheetOnScreen, LeavesForTheTemplateWithTheButtonsNumber) {
    EXPECT_EQ(WorkIn(m_sheet,
                     [] {
                         CUserHand::TabTo(IDC_EDIT_TEMPLATE);
                         CUserHand::Key(Qt::Key_Return); // the button that has the focus
                     }),
              static_cast<int>(IDC_EDIT_TEMPLATE));
}

TEST_F(SelectionSheetOnScreen, GathersNothingAtEscape) {
    EXPECT_EQ(WorkIn(m_sheet,
                     [] {
                         CUserHand::ClickEntry(IDC_QY_LIST, 1);
                         CUserHand::Key(Qt::Key_Escape);
                     }),
              ID_CANCEL);
    EXPECT_EQ(Joined(m_sheet.m_saSelQY), "");
    EXPECT_EQ(Marks("SYQXG11"), "(none)");
}
