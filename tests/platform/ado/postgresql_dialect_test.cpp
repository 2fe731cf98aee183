#include "platform/ado/postgresql_dialect.h"

#include <gtest/gtest.h>

TEST(TranslateForPostgresql, LeavesAPlainStatementAsItIs) {
    const char* pszSql = "SELECT *\tFROM z_c_QuYang  WHERE GCSY > -1 and QYSD - QYHD <= 1.5";
    EXPECT_EQ(TranslateForPostgresql(pszSql), pszSql);
}

TEST(TranslateForPostgresql, MakesTheNaturalOrderCompareByCodePoint) {
    EXPECT_EQ(TranslateForPostgresql("ORDER BY isnumeric(left(ZKBH,1)),val(ZKBH), "
                                     "string(255-len(trim(ZKBH)),'0')+trim(ZKBH)"),
              "ORDER BY isnumeric(tervo_left(ZKBH,1) COLLATE \"C\"),val(ZKBH), "
              "string(255-len(trim(ZKBH) COLLATE \"C\"),'0') COLLATE \"C\"+trim(ZKBH) COLLATE \"C\"");
}

TEST(TranslateForPostgresql, LeavesNumericSumsAndQuotedTextsAlone) {
    EXPECT_EQ(TranslateForPostgresql("a + b - 1 + 2 = 'left(b,1)+c; [x] -- it''s'"),
              "a + b - 1 + 2 = 'left(b,1)+c; [x] -- it''s'");
}

TEST(TranslateForPostgresql, MakesTextsOfLiteralsThatAreJoined) {
    EXPECT_EQ(TranslateForPostgresql("'a'+1 = b + 'c'"), "'a'::text+1 = b + 'c'::text");
}

TEST(TranslateForPostgresql, KeepsABackslashOneCharacterUnderEverySetting) {
    EXPECT_EQ(TranslateForPostgresql("a = 'C:\\x' and b = '/'"), "a = E'C:\\\\x' and b = '/'");
}

TEST(TranslateForPostgresql, FoldsNamesInBracketsOnly) {
    EXPECT_EQ(TranslateForPostgresql("select [Order], `A b`, \"Ab\" from T"),
              "select \"order\", \"a b\", \"Ab\" from T");
}

TEST(TranslateForPostgresql, DropsCommentsAndSemicolonsAtTheEnd) {
    EXPECT_EQ(TranslateForPostgresql("select a /* it's ? */ from t -- ?\n where b = ? ; ;\n"),
              "select a from t where b = ?");
    EXPECT_EQ(TranslateForPostgresql(" ; "), "");
}

TEST(TranslateForPostgresql, KeepsOuterJoinsAndColumnsOfTheFunctionsNames) {
    EXPECT_EQ(TranslateForPostgresql("select left from a left join b on a.x=b.x where string = trim"),
              "select left from a left join b on a.x=b.x where string = trim");
}

TEST(TranslateForPostgresql, SurvivesBrokenStatements) {
    EXPECT_EQ(TranslateForPostgresql(")) + 'a"), ")) + 'a::text");
    EXPECT_EQ(TranslateForPostgresql("left("), "tervo_left(");
    EXPECT_EQ(TranslateForPostgresql("["), "\"\"");
    EXPECT_EQ(TranslateForPostgresql(""), "");
}

TEST(InsertOfRows, RepeatsTheRowOfParameters) {
    EXPECT_EQ(InsertOfRows("INSERT INTO t (a, b) VALUES (?, ?)", 3),
              "INSERT INTO t (a, b) VALUES (?, ?),(?, ?),(?, ?)");
    EXPECT_EQ(InsertOfRows("insert into t values(?)", 1), "insert into t values(?)");
}

TEST(InsertOfRows, RefusesEveryOtherStatement) {
    for (const char* pszSql : {"", "update t set a=?", "insert into t select 1", "insert into t values",
                               "insert into t values()", "insert into t values(?,1)",
                               "insert into t values(?,?) returning a", "insert into t values(?),(?)"})
        EXPECT_EQ(InsertOfRows(pszSql, 2), "") << pszSql;
}
