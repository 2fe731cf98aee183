#include "host/console/json_values.h"

#include <gtest/gtest.h>

#include <limits>

TEST(JsonValues, ANumberReadsBackToTheSameDouble) {
    for (const double value : {0.1, 1.0 / 3.0, 1e-300, -0.0, 123456789012345680.0, 10.0})
        EXPECT_EQ(CJson::parse(JsonNumber(value).dump()).get<double>(), value);
    EXPECT_EQ(JsonNumber(10.0).dump(), "10.0");
}

TEST(JsonValues, WhatIsNoNumberIsAText) {
    EXPECT_EQ(JsonNumber(-std::numeric_limits<double>::quiet_NaN()), "nan");
    EXPECT_EQ(JsonNumber(std::numeric_limits<double>::infinity()), "inf");
    EXPECT_EQ(JsonPoint(AcGePoint2d(-std::numeric_limits<double>::infinity(), 1.0)).dump(),
              R"(["-inf",1.0])");
}

TEST(JsonValues, TextsAreUtf8AndBrokenBytesStayReadable) {
    EXPECT_EQ(JsonText("固结").dump(), "\"\xE5\x9B\xBA\xE7\xBB\x93\"");
    EXPECT_EQ(JsonText("a\xFF").dump(), "\"a\xEF\xBF\xBD\"");
}

TEST(JsonValues, FieldsOfEachKind) {
    EXPECT_EQ(JsonField(Adesk::Int32(-5)).dump(), "-5");
    EXPECT_EQ(JsonField(CFlag{0}).dump(), "0");
    EXPECT_EQ(JsonField(CFlag{-1}).dump(), "1");
    EXPECT_EQ(JsonField(2.5).dump(), "2.5");
    EXPECT_EQ(JsonField(std::string("a")).dump(), "\"a\"");
    EXPECT_EQ(JsonField(AcGePoint3d(1.0, 2.0, 3.0)).dump(), "[1.0,2.0,3.0]");
    EXPECT_EQ(JsonField(AcDbObjectId()).dump(), "\"\"");
    EXPECT_EQ(JsonField(std::vector<double>{}).dump(), "[]");
    EXPECT_EQ(JsonField(std::vector<std::string>{"a", "b"}).dump(), R"(["a","b"])");
    EXPECT_EQ(JsonField(std::vector<std::vector<double>>{{1.0}, {}}).dump(), "[[1.0],[]]");
}
