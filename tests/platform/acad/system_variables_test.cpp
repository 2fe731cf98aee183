#include "platform/acad/editor.h"

#include "platform/acad/host_application.h"
#include "tests/platform/acad/sample_entity.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

std::wstring TextOf(const ACHAR* name) {
    resbuf value;
    if (acedGetVar(name, &value) != RTNORM || value.restype != RTSTR) return L"?";
    std::wstring text = value.resval.rstring;
    acutDelString(value.resval.rstring);
    return text;
}

int SetText(const ACHAR* name, const ACHAR* text) {
    resbuf value;
    value.restype = RTSTR;
    value.resval.rstring = acutNewString(text);
    const int result = acedSetVar(name, &value);
    acutDelString(value.resval.rstring);
    return result;
}

int SetShort(const ACHAR* name, short number) {
    resbuf value;
    value.restype = RTSHORT;
    value.resval.rint = number;
    return acedSetVar(name, &value);
}

int SetReal(const ACHAR* name, double number) {
    resbuf value;
    value.restype = RTREAL;
    value.resval.rreal = number;
    return acedSetVar(name, &value);
}

} // namespace

TEST(SystemVariables, OfTheProgramNeedNoDrawing) {
    resbuf value;
    ASSERT_EQ(acedGetVar(L"PlotDpi", &value), RTNORM);
    EXPECT_EQ(value.restype, RTSHORT);
    EXPECT_EQ(value.resval.rint, 150);
    EXPECT_EQ(SetShort(L"SDI", 1), RTNORM);
    ASSERT_EQ(acedGetVar(L"SDI", &value), RTNORM);
    EXPECT_EQ(value.resval.rint, 1);
    EXPECT_EQ(SetShort(L"SDI", 0), RTNORM);
    EXPECT_EQ(SetShort(L"SDI", -1), RTERROR);
    EXPECT_EQ(SetReal(L"SDI", 1.0), RTERROR);
    EXPECT_EQ(SetShort(L"PLOTDPI", 0), RTERROR);
}

TEST(SystemVariables, OfADrawingAreThoseOfTheWorkingOne) {
    resbuf value;
    EXPECT_EQ(acedGetVar(L"LTSCALE", &value), RTERROR);
    EXPECT_EQ(SetReal(L"LTSCALE", 2.0), RTERROR);
    AcDbDatabase database;
    acdbHostApplicationServices()->setWorkingDatabase(&database);
    EXPECT_EQ(SetReal(L"ltscale", 2.5), RTNORM);
    EXPECT_EQ(database.ltscale(), 2.5);
    ASSERT_EQ(acedGetVar(L"LTSCALE", &value), RTNORM);
    EXPECT_EQ(value.restype, RTREAL);
    EXPECT_EQ(value.resval.rreal, 2.5);
    EXPECT_EQ(SetShort(L"LTSCALE", 10), RTNORM);
    EXPECT_EQ(database.ltscale(), 10.0);
    EXPECT_EQ(SetReal(L"LTSCALE", std::numeric_limits<double>::quiet_NaN()), RTERROR);
    EXPECT_EQ(SetText(L"LTSCALE", L"3"), RTERROR);
    EXPECT_EQ(TextOf(L"CLAYER"), L"0");
    EXPECT_EQ(TextOf(L"CELTYPE"), L"ByLayer");
    EXPECT_EQ(TextOf(L"TEXTSTYLE"), L"Standard");
    EXPECT_EQ(TextOf(L"NOSUCH"), L"?");
}

TEST(SystemVariables, NameRecordsThatTheDrawingHas) {
    AcDbDatabase database;
    acdbHostApplicationServices()->setWorkingDatabase(&database);
    AddRecord<AcDbLayerTable>(database.layerTableId(), L"图框", new AcDbLayerTableRecord);
    AddRecord<AcDbTextStyleTable>(database.textStyleTableId(), L"标题", new AcDbTextStyleTableRecord);
    EXPECT_EQ(SetText(L"CLAYER", L"图框"), RTNORM);
    EXPECT_EQ(SetText(L"TEXTSTYLE", L"标题"), RTNORM);
    EXPECT_EQ(SetText(L"CELTYPE", L"CONTINUOUS"), RTNORM);
    EXPECT_EQ(TextOf(L"CLAYER"), L"图框");
    EXPECT_EQ(TextOf(L"TEXTSTYLE"), L"标题");
    EXPECT_EQ(TextOf(L"CELTYPE"), L"Continuous");
    EXPECT_EQ(SetText(L"CLAYER", L"没有"), RTERROR);
    EXPECT_EQ(SetShort(L"CLAYER", 0), RTERROR);
    EXPECT_EQ(SetText(L"NOSUCH", L"1"), RTERROR);
    EXPECT_EQ(acedSetVar(L"CLAYER", nullptr), RTERROR);
    EXPECT_EQ(acedGetVar(nullptr, nullptr), RTERROR);
}
