#include "ui/dlg_save.h"

#include <limits>

#include "analysis/test_method.h"
#include "tests/ui/dialog_fixture.h"

namespace {

constexpr const char* g_pReadOnly = "1041 1042 1043 1044 1047 1048 1049 1051 1052";

class DlgSave : public CDialogTest {
protected:
    explicit DlgSave(const char* pMethod = g_pMethodCU, int nKind = 1) {
        m_dialog.m_strMethod = pMethod;
        m_dialog.m_nKind = nKind;
        m_dialog.m_dCalcC = 11.0;
        m_dialog.m_dCalcPhi = 12.0;
        m_dialog.m_dCalcCE = 13.0;
        m_dialog.m_dCalcPhiE = 14.0;
        m_dialog.m_dGraphC = 21.0;
        m_dialog.m_dGraphPhi = 22.0;
        m_dialog.m_dGraphCE = 23.0;
        m_dialog.m_dGraphPhiE = 24.0;
        m_dialog.m_dAdoptC = 31.0;
        m_dialog.m_dAdoptPhi = 32.0;
        m_dialog.m_dAdoptCE = 33.0;
        m_dialog.m_dAdoptPhiE = 34.0;
    }
    std::vector<double> Adopted() const {
        return {m_dialog.m_dAdoptC, m_dialog.m_dAdoptPhi, m_dialog.m_dAdoptCE, m_dialog.m_dAdoptPhiE};
    }
    /// What the adopted values' fields show.
    std::string Shown() const {
        std::string strShown;
        for (const UINT nId : {1045U, 1046U, 1053U, 1054U})
            strShown += (strShown.empty() ? "" : " ") + TextOf(m_dialog, nId);
        return strShown;
    }

    CDLGSAVE m_dialog;
};

class DlgSaveTotal : public DlgSave {
protected:
    DlgSaveTotal()
        : DlgSave(g_pMethodUU, 0) {}
};

class DlgSaveEffective : public DlgSave {
protected:
    DlgSaveEffective()
        : DlgSave(g_pMethodCD, 2) {}
};

using CValues = std::vector<double>;

} // namespace

TEST_F(DlgSave, ShowsEachValueInItsField) {
    Play(m_dialog, [&] {
        std::string strShown;
        for (const UINT nId :
             {1041U, 1042U, 1043U, 1044U, 1045U, 1046U, 1047U, 1048U, 1051U, 1052U, 1053U, 1054U})
            strShown += TextOf(m_dialog, nId) + " ";
        EXPECT_EQ(strShown, "21 22 11 12 31 32 23 24 13 14 33 34 ");
        EXPECT_EQ(TextOf(m_dialog, 1049), "固结不排水剪");
        EXPECT_EQ(Greyed(m_dialog), g_pReadOnly);
        EXPECT_EQ(m_dialog.GetDlgItem(1061)->GetControl()->m_nCheck, 1);
        EXPECT_EQ(m_dialog.GetIcon(TRUE), 1006U);
        EXPECT_EQ(m_dialog.GetIcon(FALSE), 1006U);
    });
}

TEST_F(DlgSave, TakesWhatIsTypedByHand) {
    EXPECT_EQ(Run(m_dialog, {"set 1045 1.5", "set 1046 -2", "set 1053 3e1", "set 1054 4", "ok"}), ID_OK);
    EXPECT_EQ(Adopted(), (CValues{1.5, -2.0, 30.0, 4.0}));
    EXPECT_EQ(m_dialog.m_nSource, 2);
}

TEST_F(DlgSave, GivesUpWhatWasTypedWhenItIsCancelled) {
    EXPECT_EQ(Run(m_dialog, {"set 1045 1.5", "cancel"}), ID_CANCEL);
    EXPECT_EQ(Adopted(), (CValues{31.0, 32.0, 33.0, 34.0}));
}

TEST_F(DlgSave, TakesTheComputedValues) {
    EXPECT_EQ(Play(m_dialog,
                   [&] {
                       RunDialogLine(m_dialog, "set 1045 1.5");
                       RunDialogLine(m_dialog, "check 1059");
                       EXPECT_EQ(Shown(), "11 12 13 14");
                       EXPECT_EQ(Greyed(m_dialog),
                                 "1041 1042 1043 1044 1045 1046 1047 1048 1049 1051 1052 1053 1054");
                       RunDialogLine(m_dialog, "ok");
                   }),
              ID_OK);
    EXPECT_EQ(Adopted(), (CValues{11.0, 12.0, 13.0, 14.0}));
    EXPECT_EQ(m_dialog.m_nSource, 0);
}

TEST_F(DlgSave, TakesTheGraphicalValues) {
    EXPECT_EQ(Play(m_dialog,
                   [&] {
                       RunDialogLine(m_dialog, "check 1060");
                       EXPECT_EQ(Shown(), "21 22 23 24");
                       EXPECT_EQ(Greyed(m_dialog),
                                 "1041 1042 1043 1044 1045 1046 1047 1048 1049 1051 1052 1053 1054");
                       RunDialogLine(m_dialog, "ok");
                   }),
              ID_OK);
    EXPECT_EQ(Adopted(), (CValues{21.0, 22.0, 23.0, 24.0}));
    EXPECT_EQ(m_dialog.m_nSource, 1);
}

TEST_F(DlgSave, KeepsTheChosenValuesWhenItIsCancelled) {
    EXPECT_EQ(Run(m_dialog, {"check 1060", "cancel"}), ID_CANCEL);
    EXPECT_EQ(Adopted(), (CValues{21.0, 22.0, 23.0, 24.0}));
}

TEST_F(DlgSave, GoesBackByHandToTheValuesOfItsStart) {
    EXPECT_EQ(Play(m_dialog,
                   [&] {
                       RunDialogLine(m_dialog, "set 1045 1.5");
                       RunDialogLine(m_dialog, "check 1060");
                       RunDialogLine(m_dialog, "check 1061");
                       EXPECT_EQ(Shown(), "31 32 33 34");
                       EXPECT_EQ(Greyed(m_dialog), g_pReadOnly);
                       RunDialogLine(m_dialog, "set 1046 7");
                       RunDialogLine(m_dialog, "ok");
                   }),
              ID_OK);
    EXPECT_EQ(Adopted(), (CValues{31.0, 7.0, 33.0, 34.0}));
    EXPECT_EQ(m_dialog.m_nSource, 2);
}

TEST_F(DlgSave, RefusesATextThatIsNoNumber) {
    EXPECT_EQ(Play(m_dialog,
                   [&] {
                       for (const char* pText : {"", "1.5x", "abc", "nan"}) {
                           RunDialogLine(m_dialog, std::string("set 1053 ") + (*pText ? pText : "\"\""));
                           RunDialogLine(m_dialog, "ok");
                           EXPECT_TRUE(m_dialog.ContinueModal()) << pText;
                       }
                       RunDialogLine(m_dialog, "set 1053 5");
                       RunDialogLine(m_dialog, "ok");
                   }),
              ID_OK);
    EXPECT_EQ(m_arBoxes.size(), 4U);
    EXPECT_EQ(m_dialog.m_dAdoptCE, 5.0);
}

TEST_F(DlgSave, RoundsAllValuesOfAnUndrainedTest) {
    for (double* pValue : {&m_dialog.m_dCalcC, &m_dialog.m_dGraphPhi, &m_dialog.m_dAdoptCE})
        *pValue = 12.345;
    for (double* pValue : {&m_dialog.m_dCalcPhiE, &m_dialog.m_dGraphCE, &m_dialog.m_dAdoptPhi})
        *pValue = -12.345;
    Play(m_dialog, [&] {
        EXPECT_EQ(TextOf(m_dialog, 1043), "12.35");
        EXPECT_EQ(TextOf(m_dialog, 1042), "12.35");
        EXPECT_EQ(TextOf(m_dialog, 1053), "12.35");
        EXPECT_EQ(TextOf(m_dialog, 1052), "-12.34");
        EXPECT_EQ(TextOf(m_dialog, 1047), "-12.34");
        EXPECT_EQ(TextOf(m_dialog, 1046), "-12.34");
    });
    EXPECT_EQ(m_dialog.m_dSavedPhi, -12.34);
    EXPECT_EQ(m_dialog.m_dSavedCE, 12.35);
}

// A chart may hold values that are no numbers; they must not keep the dialog from being confirmed.
TEST_F(DlgSave, ShowsANumberForAValueThatIsNone) {
    m_dialog.m_dGraphC = std::numeric_limits<double>::quiet_NaN();
    m_dialog.m_dGraphPhiE = std::numeric_limits<double>::infinity();
    EXPECT_EQ(Play(m_dialog,
                   [&] {
                       EXPECT_EQ(TextOf(m_dialog, 1041), "-21474836.48");
                       EXPECT_EQ(TextOf(m_dialog, 1048), "-21474836.48");
                       RunDialogLine(m_dialog, "ok");
                   }),
              ID_OK);
    EXPECT_EQ(Boxes(), "");
}

TEST_F(DlgSaveTotal, LeavesTheEffectiveValuesGreyedAndUnrounded) {
    m_dialog.m_dAdoptC = m_dialog.m_dAdoptCE = m_dialog.m_dCalcPhiE = 12.345;
    EXPECT_EQ(Play(m_dialog,
                   [&] {
                       EXPECT_EQ(Shown(), "12.35 32 12.345 34");
                       EXPECT_EQ(TextOf(m_dialog, 1052), "12.345");
                       EXPECT_EQ(Greyed(m_dialog), "1041 1042 1043 1044 1047 1048 1049 1051 1052 1053 1054");
                       RunDialogLine(m_dialog, "ok");
                   }),
              ID_OK);
    EXPECT_EQ(Adopted(), (CValues{12.35, 32.0, 12.345, 34.0}));
}

TEST_F(DlgSaveTotal, ByHandEnablesTheTotalValuesOnly) {
    Play(m_dialog, [&] {
        RunDialogLine(m_dialog, "check 1059");
        RunDialogLine(m_dialog, "check 1061");
        EXPECT_EQ(Greyed(m_dialog), "1041 1042 1043 1044 1047 1048 1049 1051 1052 1053 1054");
    });
}

TEST_F(DlgSaveEffective, ByHandEnablesTheEffectiveValuesOnly) {
    constexpr const char* pGreyed = "1041 1042 1043 1044 1045 1046 1047 1048 1049 1051 1052";
    Play(m_dialog, [&] {
        EXPECT_EQ(Greyed(m_dialog), pGreyed);
        RunDialogLine(m_dialog, "check 1060");
        RunDialogLine(m_dialog, "check 1061");
        EXPECT_EQ(Greyed(m_dialog), pGreyed);
    });
}

TEST_F(DlgSaveEffective, RoundsTheEffectiveValuesOnly) {
    for (const char* pMethod : {g_pMethodCD, "其他"}) {
        m_dialog.m_strMethod = pMethod;
        m_dialog.m_dCalcC = m_dialog.m_dCalcCE = 12.345;
        Play(m_dialog, [&] {
            EXPECT_EQ(TextOf(m_dialog, 1043), "12.345");
            EXPECT_EQ(TextOf(m_dialog, 1051), "12.35");
        });
    }
}
