#include "host/desktop/dialogs/date_view.h"

#include "tests/host/desktop/dialogs/placed_dialog_test.h"

using namespace TestDialog;

namespace {

class DateView : public CPlacedDialogTest {
protected:
    std::string Date() const {
        const auto date = m_dialog.State(DATE).m_date;
        return std::to_string(static_cast<int>(date.year())) + "." +
               std::to_string(static_cast<unsigned>(date.month())) + "." +
               std::to_string(static_cast<unsigned>(date.day()));
    }
};

} // namespace

TEST_F(DateView, AnArrowIsALineThatSetsTheDate) {
    Work([&] {
        CUserHand::TabTo(DATE);
        CUserHand::Key(Qt::Key_Up);
        EXPECT_EQ(Date(), "2025.12.31");
    });
    EXPECT_EQ(m_dialog.m_strLog, Told({"set 18 2025-12-31"}));
}

TEST_F(DateView, TakesADateThatIsTyped) {
    Work([&] {
        CUserHand::TabTo(DATE);
        CUserHand::Type("20260309");
        EXPECT_EQ(Date(), "2026.3.9");
    });
}

TEST_F(DateView, GoesNoFurtherBackThanTheFirstYear) {
    Work([&] {
        m_dialog.State(DATE).m_date = {std::chrono::year(1900), std::chrono::month(2), std::chrono::day(3)};
        CUserHand::Click(PUSH); // the field shows the date
        CUserHand::TabTo(DATE);
        CUserHand::Key(Qt::Key_Down);
        EXPECT_EQ(Date(), "1900.2.3");
    });
}
