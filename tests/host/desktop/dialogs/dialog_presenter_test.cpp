#include "host/desktop/dialogs/dialog_presenter.h"

#include <QtCore/QTimer>
#include <QtWidgets/QApplication>

#include "tests/host/desktop/dialogs/placed_dialog_test.h"

namespace {

using DesktopDialogPresenter = CPlacedDialogTest;

} // namespace

TEST_F(DesktopDialogPresenter, ADialogOfADialogStandsBeforeIt) {
    struct CAsking : CPlacedDialog {
        void OnCommand(UINT nId, int nCode) override {
            CPlacedDialog::OnCommand(nId, nCode);
            if (nId != TestDialog::PUSH) return;
            const QWidget* const pOuter = &CUserHand::Window();
            CPlacedDialog inner;
            m_nInner = WorkIn(inner, [&] {
                EXPECT_EQ(CUserHand::Window().parentWidget(), pOuter);
                CUserHand::Key(Qt::Key_Return);
            });
        }
        int m_nInner = 0;
    } dialog;
    EXPECT_EQ(WorkIn(dialog,
                     [] {
                         CUserHand::Click(TestDialog::PUSH);
                         CUserHand::Window().activateWindow(); // as a window manager does
                         CUserHand::Key(Qt::Key_Escape);
                     }),
              2);
    EXPECT_EQ(dialog.m_nInner, 1);
}

TEST_F(DesktopDialogPresenter, StandsBeforeTheMainWindowAndLeavesNothingBehind) {
    StartWidgets();
    QWidget mainWindow;
    mainWindow.show();
    CDesktopDialogPresenter presenter(&mainWindow);
    SetDialogPresenter(&presenter);
    QTimer::singleShot(0, [&] {
        EXPECT_EQ(CUserHand::Window().parentWidget(), &mainWindow);
        CUserHand::Window().close();
    });
    EXPECT_EQ(m_dialog.DoModal(), 2);
    SetDialogPresenter(nullptr);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(mainWindow.findChildren<QWidget*>().isEmpty());
}
