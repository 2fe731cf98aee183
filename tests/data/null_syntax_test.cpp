#include "data/null_syntax.h"

#include <gtest/gtest.h>

namespace {

std::string Fixed(const char* pszStatement) {
    CString strStatement = pszStatement;
    FixNullSyntax(&strStatement);
    return strStatement.GetString();
}

} // namespace

TEST(FixNullSyntax, MakesEmptyLiteralsOfAListNull) {
    EXPECT_EQ(Fixed("insert into t values ('','a','',1,'')"), "insert into t values (NULL,'a',NULL,1,NULL)");
    EXPECT_EQ(Fixed("insert into t values ('')"), "insert into t values ('')");
}

TEST(FixNullSyntax, MakesAnEmptyLiteralBeforeABlankNull) {
    EXPECT_EQ(Fixed("select '' from t"), "select NULL from t");
    EXPECT_EQ(Fixed("select * from t where a = ''"), "select * from t where a = ''");
}

TEST(FixNullSyntax, TurnsAComparisonBehindWhereIntoATest) {
    EXPECT_EQ(Fixed("select * from t where a='' and b=''"), "select * from t where a IS NULL and b IS NULL");
}

TEST(FixNullSyntax, TurnsAnAssignmentBeforeWhereIntoOneOfNull) {
    EXPECT_EQ(Fixed("update t SET A='' where B=1"), "update t SET A = NULL where B=1");
    EXPECT_EQ(Fixed("update t set a='',b='',c=1 where d=''"),
              "update t set a = NULL,b = NULL,c=1 where d IS NULL");
}

TEST(FixNullSyntax, KnowsWhereInLowerCaseOnly) {
    EXPECT_EQ(Fixed("update t set a='' WHERE b=1"), "update t set a IS NULL WHERE b=1");
    EXPECT_EQ(Fixed("update t set a=''"), "update t set a IS NULL");
}

TEST(FixNullSyntax, TakesATestWrittenOutBeforeWhereForAnAssignment) {
    EXPECT_EQ(Fixed("select a IS NULL from t where b IS NULL"), "select a = NULL from t where b IS NULL");
}

TEST(FixNullSyntax, LeavesDoubledQuotesInALiteralAlone) {
    EXPECT_EQ(Fixed("insert into t values('it''s','a,''','=''',1)"),
              "insert into t values('it''s','a,''','=''',1)");
    EXPECT_EQ(Fixed("update t set a='''' where b=''''"), "update t set a='''' where b=''''");
}

TEST(FixNullSyntax, LeavesTheInsideOfLiteralsAlone) {
    EXPECT_EQ(Fixed("update t set a='IS NULL',b='' where c=1"),
              "update t set a='IS NULL',b = NULL where c=1");
    EXPECT_EQ(Fixed("update t set a='where',b='' where c='固'"),
              "update t set a='where',b = NULL where c='固'");
    EXPECT_EQ(Fixed("update t set a=',''' where b='where"), "update t set a=',''' where b='where");
}
