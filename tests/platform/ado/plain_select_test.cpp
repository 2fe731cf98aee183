#include "platform/ado/plain_select.h"

#include <gtest/gtest.h>

TEST(WithHiddenColumns, AddsThemBehindPlainColumnsOfOneTable) {
    EXPECT_EQ(WithHiddenColumns("SELECT * FROM t WHERE a > -1 and b = 'x';", "rowid"),
              "SELECT *, rowid FROM t WHERE a > -1 and b = 'x';");
    EXPECT_EQ(WithHiddenColumns("select a,b as c, t.d from t order by 1", "x, y"),
              "select a,b as c, t.d, x, y from t order by 1");
}

TEST(WithHiddenColumns, RefusesWhatMergesRowsOrTables) {
    for (const char* pszSql :
         {"select distinct a from t", "select count(*) from t", "select a from t group by a",
          "select a from t, u", "select a from t left join u", "select a from t join u",
          "select a from t union select b from u", "select a from (select b from t)", "select 1 from t",
          "delete from t", "select a", "", "select from t", "select all from t"})
        EXPECT_FALSE(WithHiddenColumns(pszSql, "rowid").has_value()) << pszSql;
}

TEST(WithHiddenColumns, AllowsSubqueriesInTheCondition) {
    EXPECT_TRUE(
        WithHiddenColumns("select a from t where b in (select c from u group by c)", "rowid").has_value());
}

TEST(ReadPlainSelect, NamesTheTableAndTheColumnBehindEachName) {
    const auto select = ReadPlainSelect("select all a, s.t.b as c, t.* , [d] e from s.t as t where f = 1");
    ASSERT_TRUE(select.has_value());
    EXPECT_EQ(select->m_strColumns, "a, s.t.b as c, t.* , [d] e");
    EXPECT_EQ(select->m_arColumns, (std::vector<std::string>{"a", "b", "*", "[d]"}));
    EXPECT_EQ(select->m_strTable, "s.t");
    EXPECT_EQ(select->m_strAlias, "t");
    EXPECT_EQ(select->Target(), "s.t AS t");
    EXPECT_EQ(ReadPlainSelect("select * from z_c_QuYang;")->Target(), "z_c_QuYang");
    EXPECT_EQ(ReadPlainSelect("select * from a b order by c")->Target(), "a AS b");
}
