#include "platform/mfc/date_time_ctrl.h"

#include <gtest/gtest.h>

namespace {

class CTestDate : public CDateTimeCtrl {
public:
    CTestDate() {
        auto control = std::make_shared<CControl>();
        control->m_kind = CControlKind::Date;
        control->m_date = CTime(2024, 3, 9, 0, 0, 0).GetDate();
        Attach(control);
    }
};

} // namespace

TEST(DateTimeCtrl, GivesTheBeginningOfTheDayShown) {
    const CTestDate date;
    CTime time;
    EXPECT_EQ(date.GetTime(time), GDT_VALID);
    EXPECT_EQ(time, CTime(2024, 3, 9, 0, 0, 0));
}

TEST(DateTimeCtrl, ShowsTheDayOfATime) {
    CTestDate date;
    const CTime evening(1900, 12, 31, 23, 59, 59);
    EXPECT_EQ(date.SetTime(&evening), TRUE);
    CTime time;
    date.GetTime(time);
    EXPECT_EQ(time, CTime(1900, 12, 31, 0, 0, 0));
}

TEST(DateTimeCtrl, KeepsItsDayForATimeThatItCannotShow) {
    CTestDate date;
    const CTime early(CTime(1900, 1, 1, 0, 0, 0).GetTime() - 1);
    EXPECT_EQ(date.SetTime(&early), FALSE);
    EXPECT_EQ(date.SetTime(nullptr), FALSE);
    CTime time;
    date.GetTime(time);
    EXPECT_EQ(time, CTime(2024, 3, 9, 0, 0, 0));
}

TEST(DateTimeCtrl, AnswersNothingWithoutAWindow) {
    CDateTimeCtrl date;
    CTime time(5);
    EXPECT_EQ(date.GetTime(time), GDT_ERROR);
    EXPECT_EQ(time, CTime(5));
    EXPECT_EQ(date.SetTime(&time), FALSE);
}
