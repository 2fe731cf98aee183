#include "data/ado_value.h"

#include <gtest/gtest.h>

#include <bit>
#include <limits>

namespace {

/// -12.50
constexpr DECIMAL g_decimal = {.scale = 2, .sign = g_nDecimalNegative, .Hi32 = 0, .Lo64 = 1250};

/// The text of a value; "?" where it has none.
std::string Text(const CVariant& value) {
    CString strText = "before";
    if (TextOfValue(value, &strText)) return strText.GetString();
    EXPECT_EQ(strText, "");
    return "?";
}

} // namespace

TEST(DoubleOfValue, IsZeroForNothing) {
    EXPECT_EQ(DoubleOfValue(CVariant()), 0.0);
    EXPECT_EQ(DoubleOfValue(CVariant::Null()), 0.0);
}

TEST(DoubleOfValue, TakesNumbersOfEachType) {
    EXPECT_EQ(DoubleOfValue(CVariant(std::int16_t{-3})), -3.0);
    EXPECT_EQ(DoubleOfValue(CVariant(std::int32_t{-70000})), -70000.0);
    EXPECT_EQ(DoubleOfValue(CVariant::Int(5)), 5.0);
    EXPECT_EQ(DoubleOfValue(CVariant(std::uint8_t{200})), 200.0);
    EXPECT_EQ(DoubleOfValue(CVariant(0.1F)), double{0.1F});
    EXPECT_EQ(DoubleOfValue(CVariant(0.1)), 0.1);
}

TEST(DoubleOfValue, ReadsADecimalWithItsSign) {
    EXPECT_EQ(DoubleOfValue(CVariant(g_decimal)), -12.5);
    DECIMAL large = {.scale = 1, .sign = 0, .Hi32 = 1, .Lo64 = 0};
    EXPECT_EQ(DoubleOfValue(CVariant(large)), 1844674407370955161.6);
    large.sign = g_nDecimalNegative;
    EXPECT_EQ(DoubleOfValue(CVariant(large)), -1844674407370955161.6);
}

TEST(DoubleOfValue, TakesTheEightBytesOfOtherTypes) {
    EXPECT_EQ(DoubleOfValue(CVariant::Date(45000.25)), 45000.25);
    EXPECT_EQ(DoubleOfValue(CVariant(std::uint32_t{7})), std::bit_cast<double>(std::uint64_t{7}));
    EXPECT_EQ(DoubleOfValue(CVariant(L"1.5")), 0.0);
}

TEST(IntOfValue, CutsRealsTowardZero) {
    EXPECT_EQ(IntOfValue(CVariant(2.9)), 2);
    EXPECT_EQ(IntOfValue(CVariant(-2.9F)), -2);
    EXPECT_EQ(IntOfValue(CVariant(g_decimal)), -12);
    EXPECT_EQ(IntOfValue(CVariant(1e10)), std::numeric_limits<int>::min());
}

TEST(IntOfValue, TakesWholeNumbersAndTruthValues) {
    EXPECT_EQ(IntOfValue(CVariant()), 0);
    EXPECT_EQ(IntOfValue(CVariant::Null()), 0);
    EXPECT_EQ(IntOfValue(CVariant(std::int16_t{-3})), -3);
    EXPECT_EQ(IntOfValue(CVariant(std::uint8_t{200})), 200);
    EXPECT_EQ(IntOfValue(CVariant(std::int32_t{-70000})), -70000);
    EXPECT_EQ(IntOfValue(CVariant(std::uint32_t{4000000000U})), static_cast<int>(4000000000U));
    EXPECT_EQ(IntOfValue(CVariant(true)), -1);
}

TEST(TextOfValue, WritesNumbersByTheirType) {
    EXPECT_EQ(Text(CVariant(std::int16_t{-3})), "-3");
    EXPECT_EQ(Text(CVariant(std::uint8_t{200})), "200");
    EXPECT_EQ(Text(CVariant(std::int32_t{-70000})), "-70000");
    EXPECT_EQ(Text(CVariant::Int(5)), "5");
    EXPECT_EQ(Text(CVariant(std::uint32_t{4000000000U})), "4000000000");
    EXPECT_EQ(Text(CVariant(0.1F)), "0.1000000015");
    EXPECT_EQ(Text(CVariant(0.1)), "0.10000000000000000555");
    EXPECT_EQ(Text(CVariant(2.0)), "2.");
    EXPECT_EQ(Text(CVariant(g_decimal)), "-12.5");
}

TEST(TextOfValue, IsTheTextInTheCodePage) {
    EXPECT_EQ(Text(CVariant(L"固结")), "固结");
    EXPECT_EQ(Text(CVariant()), "");
    EXPECT_EQ(Text(CVariant::Null()), "");
}

TEST(TextOfValue, HasNoneForOtherTypes) {
    EXPECT_EQ(Text(CVariant::Date(45000)), "?");
    EXPECT_EQ(Text(CVariant(true)), "?");
    EXPECT_EQ(Text(CVariant(std::int8_t{1})), "?");
    EXPECT_EQ(Text(CVariant(std::vector<unsigned char>{1})), "?");
}

TEST(IsRealType, HoldsForSingleDoubleAndDecimal) {
    for (const VARTYPE vt : {VT_R4, VT_R8, VT_DECIMAL})
        EXPECT_TRUE(IsRealType(vt));
    for (const VARTYPE vt : {VT_EMPTY, VT_NULL, VT_I4, VT_DATE, VT_BSTR, VT_BOOL})
        EXPECT_FALSE(IsRealType(vt));
}
