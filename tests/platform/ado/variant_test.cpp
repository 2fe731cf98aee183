#include "platform/ado/variant.h"

#include <gtest/gtest.h>

TEST(Variant, IsEmptyUnlessGivenAValue) {
    EXPECT_EQ(CVariant().Type(), VT_EMPTY);
    EXPECT_FALSE(CVariant().IsNull());
    EXPECT_TRUE(CVariant::Null().IsNull());
}

TEST(Variant, HoldsEveryTypeUnderItsCode) {
    EXPECT_EQ(CVariant(std::int8_t{-1}).Type(), VT_I1);
    EXPECT_EQ(CVariant(std::int16_t{-2}).I2(), -2);
    EXPECT_EQ(CVariant(std::int16_t{-2}).Type(), VT_I2);
    EXPECT_EQ(CVariant(-3).I4(), -3);
    EXPECT_EQ(CVariant(-3).Type(), VT_I4);
    EXPECT_EQ(CVariant::Int(-3).Type(), VT_INT);
    EXPECT_EQ(CVariant(1.5F).R4(), 1.5F);
    EXPECT_EQ(CVariant(1.5F).Type(), VT_R4);
    EXPECT_EQ(CVariant(1.5).R8(), 1.5);
    EXPECT_EQ(CVariant(1.5).Type(), VT_R8);
    EXPECT_EQ(CVariant(L"固结").Text(), L"固结");
    EXPECT_EQ(CVariant(L"").Type(), VT_BSTR);
    EXPECT_EQ(CVariant(DECIMAL{1, 0x80, 0, 5}).Decimal().sign, 128);
    EXPECT_EQ(CVariant(DECIMAL()).Type(), VT_DECIMAL);
    EXPECT_TRUE(CVariant(true).Bool());
    EXPECT_EQ(CVariant(true).Type(), VT_BOOL);
    EXPECT_EQ(CVariant::Date(2.5).Type(), VT_DATE);
    EXPECT_EQ(CVariant(std::uint8_t{200}).UI1(), 200);
    EXPECT_EQ(CVariant(std::uint8_t{200}).Type(), VT_UI1);
    EXPECT_EQ(CVariant(std::uint32_t{4000000000U}).UI4(), 4000000000U);
    EXPECT_EQ(CVariant(std::uint32_t{1}).Type(), VT_UI4);
    EXPECT_EQ(CVariant::Error(-5).Type(), VT_ERROR);
    EXPECT_EQ(CVariant(std::vector<unsigned char>{1, 2}).Bytes().size(), 2U);
    EXPECT_EQ(CVariant(std::vector<unsigned char>{}).Type(), VT_ARRAY | VT_UI1);
}

TEST(Variant, ShowsItsBytesUnderAnotherType) {
    EXPECT_EQ(CVariant(std::uint8_t{200}).I2(), 200); // the bytes above it are zero
    EXPECT_EQ(CVariant(true).I2(), -1);
    EXPECT_EQ(CVariant::Date(2.5).R8(), 2.5);
    EXPECT_EQ(CVariant(L"5").R8(), 0.0);
    EXPECT_EQ(CVariant(DECIMAL{0, 0, 0, 5}).I4(), 0);
    EXPECT_EQ(CVariant(5).Text(), L"");
}

TEST(Variant, ComparesTypeAndValue) {
    EXPECT_EQ(CVariant(5), CVariant(5));
    EXPECT_NE(CVariant(5), CVariant::Int(5));
    EXPECT_NE(CVariant(), CVariant::Null());
    EXPECT_NE(CVariant(L"a"), CVariant(L"b"));
}
