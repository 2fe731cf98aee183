#include "data/date_text.h"

#include <gtest/gtest.h>

TEST(DateText, HasNoLeadingZeros) {
    EXPECT_EQ(DateText(CTime(2024, 3, 7, 23, 59, 59)), CString("2024.3.7"));
    EXPECT_EQ(DateText(CTime(2024, 12, 31, 0, 0, 0)), CString("2024.12.31"));
}
