#include "platform/ado/criteria.h"

#include <gtest/gtest.h>

#include "platform/ado/memory_cursor.h"
#include "tests/platform/ado/recordset_fixture.h"

namespace {

class Criteria : public testing::Test {
protected:
    Criteria() {
        m_rows.InsertRow({{0, std::string("ZK1")},
                          {1, std::int64_t{5}},
                          {2, 2.5},
                          {3, std::string("2024-03-09")},
                          {4, std::int64_t{-1}}});
        m_rows.InsertRow({}); // nothing but NULL
    }

    [[nodiscard]] bool Meets(std::string_view strText, std::size_t nRow = 0) const {
        const CCriteria criteria(strText);
        criteria.RequireColumns(m_rows);
        return criteria.Meets(m_rows, nRow);
    }

    CMemoryCursor m_rows{{{"name", DBTYPE_BSTR},
                          {"n", DBTYPE_I4},
                          {"x", DBTYPE_R8},
                          {"day", DBTYPE_DATE},
                          {"yes", DBTYPE_BOOL}}};
};

} // namespace

TEST_F(Criteria, ComparesNumbersAsNumbers) {
    EXPECT_TRUE(Meets("n = 5"));
    EXPECT_TRUE(Meets("n = 5.0"));
    EXPECT_TRUE(Meets("n = '5'"));
    EXPECT_TRUE(Meets("n < 10")); // as a text it would not be
    EXPECT_TRUE(Meets("x >= 2.5"));
    EXPECT_TRUE(Meets("x <= 2.5"));
    EXPECT_FALSE(Meets("x > 2.5"));
    EXPECT_FALSE(Meets("x <> 2.5"));
    EXPECT_FALSE(Meets("n = 'five'"));
    EXPECT_TRUE(Meets("n <> 'five'"));
}

TEST_F(Criteria, ComparesTextsWithoutCase) {
    EXPECT_TRUE(Meets("NAME = 'zk1'"));
    EXPECT_TRUE(Meets("name > 'ZK0'"));
    EXPECT_FALSE(Meets("name <> 'zK1'"));
    EXPECT_FALSE(Meets("name = 1"));
}

TEST_F(Criteria, MatchesPatterns) {
    EXPECT_TRUE(Meets("name like 'zk*'"));
    EXPECT_TRUE(Meets("name like '*K*'"));
    EXPECT_TRUE(Meets("name like '%k1%'"));
    EXPECT_TRUE(Meets("name like 'zk1'"));
    EXPECT_TRUE(Meets("name like '*'"));
    EXPECT_FALSE(Meets("name like 'k*'"));
    EXPECT_FALSE(Meets("name like 'zk'"));
    EXPECT_TRUE(Meets("n like '5*'"));
}

TEST_F(Criteria, ComparesDates) {
    EXPECT_TRUE(Meets("day = #2024-3-9#"));
    EXPECT_TRUE(Meets("day > '2024-3-8'"));
    EXPECT_TRUE(Meets("day < #2024-03-09 00:00:01#"));
}

TEST_F(Criteria, TakesEveryNumberButZeroForTrue) {
    EXPECT_TRUE(Meets("yes = true"));
    EXPECT_FALSE(Meets("yes = false"));
    EXPECT_TRUE(Meets("n = true"));
}

TEST_F(Criteria, LetsNullMeetOnlyNull) {
    EXPECT_TRUE(Meets("name = null", 1));
    EXPECT_FALSE(Meets("name = null"));
    EXPECT_TRUE(Meets("name <> null"));
    EXPECT_FALSE(Meets("name <> null", 1));
    for (const char* pszText : {"n = 0", "n <> 0", "n < 5", "name = ''", "name like '*'", "yes = false"})
        EXPECT_FALSE(Meets(pszText, 1)) << pszText;
}

TEST_F(Criteria, JoinsConditions) {
    EXPECT_TRUE(Meets("n = 5 and x = 2.5"));
    EXPECT_FALSE(Meets("n = 5 and x = 3"));
    EXPECT_TRUE(Meets("n = 6 or x = 2.5"));
    EXPECT_FALSE(Meets("(n = 6 or x = 2.5) and name = 'ZK2'"));
    EXPECT_TRUE(CCriteria("n = 6").IsOneCondition());
    EXPECT_FALSE(CCriteria("n = 6 or x = 2.5").IsOneCondition());
    EXPECT_FALSE(CCriteria("n = 6 and x = 2.5").IsOneCondition());
    EXPECT_TRUE(CCriteria().Meets(m_rows, 1));
}

TEST_F(Criteria, NamesAColumnThatTheRowsLack) {
    EXPECT_EQ(CodeOf([&] { (void)Meets("n = 5 and 深度 = 1"); }), g_nItemNotFound);
}
