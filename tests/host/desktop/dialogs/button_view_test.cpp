#include "host/desktop/dialogs/button_view.h"

#include "tests/host/desktop/dialogs/placed_dialog_test.h"

using namespace TestDialog;

namespace {

using ButtonView = CPlacedDialogTest;

} // namespace

TEST_F(ButtonView, ABoxChangesAtEachClickAndByTheSpaceBar) {
    Work([&] {
        CUserHand::Click(CHECK);
        EXPECT_EQ(m_dialog.State(CHECK).m_nCheck, 1);
        CUserHand::Key(Qt::Key_Space);
        EXPECT_EQ(m_dialog.State(CHECK).m_nCheck, 0);
    });
    EXPECT_EQ(m_dialog.m_strLog, Told({"check 14", "uncheck 14"}));
}

TEST_F(ButtonView, ARadioButtonTakesTheMarkFromItsGroup) {
    Work([&] {
        CUserHand::Click(RADIO_A);
        CUserHand::Click(RADIO_B);
        EXPECT_EQ(m_dialog.State(RADIO_A).m_nCheck, 0);
        EXPECT_EQ(m_dialog.State(RADIO_B).m_nCheck, 1);
    });
    EXPECT_EQ(m_dialog.m_strLog, Told({"check 15", "check 16"}));
}

TEST_F(ButtonView, NothingHappensAtARadioButtonThatIsMarked) {
    Work([&] {
        CUserHand::Click(RADIO_A);
        CUserHand::Click(RADIO_A);
        CUserHand::Key(Qt::Key_Space);
    });
    EXPECT_EQ(m_dialog.m_strLog, Told({"check 15", "check 15"}));
}

TEST_F(ButtonView, ShowsAGroupInWhichAHandlerLeavesNoneMarked) {
    struct CUnmarking : CPlacedDialog {
        void OnCommand(UINT nId, int nCode) override {
            CPlacedDialog::OnCommand(nId, nCode);
            State(RADIO_B).m_nCheck = 0;
        }
    } dialog;
    WorkIn(dialog, [&] {
        CUserHand::Click(RADIO_B);
        EXPECT_EQ(DifferencesOnScreen(dialog), "");
        CUserHand::Click(RADIO_A);
        EXPECT_EQ(dialog.State(RADIO_A).m_nCheck, 1);
        EXPECT_EQ(DifferencesOnScreen(dialog), "");
    });
}

TEST_F(ButtonView, APushIsTold) {
    Work([&] {
        CUserHand::Click(PUSH);
        CUserHand::Key(Qt::Key_Space);
        CUserHand::Key(Qt::Key_Return); // the button that has the focus, not the default one
    });
    EXPECT_EQ(m_dialog.m_strLog, Told({"click 17", "click 17", "click 17"}));
}

TEST_F(ButtonView, ADisabledButtonTakesNoPush) {
    Work([&] { CUserHand::Click(DISABLED); });
    EXPECT_EQ(m_dialog.m_strLog, "");
}

TEST_F(ButtonView, ComesAndGoesWithTheModel) {
    struct CShowing : CPlacedDialog {
        void OnCommand(UINT nId, int nCode) override {
            CPlacedDialog::OnCommand(nId, nCode);
            if (nId != PUSH) return;
            GetDlgItem(HIDDEN)->ShowWindow(5);
            GetDlgItem(DISABLED)->EnableWindow(TRUE);
            GetDlgItem(CHECK)->ShowWindow(0);
            GetDlgItem(PUSH)->SetWindowText("推(&P)");
        }
    } dialog;
    WorkIn(dialog, [&] {
        CUserHand::Click(PUSH);
        EXPECT_EQ(DifferencesOnScreen(dialog), "");
        CUserHand::Click(HIDDEN);
        CUserHand::Click(DISABLED);
        EXPECT_THROW(CUserHand::Click(CHECK), std::logic_error);
    });
    EXPECT_EQ(dialog.m_strLog, " 17:0 21:0 20:0");
}
