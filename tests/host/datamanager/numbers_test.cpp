#include "host/datamanager/numbers.h"

#include <gtest/gtest.h>

#include <limits>

TEST(ParseDecimal, TakesSignPointAndExponent) {
    EXPECT_EQ(ParseDecimal("-0.01"), -0.01);
    EXPECT_EQ(ParseDecimal("80"), 80.0);
    EXPECT_EQ(ParseDecimal("1e-05"), 1e-05);
    EXPECT_EQ(ParseDecimal("+2.5E+3"), 2500.0);
    EXPECT_EQ(ParseDecimal(".5"), 0.5);
    EXPECT_EQ(ParseDecimal("5."), 5.0);
    EXPECT_EQ(ParseDecimal("007"), 7.0);
}

TEST(ParseDecimal, RefusesWhatIsNoDecimalNumber) {
    for (const char* pszText : {"", "nan", "inf", "-inf", "Infinity", "0x10", "1,5", " 1", "1 ", "1e", "1e+",
                                ".", "-", "+-1", "--1", "1.2.3", "1d5", "12m"})
        EXPECT_FALSE(ParseDecimal(pszText).has_value()) << pszText;
}

TEST(ParseDecimal, RefusesWhatAFloatCannotHoldAndTakesWhatIsNearlyZero) {
    EXPECT_EQ(ParseDecimal("3.4028234e38"), 3.4028234e38);
    EXPECT_FALSE(ParseDecimal("3.5e38").has_value());
    EXPECT_FALSE(ParseDecimal("1e400").has_value());
    EXPECT_EQ(ParseDecimal("1e-400"), 0.0);
}

TEST(ParseWhole, TakesWholeNumbersWithinTheRangeOnly) {
    EXPECT_EQ(ParseWhole("-128", -128, 127), -128);
    EXPECT_EQ(ParseWhole("+127", -128, 127), 127);
    EXPECT_EQ(ParseWhole("2147483647", std::numeric_limits<int>::min(), std::numeric_limits<int>::max()),
              2147483647);
    EXPECT_FALSE(ParseWhole("128", -128, 127).has_value());
    EXPECT_FALSE(ParseWhole("-1", 0, 255).has_value());
    EXPECT_FALSE(ParseWhole("99999999999999999999", -128, 127).has_value());
    for (const char* pszText : {"", "-", "1.0", "1e2", " 1", "1 ", "+-1", "0x1", "a"})
        EXPECT_FALSE(ParseWhole(pszText, -128, 127).has_value()) << pszText;
}

TEST(ShortestFloat, IsTheShortestTextThatReadsBack) {
    EXPECT_EQ(ShortestFloat(static_cast<float>(12.350000381)), "12.35");
    EXPECT_EQ(ShortestFloat(25.0F), "25");
    EXPECT_EQ(ShortestFloat(-0.1F), "-0.1");
    EXPECT_EQ(ShortestFloat(0.0F), "0");
    EXPECT_EQ(ShortestFloat(16777216.0F), "16777216");
    EXPECT_EQ(ShortestFloat(-std::numeric_limits<float>::quiet_NaN()), "nan");
}

TEST(CellNumber, TakesAnyKindOfCell) {
    EXPECT_EQ(CellNumber(std::int64_t{3}), 3.0);
    EXPECT_EQ(CellNumber(2.5), 2.5);
    EXPECT_EQ(CellNumber(std::string_view("7")), 0.0);
    EXPECT_EQ(CellNumber({}), 0.0);
}

TEST(CellWhole, TakesWholeNumbersOfAnyKind) {
    EXPECT_EQ(CellWhole(std::int64_t{9007199254740993}), 9007199254740993);
    EXPECT_EQ(CellWhole(-3.0), -3);
    EXPECT_EQ(CellWhole(2.5), 0);
    EXPECT_EQ(CellWhole(1e300), 0);
    EXPECT_EQ(CellWhole({}), 0);
}
