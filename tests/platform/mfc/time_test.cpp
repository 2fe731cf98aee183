#include "platform/mfc/time.h"

#include <gtest/gtest.h>

#include <ctime>

#include "platform/mfc/exception.h"

TEST(Time, IsZeroUntilSet) {
    EXPECT_EQ(CTime().GetTime(), 0);
    EXPECT_EQ(CTime(), CTime(0));
}

TEST(Time, IsMadeOfItsPartsInLocalTime) {
    const CTime time(2024, 3, 9, 12, 30, 15);
    std::tm parts{};
    parts.tm_year = 2024 - 1900;
    parts.tm_mon = 2;
    parts.tm_mday = 9;
    parts.tm_hour = 12;
    parts.tm_min = 30;
    parts.tm_sec = 15;
    parts.tm_isdst = -1;
    EXPECT_EQ(time.GetTime(), std::mktime(&parts));
}

TEST(Time, GivesTheLocalDate) {
    const CTime time(2024, 3, 9, 12, 0, 0);
    EXPECT_EQ(time.GetYear(), 2024);
    EXPECT_EQ(time.GetMonth(), 3);
    EXPECT_EQ(time.GetDay(), 9);
    EXPECT_EQ(CTime(time.GetDate()), CTime(2024, 3, 9, 0, 0, 0));
}

TEST(Time, TakesADayThatTheMonthLacksAsOneOfTheNext) {
    EXPECT_EQ(CTime(2023, 2, 31, 0, 0, 0), CTime(2023, 3, 3, 0, 0, 0));
}

TEST(Time, RefusesPartsThatAreInNoCalendar) {
    EXPECT_EQ(CTime(1900, 1, 1, 0, 0, 0).GetYear(), 1900);
    EXPECT_THROW(CTime(1899, 12, 31, 0, 0, 0), CInvalidArgException);
    EXPECT_THROW(CTime(2024, 0, 1, 0, 0, 0), CInvalidArgException);
    EXPECT_THROW(CTime(2024, 13, 1, 0, 0, 0), CInvalidArgException);
    EXPECT_THROW(CTime(2024, 1, 0, 0, 0, 0), CInvalidArgException);
    EXPECT_THROW(CTime(2024, 1, 32, 0, 0, 0), CInvalidArgException);
}

TEST(Time, NowLiesBetweenTwoReadingsOfTheClock) {
    const std::time_t before = std::time(nullptr);
    const CTime now = CTime::GetCurrentTime();
    EXPECT_GE(now.GetTime(), before);
    EXPECT_LE(now.GetTime(), std::time(nullptr));
}
