#include "analysis/numbers.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace {
double ThroughPrintf(double dValue) {
    char text[400];
    std::snprintf(text, sizeof text, "%.2f", dValue);
    return std::strtod(text, nullptr);
}
} // namespace

TEST(RoundToTwoDecimals, EqualsTheTextPrintedAndReadBack) {
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> mantissa(-1.0, 1.0);
    for (int i = 0; i < 20000; i++) {
        const double dValue = mantissa(random) * std::pow(10.0, static_cast<int>(random() % 12) - 3);
        ASSERT_EQ(RoundToTwoDecimals(dValue), ThroughPrintf(dValue)) << dValue;
    }
    for (const double dValue : {0.005, 0.015, 0.125, 2.675, -0.001, 149.905, 1e300, -1e22})
        EXPECT_EQ(RoundToTwoDecimals(dValue), ThroughPrintf(dValue)) << dValue;
}

TEST(RoundToTwoDecimals, KeepsWhatIsNoFiniteNumber) {
    EXPECT_TRUE(std::isnan(RoundToTwoDecimals(std::nan(""))));
    EXPECT_EQ(RoundToTwoDecimals(HUGE_VAL), HUGE_VAL);
    EXPECT_EQ(RoundToTwoDecimals(-HUGE_VAL), -HUGE_VAL);
}

TEST(CutToTwoDecimals, CutsTowardZero) {
    EXPECT_EQ(CutToTwoDecimals(25.678), 25.67);
    EXPECT_EQ(CutToTwoDecimals(-1.239), -1.23);
    EXPECT_EQ(CutToTwoDecimals(0.009), 0.0);
}

TEST(CutToTwoDecimals, GivesTheLeastValueForWhatDoesNotFit) {
    for (const double dValue : {std::nan(""), HUGE_VAL, 3e7})
        EXPECT_EQ(CutToTwoDecimals(dValue), -21474836.48) << dValue;
}

TEST(TruncateToInt32, CutsTowardZero) {
    EXPECT_EQ(TruncateToInt32(2.999), 2);
    EXPECT_EQ(TruncateToInt32(-2.999), -2);
    EXPECT_EQ(TruncateToInt32(2147483647.5), 2147483647);
    EXPECT_EQ(TruncateToInt32(-2147483648.5), std::numeric_limits<Adesk::Int32>::min());
}

TEST(TruncateToInt32, GivesTheLeastValueForWhatDoesNotFit) {
    for (const double dValue : {std::nan(""), HUGE_VAL, -HUGE_VAL, 2147483648.0, -2147483649.0, 1e300})
        EXPECT_EQ(TruncateToInt32(dValue), std::numeric_limits<Adesk::Int32>::min()) << dValue;
}
