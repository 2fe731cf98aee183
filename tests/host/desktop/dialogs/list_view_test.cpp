#include "host/desktop/dialogs/list_view.h"

#include <QtWidgets/QListWidget>

#include "tests/host/desktop/dialogs/placed_dialog_test.h"

using namespace TestDialog;

namespace {

using ListView = CPlacedDialogTest;

constexpr Qt::KeyboardModifiers g_alsoThis = Qt::ControlModifier, g_upToThis = Qt::ShiftModifier;

} // namespace

TEST_F(ListView, AClickOnAnEntryIsALineThatSelectsIt) {
    Work([&] {
        CUserHand::ClickEntry(ONE, 3);
        EXPECT_EQ(m_dialog.Selected(ONE), "[试样]");
        CUserHand::ClickEntry(ONE, 0);
        EXPECT_EQ(m_dialog.Selected(ONE), "[1-1]");
    });
    EXPECT_EQ(m_dialog.m_strLog, Told({"select 10 试样", "select 10 1-1"}));
}

TEST_F(ListView, AClickOnTheSelectedEntryIsToldAgain) {
    Work([&] {
        CUserHand::ClickEntry(ONE, 1);
        CUserHand::ClickEntry(ONE, 1);
    });
    EXPECT_EQ(m_dialog.m_strLog, Told({"select 10 1-2", "select 10 1-2"}));
}

TEST_F(ListView, AClickBesideTheEntriesIsNothing) {
    Work([&] {
        CUserHand::ClickEntry(ONE, 1);
        auto& list = dynamic_cast<QListWidget&>(CUserHand::Widget(ONE));
        const QRect last = list.visualItemRect(list.item(list.count() - 1));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, last.center() + QPoint(0, last.height()));
        EXPECT_EQ(m_dialog.Selected(ONE), "[*1-2]");
    });
    EXPECT_EQ(m_dialog.m_strLog, Told({"select 10 1-2"}));
}

TEST_F(ListView, TakesEntriesOneByOneIntoASelectionOfSeveral) {
    Work([&] {
        CUserHand::ClickEntry(SEVERAL, 0);
        CUserHand::ClickEntry(SEVERAL, 3, g_alsoThis);
        EXPECT_EQ(m_dialog.Selected(SEVERAL), "[1-1][试样]");
        EXPECT_EQ(m_dialog.State(SEVERAL).m_nCaret, 3);
    });
    EXPECT_EQ(m_dialog.m_strLog, Told({"select 11 1-1 试样"}));
}

TEST_F(ListView, TellsEachEntryOfARange) {
    Work([&] {
        CUserHand::ClickEntry(SEVERAL, 1);
        CUserHand::ClickEntry(SEVERAL, 3, g_upToThis);
        EXPECT_EQ(m_dialog.Selected(SEVERAL), "[*1-2][all][试样]");
    });
    EXPECT_EQ(m_dialog.m_strLog, Told({"select 11 1-2 \"all\" 试样"}));
}

TEST_F(ListView, APlainClickGivesTheOthersUp) {
    Work([&] {
        CUserHand::ClickEntry(SEVERAL, 0);
        CUserHand::ClickEntry(SEVERAL, 2, g_upToThis);
        CUserHand::ClickEntry(SEVERAL, 4);
        EXPECT_EQ(m_dialog.Selected(SEVERAL), "[twin]");
    });
}

TEST_F(ListView, GivesUpTheEntryThatIsClickedOutOfTheSelection) {
    Work([&] {
        CUserHand::ClickEntry(SEVERAL, 0);
        CUserHand::ClickEntry(SEVERAL, 1, g_alsoThis);
        CUserHand::ClickEntry(SEVERAL, 0, g_alsoThis);
        EXPECT_EQ(m_dialog.Selected(SEVERAL), "[*1-2]");
        CUserHand::ClickEntry(SEVERAL, 1, g_alsoThis);
        EXPECT_EQ(m_dialog.Selected(SEVERAL), "");
    });
    EXPECT_EQ(m_dialog.m_strLog, Told({"select 11 1-1 1-2", "select 11 none"}));
}

TEST_F(ListView, TheKeyForAllIsALineThatSelectsAll) {
    Work([&] {
        CUserHand::TabTo(SEVERAL);
        CUserHand::Key(Qt::Key_A, Qt::ControlModifier);
        EXPECT_EQ(m_dialog.Selected(SEVERAL), "[1-1][*1-2][all][试样][twin][*twin]");
    });
    EXPECT_EQ(m_dialog.m_strLog, Told({"select 11 all"}));
}

TEST_F(ListView, ArrowsWalkAndWithShiftTakeTheEntriesOnTheirWay) {
    Work([&] {
        CUserHand::TabTo(ONE);
        CUserHand::Key(Qt::Key_End);
        CUserHand::Key(Qt::Key_Home);
        CUserHand::Key(Qt::Key_Down);
        EXPECT_EQ(m_dialog.Selected(ONE), "[*1-2]");
        CUserHand::TabTo(SEVERAL);
        CUserHand::Key(Qt::Key_Space);
        CUserHand::Key(Qt::Key_Down, g_upToThis);
        CUserHand::Key(Qt::Key_Down, g_upToThis);
        EXPECT_EQ(m_dialog.Selected(SEVERAL), "[1-1][*1-2][all]");
        CUserHand::Key(Qt::Key_Up, g_upToThis);
        EXPECT_EQ(m_dialog.Selected(SEVERAL), "[1-1][*1-2]");
        EXPECT_EQ(m_dialog.State(SEVERAL).m_nCaret, 1);
        CUserHand::Key(Qt::Key_Up, g_upToThis);
        EXPECT_EQ(m_dialog.Selected(SEVERAL), "[1-1]");
    });
}

TEST_F(ListView, ADoubleClickIsToldAfterItsSelection) {
    Work([&] {
        CUserHand::DoubleClickEntry(SEVERAL, 3);
        EXPECT_EQ(m_dialog.Selected(SEVERAL), "[试样]");
    });
    EXPECT_EQ(m_dialog.m_strLog, Told({"select 11 试样", "dblclick 11 试样"}));
}

TEST_F(ListView, ShowsTheEntriesThatAHandlerMakes) {
    struct CRefilled : CPlacedDialog {
        void OnCommand(UINT nId, int nCode) override {
            CPlacedDialog::OnCommand(nId, nCode);
            if (nId == ONE) State(SEVERAL).m_arEntries = {{"a", true}, {"b"}, {"c", true}};
        }
    } dialog;
    WorkIn(dialog, [&] {
        CUserHand::ClickEntry(ONE, 0);
        EXPECT_EQ(DifferencesOnScreen(dialog), "");
        EXPECT_EQ(dynamic_cast<QListWidget&>(CUserHand::Widget(SEVERAL)).count(), 3);
        CUserHand::ClickEntry(SEVERAL, 1, g_alsoThis);
        EXPECT_EQ(dialog.Selected(SEVERAL), "[a][b][c]");
    });
}
