#include "host/desktop/dialogs/edit_view.h"

#include <QtWidgets/QLineEdit>

#include "tests/host/desktop/dialogs/placed_dialog_test.h"

using namespace TestDialog;

namespace {

class EditView : public CPlacedDialogTest {
protected:
    std::string Text() const { return m_dialog.State(EDIT).m_strText.GetString(); }
};

} // namespace

TEST_F(EditView, EachKeyIsALineThatSetsTheText) {
    Work([&] {
        CUserHand::TabTo(EDIT);
        CUserHand::Type("3");
        CUserHand::Type("5");
        EXPECT_EQ(Text(), "35");
        CUserHand::Key(Qt::Key_Left);
        CUserHand::Type(".");
        EXPECT_EQ(Text(), "3.5"); // the cursor stayed
    });
    EXPECT_EQ(m_dialog.m_strLog, Told({"set 13 3", "set 13 35", "set 13 3.5"}));
}

TEST_F(EditView, TakesHanziInTheCodePage) {
    Work([&] {
        CUserHand::TabTo(EDIT);
        CUserHand::Commit("勘察院");
        EXPECT_EQ(Text(), "勘察院");
    });
}

TEST_F(EditView, TakesNoCharacterThatTheCodePageLacks) {
    Work([&] {
        CUserHand::TabTo(EDIT);
        auto& edit = dynamic_cast<QLineEdit&>(CUserHand::Widget(EDIT));
        edit.insert(QStringLiteral(u"\u0e01"));
        EXPECT_EQ(Text(), "a\"b");
        EXPECT_EQ(edit.text(), QStringLiteral("a\"b"));
    });
    EXPECT_EQ(m_dialog.m_strLog, "");
}

TEST_F(EditView, LeavesAFieldForReadingAlone) {
    Work([&] {
        CUserHand::Click(READ_ONLY);
        EXPECT_EQ(CUserHand::Focused(), READ_ONLY);
        CUserHand::Type("x");
        EXPECT_EQ(m_dialog.State(READ_ONLY).m_strText.GetString(), std::string());
    });
    EXPECT_EQ(m_dialog.m_strLog, "");
}
