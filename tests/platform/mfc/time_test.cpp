#include "platform/mfc/time.h"

#include <gtest/gtest.h>

#include <ctime>

TEST(Time, IsZeroUntilSet) {
    EXPECT_EQ(CTime().GetTime(), 0);
    EXPECT_EQ(CTime(), CTime(0));
}

TEST(Time, GivesTheLocalDate) {
    std::tm parts{};
    parts.tm_year = 2024 - 1900;
    parts.tm_mon = 2;
    parts.tm_mday = 9;
    parts.tm_hour = 12;
    parts.tm_isdst = -1;
    const CTime time(std::mktime(&parts));
    EXPECT_EQ(time.GetYear(), 2024);
    EXPECT_EQ(time.GetMonth(), 3);
    EXPECT_EQ(time.GetDay(), 9);
}

TEST(Time, NowLiesBetweenTwoReadingsOfTheClock) {
    const std::time_t before = std::time(nullptr);
    const CTime now = CTime::GetCurrentTime();
    EXPECT_GE(now.GetTime(), before);
    EXPECT_LE(now.GetTime(), std::time(nullptr));
}
