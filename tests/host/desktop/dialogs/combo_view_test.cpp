#include "host/desktop/dialogs/combo_view.h"

#include <QtWidgets/QComboBox>

#include "tests/host/desktop/dialogs/placed_dialog_test.h"

using namespace TestDialog;

namespace {

using ComboView = CPlacedDialogTest;

} // namespace

TEST_F(ComboView, AnEntryTakenByArrowIsALineThatSelectsIt) {
    Work([&] {
        CUserHand::TabTo(COMBO);
        CUserHand::Key(Qt::Key_Down);
        EXPECT_EQ(m_dialog.Selected(COMBO), "[1-1]");
        CUserHand::Key(Qt::Key_Down);
        EXPECT_EQ(m_dialog.Selected(COMBO), "[*1-2]");
    });
    EXPECT_EQ(m_dialog.m_strLog, Told({"select 12 1-1", "select 12 1-2"}));
}

TEST_F(ComboView, AnEntryClickedInItsListIsALineThatSelectsIt) {
    Work([&] {
        auto& combo = dynamic_cast<QComboBox&>(CUserHand::Widget(COMBO));
        combo.showPopup();
        auto* const pEntries = combo.view();
        const QRect place = pEntries->visualRect(combo.model()->index(3, 0));
        QTest::qWait(QApplication::doubleClickInterval()); // a click at once belongs to the opening
        QTest::mouseClick(pEntries->viewport(), Qt::LeftButton, {}, place.center());
        EXPECT_EQ(m_dialog.Selected(COMBO), "[试样]");
    });
    EXPECT_EQ(m_dialog.m_strLog, Told({"select 12 试样"}));
}
