#include "platform/ado/criteria_parser.h"

#include <gtest/gtest.h>

#include "tests/platform/ado/recordset_fixture.h"

namespace {

/// Each group's columns, e.g. "a,b|c".
std::string Groups(std::string_view strText) {
    std::string strGroups;
    for (const auto& arGroup : ParseCriteria(strText)) {
        if (!strGroups.empty()) strGroups += '|';
        for (std::size_t i = 0; i < arGroup.size(); ++i)
            strGroups += (i ? "," : "") + arGroup[i].m_strColumn;
    }
    return strGroups;
}

CDbValue ValueIn(std::string_view strText) {
    return ParseCriteria(strText).at(0).at(0).m_value.m_value;
}

} // namespace

TEST(ParseCriteria, BindsAndCloserThanOr) {
    EXPECT_EQ(Groups("a=1"), "a");
    EXPECT_EQ(Groups("a=1 AND b=2 or c=3"), "a,b|c");
    EXPECT_EQ(Groups("a=1 or b=2 and c=3"), "a|b,c");
}

TEST(ParseCriteria, MultipliesBracketsOut) {
    EXPECT_EQ(Groups("(a=1 or b=2) and c=3"), "a,c|b,c");
    EXPECT_EQ(Groups("((a=1))"), "a");
    EXPECT_EQ(Groups("(a=1 or b=2) and (c=3 or d=4)"), "a,c|a,d|b,c|b,d");
}

TEST(ParseCriteria, ReadsValuesOfEveryKind) {
    EXPECT_EQ(ValueIn("a = -12"), CDbValue(std::int64_t{-12}));
    EXPECT_EQ(ValueIn("a=+2.5e1"), CDbValue(25.0));
    EXPECT_EQ(ValueIn("a = 'it''s'"), CDbValue("it's"));
    EXPECT_EQ(ValueIn("a = \"it's\""), CDbValue("it's"));
    EXPECT_EQ(ValueIn("a = ''"), CDbValue(""));
    EXPECT_EQ(ValueIn("[孔 号] = '粘\\土'"), CDbValue("粘\\土"));
    EXPECT_EQ(ValueIn("a = null"), CDbValue());
    EXPECT_EQ(ValueIn("a = True"), CDbValue(std::int64_t{1}));
    EXPECT_EQ(ValueIn("a > #2024-03-09 12:30#"), CDbValue("2024-03-09 12:30"));
    EXPECT_EQ(Groups("a > #2024-03-09# and b=1"), "a,b");
}

TEST(ParseCriteria, ReadsColumnsInBrackets) {
    EXPECT_EQ(Groups("[孔 号] <> 1"), "孔 号");
    EXPECT_EQ(Groups("试样 <= 1"), "试样");
}

TEST(ParseCriteria, RefusesWhatItDoesNotUnderstand) {
    for (const char* pszText : {"",
                                "a",
                                "a=",
                                "=1",
                                "a 1",
                                "a=1 and",
                                "a=1 b=2",
                                "(a=1",
                                "a=1)",
                                "a=b",
                                "a='x",
                                "a=#2024#",
                                "a=#2024-03-09",
                                "a > null",
                                "a like null",
                                "a=-'x'",
                                "a=1.2.3",
                                "a like '*x'",
                                "a like 'x*y'",
                                "a like '*x*y*'",
                                "not a=1",
                                "a between 1 and 2",
                                "1=1",
                                "a=9x"})
        EXPECT_EQ(CodeOf([&] { (void)ParseCriteria(pszText); }), g_nInvalidArgument) << pszText;
}

TEST(ParseCriteria, RefusesWhatWouldFillTheMemoryOrTheStack) {
    std::string strProduct = "(a=1 or a=2)";
    for (int i = 0; i < 20; ++i)
        strProduct += " and (a=1 or a=2)";
    EXPECT_EQ(CodeOf([&] { (void)ParseCriteria(strProduct); }), g_nInvalidArgument);
    EXPECT_EQ(CodeOf([&] { (void)ParseCriteria(std::string(100000, '(')); }), g_nInvalidArgument);
}
