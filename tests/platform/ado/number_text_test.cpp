#include "platform/ado/number_text.h"

#include <gtest/gtest.h>

#include <cstdint>

TEST(NumberFromText, TakesTheWholeText) {
    EXPECT_EQ(NumberFromText<std::int64_t>("-12"), -12);
    EXPECT_EQ(NumberFromText<std::int64_t>("+12"), 12);
    EXPECT_EQ(NumberFromText<double>("+1.5e3"), 1500.0);
    EXPECT_EQ(NumberFromText<std::size_t>("50"), 50U);
}

TEST(NumberFromText, IsNothingForAnyOtherText) {
    for (const char* pszText :
         {"", "+", "-", "12x", " 12", "12 ", "1.5", "+-5", "++5", "9223372036854775808"})
        EXPECT_FALSE(NumberFromText<std::int64_t>(pszText).has_value()) << pszText;
    EXPECT_FALSE(NumberFromText<double>("1e999").has_value());
}

TEST(ShortestText, ReadsBackAsTheNumber) {
    EXPECT_EQ(ShortestText(std::int64_t{-12}), "-12");
    EXPECT_EQ(ShortestText(1.5), "1.5");
    EXPECT_EQ(ShortestText(0.1), "0.1");
    EXPECT_EQ(ShortestText(0.1F), "0.1");
    EXPECT_EQ(ShortestText(1e30), "1e+30");
    EXPECT_EQ(NumberFromText<double>(ShortestText(1.0 / 3.0)), 1.0 / 3.0);
}
