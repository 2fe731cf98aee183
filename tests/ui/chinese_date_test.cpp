#include "ui/chinese_date.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

/// The result and the three numbers, which begin as -1.
std::vector<int> Parsed(const char* pText) {
    int nYear = -1, nMonth = -1, nDay = -1;
    const int nResult = ParseChineseDate(pText, &nYear, &nMonth, &nDay);
    return {nResult, nYear, nMonth, nDay};
}

using CNumbers = std::vector<int>;

} // namespace

TEST(ChineseDate, HasNoLeadingZeros) {
    EXPECT_STREQ(ChineseDate(CTime(2024, 3, 9, 0, 0, 0)), "2024年3月9日");
    EXPECT_STREQ(ChineseDate(CTime(2024, 12, 31, 23, 59, 59)), "2024年12月31日");
}

TEST(ParseChineseDate, TakesTheNumbersBeforeTheirMarks) {
    EXPECT_EQ(Parsed("2024年3月9日"), (CNumbers{1, 2024, 3, 9}));
    EXPECT_EQ(Parsed("2024年 03 月 09 日"), (CNumbers{1, 2024, 3, 9}));
}

TEST(ParseChineseDate, SetsNothingWhenAMarkIsMissing) {
    for (const char* pText : {"", "2024-3-9", "2024年3月9", "2024年3日", "3月9日"})
        EXPECT_EQ(Parsed(pText), (CNumbers{0, -1, -1, -1})) << pText;
}

TEST(ParseChineseDate, TakesWhatTheCutTextsGiveInAnotherOrder) {
    EXPECT_EQ(Parsed("3月9日2024年"), (CNumbers{1, 3, 0, 9}));
    EXPECT_EQ(Parsed("9日2024年3月"), (CNumbers{1, 9, 3, 0}));
    EXPECT_EQ(Parsed("年月日"), (CNumbers{1, 0, 0, 0}));
}
