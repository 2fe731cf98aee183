// The dialog of adopted strength values on the screen, beside the same dialog answered by a script.

#include "tests/host/desktop/dialogs/module_dialogs.h"
#include "ui/dlg_save.h"

namespace {

struct CAdoption : CDLGSAVE {
    explicit CAdoption(const char* method = "固结不排水剪", int nKind = 1) {
        m_strMethod = method;
        m_nKind = nKind;
        m_dCalcC = 11.0;
        m_dCalcPhi = 12.0;
        m_dCalcCE = 13.0;
        m_dCalcPhiE = 14.0;
        m_dGraphC = 21.0;
        m_dGraphPhi = 22.0;
        m_dGraphCE = 23.0;
        m_dGraphPhiE = 24.0;
        m_dAdoptC = 31.0;
        m_dAdoptPhi = 32.0;
        m_dAdoptCE = 33.0;
        m_dAdoptPhiE = 34.0;
    }
    std::vector<double> Adopted() const { return {m_dAdoptC, m_dAdoptPhi, m_dAdoptCE, m_dAdoptPhiE}; }
};

class AdoptedValuesOnScreen : public CModuleDialogTest {
protected:
    void ExpectSame(const std::vector<std::string>& lines, const std::function<void()>& user) {
        CAdoption scripted;
        EXPECT_EQ(ByHand(m_dialog, user), Script(scripted, lines));
        EXPECT_EQ(m_dialog.Adopted(), scripted.Adopted());
        EXPECT_EQ(m_dialog.m_nSource, scripted.m_nSource);
    }

    CAdoption m_dialog;
};

} // namespace

TEST_F(AdoptedValuesOnScreen, TakesWhatIsTypedInTheFields) {
    ExpectSame({"set 1045 1.5", "set 1046 -2", "set 1053 3e1", "set 1054 4"}, [] {
        EXPECT_EQ(CUserHand::Focused(), IDC_ADOPT_C); // the first that takes a text
        for (const char* pText : {"1.5", "-2", "3e1", "4"}) {
            CUserHand::Type(pText); // in the place of the text, which is selected
            CUserHand::Key(Qt::Key_Tab);
        }
        EXPECT_EQ(CUserHand::Focused(), IDC_BY_HAND);
    });
    EXPECT_EQ(m_dialog.Adopted(), (std::vector<double>{1.5, -2.0, 30.0, 4.0}));
}

TEST_F(AdoptedValuesOnScreen, TurnsToTheOtherSourcesByArrows) {
    ExpectSame({"check 1060", "check 1059"}, [] {
        CUserHand::TabTo(IDC_BY_HAND);
        CUserHand::Key(Qt::Key_Left);
        EXPECT_EQ(CUserHand::Focused(), IDC_FROM_GRAPH);
        CUserHand::Key(Qt::Key_Left);
        EXPECT_EQ(CUserHand::Focused(), IDC_FROM_CALC);
    });
    EXPECT_EQ(m_dialog.Adopted(), (std::vector<double>{11.0, 12.0, 13.0, 14.0}));
    EXPECT_EQ(m_dialog.m_nSource, 0);
}

TEST_F(AdoptedValuesOnScreen, GoesBackByHandToTheValuesOfItsStart) {
    ExpectSame({"set 1045 1.5", "check 1060", "check 1061", "set 1046 7"}, [] {
        CUserHand::Type("1.5");
        CUserHand::Click(IDC_FROM_GRAPH);
        CUserHand::Click(IDC_BY_HAND);
        CUserHand::TabTo(IDC_ADOPT_PHI);
        CUserHand::Type("7");
    });
    EXPECT_EQ(m_dialog.Adopted(), (std::vector<double>{31.0, 7.0, 33.0, 34.0}));
}

// The click changes nothing, so it must not bring the values of the start back either.
TEST_F(AdoptedValuesOnScreen, KeepsWhatWasTypedWhenTheSourceByHandIsClickedAgain) {
    ExpectSame({"set 1045 1.5", "check 1061"}, [] {
        CUserHand::Type("1.5");
        CUserHand::Click(IDC_BY_HAND);
    });
    EXPECT_EQ(m_dialog.m_dAdoptC, 1.5);
}

TEST_F(AdoptedValuesOnScreen, ARefusedValueGetsTheFocusAndTheNextOneCounts) {
    WorkIn(m_dialog, [&] {
        CUserHand::TabTo(IDC_ADOPT_CE);
        CUserHand::Type("1.5x");
        CUserHand::TabTo(IDC_BY_HAND);
        CUserHand::Key(Qt::Key_Return);
        EXPECT_EQ(Boxes(), "[请输入一个数。]");
        EXPECT_EQ(CUserHand::Focused(), IDC_ADOPT_CE);
        CUserHand::Type("5");
        CUserHand::Key(Qt::Key_Return);
        EXPECT_FALSE(m_dialog.ContinueModal());
    });
    EXPECT_EQ(m_dialog.m_dAdoptCE, 5.0);
}

TEST_F(AdoptedValuesOnScreen, GivesUpWhatWasTypedAtEscape) {
    EXPECT_EQ(WorkIn(m_dialog,
                     [] {
                         CUserHand::Type("1.5");
                         CUserHand::Key(Qt::Key_Escape);
                     }),
              ID_CANCEL);
    EXPECT_EQ(m_dialog.m_dAdoptC, 31.0);
}

TEST_F(AdoptedValuesOnScreen, TabLeavesOutTheGreyedValuesOfTheKind) {
    CAdoption dialog("固结排水剪", 2);
    WorkIn(dialog, [] {
        EXPECT_EQ(CUserHand::Focused(), IDC_ADOPT_CE);
        CUserHand::Key(Qt::Key_Tab);
        EXPECT_EQ(CUserHand::Focused(), IDC_ADOPT_PHIE);
    });
}

TEST_F(AdoptedValuesOnScreen, HasTheModulesIcon) {
    WorkIn(m_dialog, [] { EXPECT_FALSE(CUserHand::Window().windowIcon().isNull()); });
}
