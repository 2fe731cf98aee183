#include "data/gcvt.h"

#include <gtest/gtest.h>

#include <limits>

TEST(Gcvt, LeavesOutEndingZerosAndKeepsThePoint) {
    EXPECT_EQ(Gcvt(1.5, 20), "1.5");
    EXPECT_EQ(Gcvt(-1.5, 10), "-1.5");
    EXPECT_EQ(Gcvt(2.0, 20), "2.");
    EXPECT_EQ(Gcvt(100.0, 10), "100.");
    EXPECT_EQ(Gcvt(0.0, 10), "0.");
}

TEST(Gcvt, GivesAsManySignificantDigitsAsAsked) {
    EXPECT_EQ(Gcvt(0.1, 20), "0.10000000000000000555");
    EXPECT_EQ(Gcvt(0.1, 10), "0.1");
    EXPECT_EQ(Gcvt(12.3456789012345, 10), "12.3456789");
    EXPECT_EQ(Gcvt(20.1F, 10), "20.10000038");
}

TEST(Gcvt, HasNoPointWhereTheDigitsEndAtIt) {
    EXPECT_EQ(Gcvt(1234567890.0, 10), "1234567890");
}

TEST(Gcvt, TakesAnExponentAboveTheDigits) {
    EXPECT_EQ(Gcvt(12345678901.0, 10), "1.23456789e+10");
    EXPECT_EQ(Gcvt(1e20, 20), "1.e+20");
    EXPECT_EQ(Gcvt(-3e100, 10), "-3.e+100");
}

TEST(Gcvt, TakesAnExponentBelowATenth) {
    EXPECT_EQ(Gcvt(0.25, 10), "0.25");
    EXPECT_EQ(Gcvt(0.05, 10), "5.e-02");
    EXPECT_EQ(Gcvt(0.05, 20), "5.0000000000000002776e-02");
    EXPECT_EQ(Gcvt(0.0999999999999999917, 10), "1.e-01"); // below 0.1, though it rounds to it
}

TEST(Gcvt, NamesWhatIsNoNumber) {
    EXPECT_EQ(Gcvt(std::numeric_limits<double>::infinity(), 10), "inf");
    EXPECT_EQ(Gcvt(std::numeric_limits<double>::quiet_NaN(), 10), "nan");
}
