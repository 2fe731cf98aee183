#include "host/desktop/dialogs/dialog_window.h"

#include <QtWidgets/QLineEdit>

#include "host/desktop/dialogs/message_boxes.h"
#include "platform/mfc/data_exchange.h"
#include "tests/host/desktop/dialogs/placed_dialog_test.h"

using namespace TestDialog;

namespace {

class DialogWindow : public CPlacedDialogTest {
protected:
    ~DialogWindow() override { SetMessageBoxHost({}); }
};

struct CRefusing : CPlacedDialog {
    void DoDataExchange(CDataExchange* pDX) override { DDX_Text(pDX, EDIT, m_nValue); }
    int m_nValue = 7;
};

} // namespace

TEST_F(DialogWindow, HasTheCaptionAndTheFirstControlsFocus) {
    Work([&] {
        EXPECT_EQ(CUserHand::Window().windowTitle(), QStringLiteral("取样"));
        EXPECT_EQ(CUserHand::Focused(), ONE);
    });
}

TEST_F(DialogWindow, EnterPressesTheDefaultButton) {
    EXPECT_EQ(Work([] { CUserHand::Key(Qt::Key_Return); }), 1);
    EXPECT_EQ(m_dialog.m_strLog, Told({"ok"}));
}

TEST_F(DialogWindow, EscapeAndTheClosingMarkCancel) {
    EXPECT_EQ(Work([] { CUserHand::Key(Qt::Key_Escape); }), 2);
    EXPECT_EQ(Work([] { CUserHand::Window().close(); }), 2);
    EXPECT_EQ(m_dialog.m_strLog, Told({"cancel"}) + Told({"cancel"}));
}

TEST_F(DialogWindow, StaysOpenWhenTheDialogDoesNotTakeTheCancel) {
    m_dialog.m_bStays = true;
    Work([&] {
        CUserHand::Key(Qt::Key_Escape);
        EXPECT_TRUE(CUserHand::Window().isVisible());
        CUserHand::Window().close();
        EXPECT_TRUE(CUserHand::Window().isVisible());
    });
    EXPECT_EQ(m_dialog.m_strLog, " 2:0 2:0");
}

TEST_F(DialogWindow, EscapeIsNothingWhileTheCancelIsDisabled) {
    m_dialog.m_template.m_arControls.back().m_nFlags = CONTROL_DISABLED;
    Work([] { CUserHand::Key(Qt::Key_Escape); });
    EXPECT_EQ(m_dialog.m_strLog, "");
}

TEST_F(DialogWindow, ClosesWithTheResultThatAHandlerGives) {
    m_dialog.m_nClosing = PUSH;
    EXPECT_EQ(Work([] { CUserHand::Click(PUSH); }), 77);
}

TEST_F(DialogWindow, WhatAHandlerThrowsComesOutOfTheDialog) {
    struct CThrowing : CPlacedDialog {
        void OnCommand(UINT /*nId*/, int /*nCode*/) override { throw std::runtime_error("broken"); }
    } dialog;
    EXPECT_THROW(WorkIn(dialog, [] { CUserHand::Click(PUSH); }), std::runtime_error);
}

TEST_F(DialogWindow, ARefusedTextIsToldAndItsFieldGetsTheFocus) {
    SetMessageBoxHost(DesktopMessageBoxes(nullptr));
    CRefusing dialog;
    EXPECT_EQ(WorkIn(dialog,
                     [&] {
                         CUserHand::TabTo(EDIT);
                         CUserHand::Type("x");
                         CUserHand::TabTo(DATE);
                         WithBox([] { CUserHand::Key(Qt::Key_Return); },
                                 [](QMessageBox& box) {
                                     EXPECT_EQ(box.text(), QStringLiteral("请输入一个整数。"));
                                     QTest::keyClick(&box, Qt::Key_Return);
                                 });
                         EXPECT_EQ(CUserHand::Focused(), EDIT);
                         EXPECT_EQ(dialog.GetControl()->m_nFocus, 0U);
                         CUserHand::Type("8"); // in the place of the text
                         CUserHand::Key(Qt::Key_Return);
                     }),
              1);
    EXPECT_EQ(dialog.m_nValue, 8);
}

TEST_F(DialogWindow, ARefusedTextInTheFieldOfTheFocusIsSelectedToo) {
    SetMessageBoxHost(DesktopMessageBoxes(nullptr));
    CRefusing dialog;
    WorkIn(dialog, [] {
        CUserHand::TabTo(EDIT);
        CUserHand::Type("steep");
        WithBox([] { CUserHand::Key(Qt::Key_Return); }, [](QMessageBox& box) { box.close(); });
        EXPECT_EQ(CUserHand::Focused(), EDIT);
        EXPECT_EQ(dynamic_cast<QLineEdit&>(CUserHand::Widget(EDIT)).selectedText(), QStringLiteral("steep"));
    });
}

TEST_F(DialogWindow, ShowsWhatAHandlerDidBeforeItsBox) {
    struct CTelling : CPlacedDialog {
        void OnCommand(UINT nId, int nCode) override {
            CPlacedDialog::OnCommand(nId, nCode);
            if (nId != PUSH) return;
            GetDlgItem(EDIT)->SetWindowText("read");
            MessageBoxA(nullptr, "done", "Tervo", MB_OK);
        }
    } dialog;
    SetMessageBoxHost(DesktopMessageBoxes(nullptr));
    WorkIn(dialog, [] {
        const auto& edit = dynamic_cast<QLineEdit&>(CUserHand::Widget(EDIT));
        WithBox([] { CUserHand::Click(PUSH); },
                [&](QMessageBox& box) {
                    EXPECT_EQ(edit.text(), QStringLiteral("read"));
                    box.close();
                });
    });
}
