#include "host/console/json_fields.h"

#include "host/console/answers.h"
#include "platform/windows/code_page.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

template <class T>
T Read(const CJson& json) {
    AcDbDatabase drawing;
    return std::get<T>(FieldFromJson(json, T(), drawing));
}

template <class T>
std::string Refusal(const CJson& json) {
    try {
        Read<T>(json);
    } catch (const CRunFailure& failure) {
        EXPECT_EQ(failure.Status(), EXIT_NO_SUCH_ANSWER);
        return failure.what();
    }
    return {};
}

} // namespace

TEST(FieldFromJson, ReadsAWholeNumberOf32Bits) {
    EXPECT_EQ(Read<Adesk::Int32>(-2147483648LL), std::numeric_limits<Adesk::Int32>::min());
    EXPECT_EQ(Read<Adesk::Int32>(2147483647), 2147483647);
    EXPECT_EQ(Refusal<Adesk::Int32>(2147483648LL), "2147483648 is no whole number of 32 bits");
    EXPECT_EQ(Refusal<Adesk::Int32>(18446744073709551615ULL),
              "18446744073709551615 is no whole number of 32 bits");
    EXPECT_EQ(Refusal<Adesk::Int32>(1.5), "1.5 is no whole number of 32 bits");
}

TEST(FieldFromJson, ReadsAFlag) {
    EXPECT_EQ(Read<CFlag>(1).m_nValue, 1);
    EXPECT_EQ(Read<CFlag>(0).m_nValue, 0);
    EXPECT_EQ(Refusal<CFlag>(2), "2 is no flag (0 or 1)");
    EXPECT_EQ(Refusal<CFlag>(true), "true is no flag (0 or 1)");
}

TEST(FieldFromJson, ReadsANumberAndTheTextsOfWhatIsNone) {
    EXPECT_EQ(Read<double>(3), 3.0);
    EXPECT_EQ(Read<double>(0.1), 0.1);
    EXPECT_TRUE(std::isnan(Read<double>("nan")));
    EXPECT_EQ(Read<double>("inf"), std::numeric_limits<double>::infinity());
    EXPECT_EQ(Read<double>("-inf"), -std::numeric_limits<double>::infinity());
    EXPECT_EQ(Refusal<double>("1"), "\"1\" is no number");
}

TEST(FieldFromJson, ReadsATextIntoTheCodePage) {
    EXPECT_EQ(Read<std::string>(ToUtf8("固结")), "固结");
    EXPECT_NE(Refusal<std::string>("\xF0\x9F\x98\x80").find("lacks the character"), std::string::npos);
    EXPECT_EQ(Refusal<std::string>(1), "1 is no text");
}

TEST(FieldFromJson, ReadsAPoint) {
    EXPECT_EQ(Read<AcGePoint3d>(CJson::array({1, 2, 3})).z, 3.0);
    EXPECT_EQ(Refusal<AcGePoint3d>(CJson::array({1, 2})), "[1,2] is no point [x,y,z]");
}

TEST(FieldFromJson, FindsATextStyleByItsName) {
    AcDbDatabase drawing;
    const auto read = [&drawing](const char* name) {
        return std::get<AcDbObjectId>(FieldFromJson(name, drawing.textstyle(), drawing));
    };
    EXPECT_EQ(read("standard"), drawing.textstyle());
    EXPECT_TRUE(read("").isNull());
    EXPECT_EQ(Refusal<AcDbObjectId>("none"), "\"none\" is no text style of the drawing");
}

TEST(FieldFromJson, ReadsLists) {
    EXPECT_EQ(Read<std::vector<double>>(CJson::array({1, 2})), (std::vector<double>{1.0, 2.0}));
    EXPECT_EQ(Read<std::vector<std::string>>(CJson::array({"a"})), std::vector<std::string>{"a"});
    EXPECT_EQ(Read<std::vector<std::vector<double>>>(CJson::parse("[[1],[]]")),
              (std::vector<std::vector<double>>{{1.0}, {}}));
    EXPECT_EQ(Refusal<std::vector<double>>(1), "1 is no list");
    EXPECT_EQ(Refusal<std::vector<double>>(CJson::array({"x"})), "\"x\" is no number");
}
