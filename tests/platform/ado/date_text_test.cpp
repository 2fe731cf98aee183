#include "platform/ado/date_text.h"

#include <gtest/gtest.h>

#include <limits>

TEST(DaysFromText, CountsFromTheEndOf1899) {
    EXPECT_EQ(DaysFromText("1899-12-30"), 0.0);
    EXPECT_EQ(DaysFromText("1900-01-01"), 2.0);
    EXPECT_EQ(DaysFromText(" 2024-3-9 "), 45360.0);
    EXPECT_EQ(DaysFromText("0100-01-01"), -657434.0);
    EXPECT_EQ(DaysFromText("9999-12-31"), 2958465.0);
}

TEST(DaysFromText, TakesTheTimeAsPartOfTheDay) {
    EXPECT_EQ(DaysFromText("1900-01-01 12:00"), 2.5);
    EXPECT_EQ(DaysFromText("1900-01-01T06:00:00.5"), 2.25);
    EXPECT_EQ(DaysFromText("1899-12-29 06:00:00"), -1.25); // before day zero the fraction runs forward too
}

TEST(DaysFromText, IsNothingForWhatIsNoDate) {
    for (const char* pszText : {"", "2024", "2024-13-01", "2024-02-30", "2023-02-29", "24-01-01",
                                "0099-01-01", "2024-01-01x", "2024-01-01 24:00", "2024-01-01 12",
                                "2024-01-01 12:60", "2024-01-01 12:00:60", "2024-01-01 12:00:00."})
        EXPECT_FALSE(DaysFromText(pszText).has_value()) << pszText;
}

TEST(DateText, IsReadBackAsTheSameDate) {
    for (const char* pszText :
         {"2024-03-09", "2024-03-09 23:59:59", "1899-12-29 06:00:00", "0100-01-01", "9999-12-31 00:00:01"})
        EXPECT_EQ(DateText(DaysFromText(pszText).value()), pszText);
}

TEST(DateText, RoundsToTheSecond) {
    EXPECT_EQ(DateText(45360.0 - 1e-7), "2024-03-09");
    EXPECT_EQ(DateText(45360.0 + 1.4 / 86400), "2024-03-09 00:00:01");
}

TEST(DateText, IsEmptyOutsideTheYearsThatADateHas) {
    EXPECT_EQ(DateText(-657435.0), "");
    EXPECT_EQ(DateText(2958466.0), "");
    EXPECT_EQ(DateText(std::numeric_limits<double>::quiet_NaN()), "");
}
