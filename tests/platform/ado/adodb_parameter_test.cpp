#include "platform/ado/adodb_parameter.h"

#include <gtest/gtest.h>

#include "platform/ado/adodb_command.h"
#include "tests/platform/ado/recordset_fixture.h"

using namespace ADODB;

TEST(ParameterObject, BindsItsValueInItsType) {
    const ParameterPtr pParameter = Command::CreateParameter(L"深度", adInteger);
    EXPECT_EQ(CodeOf([&] { (void)pParameter->BoundValue(); }), 0x80040E10U);
    pParameter->PutValue(CVariant(L"12"));
    EXPECT_EQ(pParameter->BoundValue(), CDbValue(std::int64_t{12}));
    pParameter->PutType(adVarWChar);
    EXPECT_EQ(pParameter->BoundValue(), CDbValue("12"));
    pParameter->PutType(adDate);
    EXPECT_EQ(CodeOf([&] { (void)pParameter->BoundValue(); }), g_nWrongType);
    pParameter->PutValue(CVariant::Date(2.0));
    EXPECT_EQ(pParameter->BoundValue(), CDbValue("1900-01-01"));
    pParameter->PutValue(CVariant::Null());
    EXPECT_EQ(pParameter->BoundValue(), CDbValue());
    pParameter->PutType(adEmpty);
    EXPECT_EQ(CodeOf([&] { (void)pParameter->BoundValue(); }), g_nWrongType);
}

TEST(ParameterObject, KeepsItsProperties) {
    Parameter parameter;
    EXPECT_EQ(parameter.GetDirection(), adParamInput);
    EXPECT_EQ(parameter.GetValue(), CVariant());
    parameter.PutName(L"p");
    parameter.PutSize(50);
    parameter.PutPrecision(8);
    parameter.PutNumericScale(2);
    parameter.PutDirection(adParamOutput);
    EXPECT_EQ(parameter.GetName(), L"p");
    EXPECT_EQ(parameter.GetSize(), 50);
    EXPECT_EQ(parameter.GetPrecision(), 8);
    EXPECT_EQ(parameter.GetNumericScale(), 2);
    EXPECT_EQ(parameter.GetDirection(), adParamOutput);
}

TEST(ParametersObject, FindsByNameWithoutCaseAndByNumber) {
    Parameters parameters;
    const ParameterPtr pFirst = Command::CreateParameter(L"Hole", adVarWChar);
    parameters.Append(pFirst);
    parameters.Append(Command::CreateParameter(L"深", adDouble));
    EXPECT_EQ(parameters.GetCount(), 2);
    EXPECT_EQ(parameters.GetItem(L"HOLE"), pFirst);
    EXPECT_EQ(parameters.GetItem(1)->GetName(), L"深");
    EXPECT_EQ(CodeOf([&] { (void)parameters.GetItem(L"x"); }), g_nItemNotFound);
    EXPECT_EQ(CodeOf([&] { (void)parameters.GetItem(2); }), g_nItemNotFound);
    EXPECT_EQ(CodeOf([&] { (void)parameters.GetItem(-1); }), g_nItemNotFound);
    EXPECT_EQ(CodeOf([&] { parameters.Append(pFirst); }), 0x800A0D27U);
    EXPECT_EQ(CodeOf([&] { parameters.Append(nullptr); }), g_nInvalidArgument);
    parameters.Delete(0);
    EXPECT_EQ(parameters.GetItem(0)->GetName(), L"深");
}

TEST(ParametersObject, TellsNamesApartWhoseSecondBytesDifferAsLettersDoByCase) {
    Parameters parameters;
    parameters.Append(Command::CreateParameter(L"笰", adDouble));           // B941
    const ParameterPtr pSecond = Command::CreateParameter(L"筧", adDouble); // B961
    parameters.Append(pSecond);
    EXPECT_EQ(parameters.GetItem(L"筧"), pSecond);
}

TEST(ParametersObject, RefusesToGiveValuesBack) {
    Parameters parameters;
    parameters.Append(Command::CreateParameter(L"p", adInteger, adParamOutput, 0, CVariant(1)));
    EXPECT_EQ(CodeOf([&] { (void)parameters.BoundValues(); }), g_nNotAvailable);
}
