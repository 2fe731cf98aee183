#include "platform/ado/sql_dialect.h"

#include <gtest/gtest.h>

TEST(TranslateDialect, LeavesAStatementWithoutDialectWordsAsItIs) {
    const char* pszSql = "SELECT *\tFROM z_c_QuYang  WHERE GCSY > -1 and QYSD - QYHD <= 1.5 -- end";
    EXPECT_EQ(TranslateDialect(pszSql), pszSql);
}

TEST(TranslateDialect, TurnsTheNaturalOrderIntoCallsAndKeepsItsOrder) {
    EXPECT_EQ(TranslateDialect("ORDER BY isnumeric(left(ZKBH,1)),val(ZKBH), "
                               "string(255-len(trim(ZKBH)),'0')+trim(ZKBH),isnumeric(left(qybh,1))"),
              "ORDER BY isnumeric(\"left\"(ZKBH,1)),val(ZKBH), "
              "tervo_add(string(255-len(trim(ZKBH)),'0'),trim(ZKBH)),isnumeric(\"left\"(qybh,1))");
}

TEST(TranslateDialect, LeavesLiteralsAlone) {
    EXPECT_EQ(TranslateDialect("a = 'left(b,1)+c' and d = 'it''s + left('"),
              "a = 'left(b,1)+c' and d = 'it''s + left('");
}

TEST(TranslateDialect, LeavesNumbersAndSignsAlone) {
    EXPECT_EQ(TranslateDialect("x = 1 + 2 - 3 and y > -1 and z = +5"), "x = 1 + 2 - 3 and y > -1 and z = +5");
}

TEST(TranslateDialect, JoinsFromLeftToRight) {
    EXPECT_EQ(TranslateDialect("a+b+c"), "tervo_add(tervo_add(a,b),c)");
    EXPECT_EQ(TranslateDialect("a - b + c - d"), "tervo_add(a - b, c) - d");
}

TEST(TranslateDialect, KeepsCloserOperatorsInsideTheirTerm) {
    EXPECT_EQ(TranslateDialect("a*2+b/c"), "tervo_add(a*2,b/c)");
    EXPECT_EQ(TranslateDialect("t.a+-b"), "tervo_add(t.a,-b)");
    EXPECT_EQ(TranslateDialect("a||'x'+b collate nocase"), "tervo_add(a||'x',b collate nocase)");
}

TEST(TranslateDialect, EndsASumAtCommasComparisonsAndKeywords) {
    EXPECT_EQ(TranslateDialect("select a+b, c from t where a+b<=c+d and not e+f"),
              "select tervo_add(a,b), c from t where tervo_add(a,b)<=tervo_add(c,d) and not tervo_add(e,f)");
}

TEST(TranslateDialect, EndsASumBeforeAnAlias) {
    EXPECT_EQ(TranslateDialect("select a+b total from t"), "select tervo_add(a,b) total from t");
    EXPECT_EQ(TranslateDialect("select a+b as total from t"), "select tervo_add(a,b) as total from t");
}

TEST(TranslateDialect, ReadsGroupsAndCaseAsOneOperand) {
    EXPECT_EQ(TranslateDialect("(a+b)+case when c+1>d then 'x' else e+f end"),
              "tervo_add((tervo_add(a,b)),case when tervo_add(c,1)>d then 'x' else tervo_add(e,f) end)");
}

TEST(TranslateDialect, KeepsOuterJoins) {
    EXPECT_EQ(TranslateDialect("select * from a left join b on a.x=b.x"),
              "select * from a left join b on a.x=b.x");
}

TEST(TranslateDialect, SurvivesBrokenStatements) {
    EXPECT_EQ(TranslateDialect("a+"), "tervo_add(a,)");
    EXPECT_EQ(TranslateDialect(")+)"), ")+)");
    EXPECT_EQ(TranslateDialect("((a"), "((a");
    EXPECT_EQ(TranslateDialect(""), "");
    EXPECT_EQ(TranslateDialect("end end"), "end end");
}
