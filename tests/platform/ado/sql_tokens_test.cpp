#include "platform/ado/sql_tokens.h"

#include <gtest/gtest.h>

#include <string>

namespace {
std::string Joined(std::string_view strSql) {
    std::string strAll;
    for (const CSqlToken& token : TokenizeSql(strSql))
        strAll += std::string(token.m_strText) + "|";
    return strAll;
}
} // namespace

TEST(SqlTokens, SplitsNamesNumbersAndOperators) {
    EXPECT_EQ(Joined("a.b>=1.5e-3 <>x||y"), "a|.|b|>=|1.5e-3|<>|x||||y|");
    EXPECT_EQ(Joined(".5+2-0x1e+1"), ".5|+|2|-|0x1e|+|1|");
}

TEST(SqlTokens, TakesADoubledQuoteAsPartOfTheLiteral) {
    EXPECT_EQ(Joined("'a''+''b' 'c'"), "'a''+''b'|'c'|");
    EXPECT_EQ(Joined("''''"), "''''|");
}

TEST(SqlTokens, KnowsQuotedNames) {
    const auto arTokens = TokenizeSql("[a+b] \"c\"\"d\" `e`");
    ASSERT_EQ(arTokens.size(), 3U);
    for (const CSqlToken& token : arTokens)
        EXPECT_EQ(token.m_kind, SqlTokenKind::QuotedName);
    EXPECT_EQ(arTokens[1].m_strText, "\"c\"\"d\"");
}

TEST(SqlTokens, LeavesOutCommentsAndBlanks) {
    EXPECT_EQ(Joined("a --b\n/* c */ d"), "a|d|");
}

TEST(SqlTokens, LetsAnOpenLiteralReachToTheEnd) {
    EXPECT_EQ(Joined("a 'b + c"), "a|'b + c|");
    EXPECT_EQ(Joined("a 'b''"), "a|'b''|");
    EXPECT_EQ(Joined("/* x"), "");
}

TEST(SqlTokens, TakesCharactersBeyondAsciiAsNames) {
    const auto arTokens = TokenizeSql("\xE5\xAD\x94\xE5\x8F\xB7+1"); // UTF-8
    ASSERT_EQ(arTokens.size(), 3U);
    EXPECT_EQ(arTokens[0].m_kind, SqlTokenKind::Word);
    EXPECT_TRUE(arTokens[1].Is("+"));
}

TEST(SqlTokens, KnowsParameters) {
    const auto arTokens = TokenizeSql("?+:a");
    ASSERT_EQ(arTokens.size(), 3U);
    EXPECT_EQ(arTokens[0].m_kind, SqlTokenKind::Parameter);
    EXPECT_EQ(arTokens[2].m_kind, SqlTokenKind::Parameter);
}

TEST(SqlTokens, TellsClauseWordsFromNames) {
    for (const CSqlToken& token : TokenizeSql("where ORDER Intersect all"))
        EXPECT_TRUE(IsSqlClauseWord(token)) << token.m_strText;
    for (const CSqlToken& token : TokenizeSql("left case ZKBH 'where' [where] wherever returnings ="))
        EXPECT_FALSE(IsSqlClauseWord(token)) << token.m_strText;
}
