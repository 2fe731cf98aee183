#include "host/console/numbers.h"

#include <gtest/gtest.h>

#include <limits>

TEST(ParseNumber, TakesSignPointAndExponent) {
    for (const auto& [text, expected] :
         {std::pair{"-0.01", -0.01}, {"80", 80.0}, {"1e-05", 1e-5}, {"+2.5", 2.5}, {".5", 0.5}}) {
        double value = 0.0;
        EXPECT_TRUE(ParseNumber(text, &value)) << text;
        EXPECT_EQ(value, expected) << text;
    }
}

TEST(ParseNumber, RefusesWhatIsNotAllAFiniteNumber) {
    for (const char* text : {"", "+", "+-1", "1x", " 1", "1 ", "nan", "inf", "1e999", "1,5", "0x10"}) {
        double value = 42.0;
        EXPECT_FALSE(ParseNumber(text, &value)) << text;
        EXPECT_EQ(value, 42.0) << text;
    }
}

TEST(ParseWhole, TakesThirtyTwoBits) {
    int value = 0;
    EXPECT_TRUE(ParseWhole("-2147483648", &value));
    EXPECT_EQ(value, std::numeric_limits<int>::min());
    EXPECT_TRUE(ParseWhole("+7", &value));
    EXPECT_EQ(value, 7);
    EXPECT_FALSE(ParseWhole("2147483648", &value));
    EXPECT_FALSE(ParseWhole("1.0", &value));
    EXPECT_EQ(value, 7);
}

TEST(NumberText, IsTheShortestTextThatReadsBack) {
    EXPECT_EQ(NumberText(0.1), "0.1");
    EXPECT_EQ(NumberText(10.0), "10");
    EXPECT_EQ(NumberText(1.0 / 3.0), "0.3333333333333333");
}

TEST(NumberText, NamesWhatIsNoNumberWithoutASignOnNan) {
    EXPECT_EQ(NumberText(-std::numeric_limits<double>::quiet_NaN()), "nan");
    EXPECT_EQ(NumberText(std::numeric_limits<double>::infinity()), "inf");
    EXPECT_EQ(NumberText(-std::numeric_limits<double>::infinity()), "-inf");
}
