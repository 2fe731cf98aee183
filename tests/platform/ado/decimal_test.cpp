#include "platform/ado/decimal.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr const char* g_pLargest = "79228162514264337593543950335"; // 2^96 - 1

std::string Again(std::string_view strText) {
    const auto decimal = DecimalFromText(strText);
    return decimal ? DecimalText(*decimal) : "none";
}

} // namespace

TEST(DecimalFromText, KeepsEveryDigit) {
    for (const char* pszText : {"0", "0.00", "1.50", "-12.50", "0.001", "-0.5", g_pLargest,
                                "7.9228162514264337593543950335", "-4294967296.4294967296"})
        EXPECT_EQ(Again(pszText), pszText);
}

TEST(DecimalFromText, FillsSignScaleAndBits) {
    EXPECT_EQ(DecimalFromText("-1.25"), (DECIMAL{2, 0x80, 0, 125}));
    EXPECT_EQ(DecimalFromText(g_pLargest), (DECIMAL{0, 0, 0xFFFFFFFF, 0xFFFFFFFFFFFFFFFF}));
    EXPECT_EQ(DecimalFromText("18446744073709551616"), (DECIMAL{0, 0, 1, 0})); // 2^64
}

TEST(DecimalFromText, TakesExponentsBlanksAndSigns) {
    EXPECT_EQ(Again(" +1.5e3 "), "1500");
    EXPECT_EQ(Again("1.5E-3"), "0.0015");
    EXPECT_EQ(Again(".5"), "0.5");
    EXPECT_EQ(Again("5."), "5");
    EXPECT_EQ(Again("0e999"), "0");
}

TEST(DecimalFromText, IsNothingForWhatDoesNotFit) {
    for (const char* pszText : {"", "-", ".", "e5", "1e", "1e+", "1.2.3", "12x", "1e30", "1e-29", "nan",
                                "79228162514264337593543950336", "1e99999999999"})
        EXPECT_EQ(Again(pszText), "none") << pszText;
}

TEST(DecimalFromNumber, TakesTheShortestDigits) {
    EXPECT_EQ(DecimalText(DecimalFromNumber(0.1).value()), "0.1");
    EXPECT_EQ(DecimalText(DecimalFromNumber(-1.25e-7).value()), "-0.000000125");
    EXPECT_EQ(DecimalText(DecimalFromNumber(1e20).value()), "100000000000000000000");
    EXPECT_FALSE(DecimalFromNumber(1e300).has_value());
    EXPECT_FALSE(DecimalFromNumber(std::numeric_limits<double>::quiet_NaN()).has_value());
    EXPECT_FALSE(DecimalFromNumber(-std::numeric_limits<double>::infinity()).has_value());
}

TEST(DecimalNumber, IsNegativeBySignByteAndDividedByItsScale) {
    EXPECT_EQ(DecimalNumber({2, 0x80, 0, 125}), -1.25);
    EXPECT_EQ(DecimalNumber({0, 0, 1, 1}), 18446744073709551617.0);
    EXPECT_EQ(DecimalNumber({}), 0.0);
}
