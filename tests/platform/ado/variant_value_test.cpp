#include "platform/ado/variant_value.h"

#include <gtest/gtest.h>

#include <array>

#include "platform/ado/com_error.h"

namespace {

using CBytes = std::vector<unsigned char>;

std::uint32_t CodeOf(const CVariant& value, DBTYPE wDeclared) {
    try {
        ValueForColumn(value, wDeclared);
    } catch (const CComError& error) {
        return static_cast<std::uint32_t>(error.Error());
    }
    return 0;
}

constexpr std::uint32_t g_nConversion = 0x800A0D5D;
constexpr std::uint32_t g_nOverflow = 0x80040E57;

} // namespace

TEST(VariantOfCell, FollowsTheDeclaredType) {
    const CDbCell five = std::int64_t{5};
    EXPECT_EQ(VariantOfCell(five, DBTYPE_I1), CVariant(std::int8_t{5}));
    EXPECT_EQ(VariantOfCell(five, DBTYPE_I2), CVariant(std::int16_t{5}));
    EXPECT_EQ(VariantOfCell(five, DBTYPE_I4), CVariant(5));
    EXPECT_EQ(VariantOfCell(five, DBTYPE_UI1), CVariant(std::uint8_t{5}));
    EXPECT_EQ(VariantOfCell(five, DBTYPE_UI4), CVariant(std::uint32_t{5}));
    EXPECT_EQ(VariantOfCell(five, DBTYPE_R4), CVariant(5.0F));
    EXPECT_EQ(VariantOfCell(five, DBTYPE_R8), CVariant(5.0));
    EXPECT_EQ(VariantOfCell(five, DBTYPE_DECIMAL), CVariant(DECIMAL{0, 0, 0, 5}));
    EXPECT_EQ(VariantOfCell(five, DBTYPE_BOOL), CVariant(true));
    EXPECT_EQ(VariantOfCell(five, DBTYPE_BSTR), CVariant(5));
    EXPECT_EQ(VariantOfCell(1.5, DBTYPE_R4), CVariant(1.5F));
    EXPECT_EQ(VariantOfCell(1.5, DBTYPE_I4), CVariant(1.5));
    EXPECT_EQ(VariantOfCell(-1.25, DBTYPE_DECIMAL), CVariant(DECIMAL{2, 0x80, 0, 125}));
    EXPECT_EQ(VariantOfCell(std::string_view("粘土"), DBTYPE_BSTR), CVariant(L"粘土"));
    EXPECT_EQ(VariantOfCell(std::string_view("2024-03-09"), DBTYPE_DATE), CVariant::Date(45360));
    EXPECT_EQ(VariantOfCell(std::monostate(), DBTYPE_R8), CVariant::Null());
    const std::array<unsigned char, 2> arBytes = {0, 255};
    EXPECT_EQ(VariantOfCell(std::span<const unsigned char>(arBytes), DBTYPE_BYTES), CVariant(CBytes{0, 255}));
}

TEST(VariantOfCell, TakesAnotherTypeWhereTheValueDoesNotFit) {
    EXPECT_EQ(VariantOfCell(std::int64_t{5000000000}, DBTYPE_I4), CVariant(DECIMAL{0, 0, 0, 5000000000}));
    EXPECT_EQ(VariantOfCell(std::int64_t{-5000000000}, DBTYPE_BSTR),
              CVariant(DECIMAL{0, 0x80, 0, 5000000000}));
    EXPECT_EQ(VariantOfCell(1e300, DBTYPE_R4), CVariant(1e300));
    EXPECT_EQ(VariantOfCell(1e300, DBTYPE_DECIMAL), CVariant(1e300));
    EXPECT_EQ(VariantOfCell(std::string_view("soon"), DBTYPE_DATE), CVariant(L"soon"));
    EXPECT_EQ(VariantOfCell(std::string_view("x"), DBTYPE_R8), CVariant(L"x"));
}

TEST(ValueForColumn, TakesNumbersInAnyForm) {
    EXPECT_EQ(ValueForColumn(CVariant(L" 12 "), DBTYPE_I4), CDbValue(std::int64_t{12}));
    EXPECT_EQ(ValueForColumn(CVariant(2.5), DBTYPE_I2), CDbValue(std::int64_t{2}));
    EXPECT_EQ(ValueForColumn(CVariant(3.5F), DBTYPE_UI1), CDbValue(std::int64_t{4}));
    EXPECT_EQ(ValueForColumn(CVariant(L"+1.5e1"), DBTYPE_R4), CDbValue(15.0));
    EXPECT_EQ(ValueForColumn(CVariant(DECIMAL{2, 0x80, 0, 125}), DBTYPE_R8), CDbValue(-1.25));
    EXPECT_EQ(ValueForColumn(CVariant(DECIMAL{0, 0, 0, 5000000000}), DBTYPE_I4),
              CDbValue(std::int64_t{5000000000}));
    EXPECT_EQ(ValueForColumn(CVariant(std::uint32_t{7}), DBTYPE_DECIMAL), CDbValue(std::int64_t{7}));
    EXPECT_EQ(ValueForColumn(CVariant::Int(7), DBTYPE_EMPTY), CDbValue(std::int64_t{7}));
    EXPECT_EQ(ValueForColumn(CVariant(std::int8_t{-7}), DBTYPE_I1), CDbValue(std::int64_t{-7}));
}

TEST(ValueForColumn, TakesTruthDatesTextsAndBytes) {
    EXPECT_EQ(ValueForColumn(CVariant(true), DBTYPE_BOOL), CDbValue(std::int64_t{1}));
    EXPECT_EQ(ValueForColumn(CVariant(L"False"), DBTYPE_BOOL), CDbValue(std::int64_t{0}));
    EXPECT_EQ(ValueForColumn(CVariant(0.5), DBTYPE_BOOL), CDbValue(std::int64_t{1}));
    EXPECT_EQ(ValueForColumn(CVariant(true), DBTYPE_EMPTY), CDbValue(std::int64_t{1}));
    EXPECT_EQ(ValueForColumn(CVariant::Date(45360.5), DBTYPE_DATE), CDbValue("2024-03-09 12:00:00"));
    EXPECT_EQ(ValueForColumn(CVariant(L"2024-03-09"), DBTYPE_DATE), CDbValue("2024-03-09"));
    EXPECT_EQ(ValueForColumn(CVariant::Date(45360), DBTYPE_EMPTY), CDbValue("2024-03-09"));
    EXPECT_EQ(ValueForColumn(CVariant(1.5), DBTYPE_BSTR), CDbValue("1.5"));
    EXPECT_EQ(ValueForColumn(CVariant(L""), DBTYPE_BSTR), CDbValue(""));
    EXPECT_EQ(ValueForColumn(CVariant(L"粘土"), DBTYPE_EMPTY), CDbValue("粘土"));
    EXPECT_EQ(ValueForColumn(CVariant(CBytes{1}), DBTYPE_BYTES), CDbValue(CBytes{1}));
    EXPECT_EQ(ValueForColumn(CVariant(CBytes{1}), DBTYPE_EMPTY), CDbValue(CBytes{1}));
    EXPECT_EQ(ValueForColumn(CVariant(), DBTYPE_I4), CDbValue());
    EXPECT_EQ(ValueForColumn(CVariant::Null(), DBTYPE_BSTR), CDbValue());
}

TEST(ValueForColumn, RefusesWhatDoesNotSuitTheType) {
    EXPECT_EQ(CodeOf(CVariant(L"12x"), DBTYPE_I4), g_nConversion);
    EXPECT_EQ(CodeOf(CVariant(L""), DBTYPE_R8), g_nConversion);
    EXPECT_EQ(CodeOf(CVariant(L"soon"), DBTYPE_DATE), g_nConversion);
    EXPECT_EQ(CodeOf(CVariant(CBytes{1}), DBTYPE_I4), g_nConversion);
    EXPECT_EQ(CodeOf(CVariant(CBytes{1}), DBTYPE_BSTR), g_nConversion);
    EXPECT_EQ(CodeOf(CVariant(L"x"), DBTYPE_BYTES), g_nConversion);
    EXPECT_EQ(CodeOf(CVariant::Error(1), DBTYPE_EMPTY), g_nConversion);
    EXPECT_EQ(CodeOf(CVariant(300), DBTYPE_UI1), g_nOverflow);
    EXPECT_EQ(CodeOf(CVariant(-40000.0), DBTYPE_I2), g_nOverflow);
    EXPECT_EQ(CodeOf(CVariant(1e300), DBTYPE_I4), g_nOverflow);
    EXPECT_EQ(CodeOf(CVariant(1e9), DBTYPE_DATE), g_nOverflow);
}

TEST(VariantText, WritesEveryTypeShortest) {
    EXPECT_EQ(VariantText(CVariant(0.1F)), L"0.1");
    EXPECT_EQ(VariantText(CVariant(0.1)), L"0.1");
    EXPECT_EQ(VariantText(CVariant(-5)), L"-5");
    EXPECT_EQ(VariantText(CVariant(std::uint32_t{4000000000U})), L"4000000000");
    EXPECT_EQ(VariantText(CVariant(true)), L"True");
    EXPECT_EQ(VariantText(CVariant(false)), L"False");
    EXPECT_EQ(VariantText(CVariant(DECIMAL{2, 0x80, 0, 150})), L"-1.50");
    EXPECT_EQ(VariantText(CVariant::Date(2.5)), L"1900-01-01 12:00:00");
    EXPECT_EQ(VariantText(CVariant(CBytes{0x0A, 0xFF})), L"0AFF");
    EXPECT_EQ(VariantText(CVariant::Null()), L"");
    EXPECT_EQ(VariantText(CVariant()), L"");
}

TEST(GbkOrRaise, NamesACharacterThatTheCodePageLacks) {
    EXPECT_EQ(GbkOrRaise(L"固a结?"), "固a结?");
    EXPECT_EQ(GbkOrRaise(L""), "");
    try {
        GbkOrRaise(L"a\U0001F600");
        ADD_FAILURE() << "taken";
    } catch (const CComError& error) {
        EXPECT_EQ(error.Description(), L"character U+1F600 is not in the system code page");
        EXPECT_EQ(static_cast<std::uint32_t>(error.Error()), 0x80040E21U);
    }
}
