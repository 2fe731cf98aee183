#include "platform/ado/data_type.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/platform/ado/recordset_fixture.h"

using namespace ADODB;

TEST(DataType, ShowsColumnsUnderTheNumbersOfTheirTypes) {
    const std::vector<std::pair<DBTYPE, int>> arExpected = {
        {DBTYPE_I2, 2},   {DBTYPE_I4, 3},    {DBTYPE_R4, 4},        {DBTYPE_R8, 5},
        {DBTYPE_DATE, 7}, {DBTYPE_BOOL, 11}, {DBTYPE_DECIMAL, 131}, {DBTYPE_I1, 16},
        {DBTYPE_UI1, 17}, {DBTYPE_UI4, 19},  {DBTYPE_EMPTY, 12}};
    for (const auto& [wType, nExpected] : arExpected)
        EXPECT_EQ(DataTypeOf({"", wType}), nExpected) << wType;
}

TEST(DataType, TellsLongTextsAndBytesFromThoseOfADeclaredLength) {
    EXPECT_EQ(DataTypeOf({"", DBTYPE_BSTR, 20}), adVarWChar);
    EXPECT_EQ(DataTypeOf({"", DBTYPE_BSTR}), adLongVarWChar);
    EXPECT_EQ(DataTypeOf({"", DBTYPE_BYTES, 20}), adVarBinary);
    EXPECT_EQ(DataTypeOf({"", DBTYPE_BYTES}), adLongVarBinary);
}

TEST(DataType, HasTheSizeThatTypeOrDeclarationGives) {
    EXPECT_EQ(DefinedSizeOf({"", DBTYPE_R8, 5}), 8);
    EXPECT_EQ(DefinedSizeOf({"", DBTYPE_BSTR, 20}), 20);
    EXPECT_EQ(DefinedSizeOf({"", DBTYPE_BSTR}), 1073741823);
    EXPECT_EQ(DefinedSizeOf({"", DBTYPE_BYTES}), 2147483647);
}

TEST(DataType, TakesEveryTypeOfParameters) {
    EXPECT_EQ(ColumnTypeOf(adVarChar), DBTYPE_BSTR);
    EXPECT_EQ(ColumnTypeOf(adDBTimeStamp), DBTYPE_DATE);
    EXPECT_EQ(ColumnTypeOf(adDecimal), DBTYPE_DECIMAL);
    EXPECT_EQ(ColumnTypeOf(adLongVarBinary), DBTYPE_BYTES);
    EXPECT_EQ(ColumnTypeOf(adVariant), DBTYPE_EMPTY);
    EXPECT_EQ(CodeOf([] { ColumnTypeOf(adEmpty); }), g_nWrongType);
}
