#include "data/ado_parameter.h"

#include <gtest/gtest.h>

TEST(AdoParameter, IsMadeOfTypeSizeDirectionAndName) {
    const CADOParameter parameter(ADODB::adVarChar, 20, ADODB::adParamInput, "取样");
    EXPECT_EQ(parameter.GetName(), "取样");
    EXPECT_EQ(parameter.GetType(), ADODB::adVarChar);
    EXPECT_EQ(parameter.GetParameter()->GetName(), L"取样");
    EXPECT_EQ(parameter.GetParameter()->GetType(), ADODB::adVarChar);
    EXPECT_EQ(parameter.GetParameter()->GetSize(), 20);
    EXPECT_EQ(parameter.GetParameter()->GetDirection(), ADODB::adParamInput);
}

TEST(AdoParameter, GivesBackItsValue) {
    CADOParameter parameter(ADODB::adInteger);
    int nValue = 9;
    EXPECT_EQ(parameter.GetInt(&nValue), 1);
    EXPECT_EQ(nValue, 0); // none yet
    EXPECT_EQ(parameter.SetInt(-5), 1);
    EXPECT_EQ(parameter.GetInt(&nValue), 1);
    EXPECT_EQ(nValue, -5);
    EXPECT_EQ(parameter.SetLong(70000), 1);
    std::int32_t nLong = 0;
    EXPECT_EQ(parameter.GetLong(&nLong), 1);
    EXPECT_EQ(nLong, 70000);
    double dValue = 0;
    EXPECT_EQ(parameter.SetDouble(1.5), 1);
    EXPECT_EQ(parameter.GetDouble(&dValue), 1);
    EXPECT_EQ(dValue, 1.5);
    CString strText;
    EXPECT_EQ(parameter.GetText(&strText), 1);
    EXPECT_EQ(strText, "1.5");
    EXPECT_EQ(parameter.SetText("固结"), 1);
    EXPECT_EQ(parameter.GetText(&strText), 1);
    EXPECT_EQ(strText, "固结");
    EXPECT_EQ(parameter.SetDate(45360.5), 1);
    EXPECT_EQ(parameter.GetDate(&dValue), 1);
    EXPECT_EQ(dValue, 45360.5);
    EXPECT_EQ(parameter.GetText(&strText), 0);
}

TEST(AdoParameter, KeepsTheErrorOfAValueThatIsNoDate) {
    CADOParameter parameter(ADODB::adDate);
    parameter.SetInt(1);
    double dDays = 7;
    EXPECT_EQ(parameter.GetDate(&dDays), 0);
    EXPECT_EQ(dDays, 7.0);
    EXPECT_EQ(parameter.GetLastErrorCode(), 0x800A0D5DU);
    EXPECT_STREQ(parameter.GetLastErrorString(),
                 "CADOParameter Error\n\tCode = 800a0d5d\n\tCode meaning = The value is of the wrong type\n"
                 "\tSource = ADODB\n\tDescription = The value is of the wrong type\n");
}
