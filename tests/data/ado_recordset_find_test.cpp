#include "data/ado_recordset.h"

#include "tests/data/ado_fixture.h"

namespace {

class AdoRecordsetFind : public CAdoTest {
protected:
    AdoRecordsetFind() {
        m_pDatabase->Execute("insert into t values(4,'甲',0.5),(5,'甲',9)");
        m_rows.Open("select * from t order by id");
    }
};

INSTANTIATE_TEST_SUITE_P(Engines, AdoRecordsetFind, TestEngines(), TestEngineName);

} // namespace

TEST_P(AdoRecordsetFind, FindsRowsOneAfterTheOther) {
    EXPECT_EQ(m_rows.FindFirst("name = '甲'"), 1);
    EXPECT_EQ(Text(m_rows, "id"), "1");
    m_rows.MoveLast(); // it goes on behind the one found last all the same
    EXPECT_EQ(m_rows.FindNext(), 1);
    EXPECT_EQ(Text(m_rows, "id"), "4");
    EXPECT_EQ(m_rows.FindNext(), 1);
    EXPECT_EQ(Text(m_rows, "id"), "5");
    EXPECT_EQ(m_rows.FindNext(), 0);
    EXPECT_TRUE(m_rows.IsEof());
}

TEST_P(AdoRecordsetFind, BeginsAtTheCurrentRow) {
    m_rows.MoveNext();
    EXPECT_EQ(m_rows.Find("name = '甲'"), 1);
    EXPECT_EQ(Text(m_rows, "id"), "4");
    EXPECT_EQ(m_rows.Find("name = '甲'"), 1);
    EXPECT_EQ(Text(m_rows, "id"), "4");
    EXPECT_EQ(m_rows.FindFirst("name = '甲'"), 1);
    EXPECT_EQ(Text(m_rows, "id"), "1");
}

TEST_P(AdoRecordsetFind, SearchesBackward) {
    m_rows.MoveLast();
    EXPECT_EQ(m_rows.Find("depth < 2", ADODB::adSearchBackward), 1);
    EXPECT_EQ(Text(m_rows, "id"), "4");
    EXPECT_EQ(m_rows.FindNext(), 1);
    EXPECT_EQ(Text(m_rows, "id"), "1");
    EXPECT_EQ(m_rows.FindNext(), 0);
    EXPECT_TRUE(m_rows.IsBof());
}

TEST_P(AdoRecordsetFind, KeepsTheErrorOfACriterion) {
    EXPECT_EQ(m_rows.Find("none = 1"), 0);
    EXPECT_EQ(m_rows.GetLastErrorCode(), 0x800A0CC1U);
    EXPECT_EQ(m_rows.SetFilter("none = 1"), 0);
    EXPECT_EQ(m_rows.SetSort("none"), 0);
}

TEST_P(AdoRecordsetFind, FiltersAndSorts) {
    EXPECT_EQ(m_rows.SetFilter("name = '甲' and depth > 1"), 1);
    EXPECT_EQ(m_rows.GetRecordCount(), 2);
    EXPECT_EQ(m_rows.SetSort("depth DESC"), 1);
    EXPECT_EQ(Text(m_rows, "id"), "5");
    EXPECT_EQ(m_rows.SetFilter(""), 1);
    EXPECT_EQ(m_rows.SetSort(""), 1);
    EXPECT_EQ(Names(m_rows), "甲乙丙甲甲");
}

TEST_P(AdoRecordsetFind, GoesBackToABookmark) {
    EXPECT_EQ(m_rows.SetBookmark(), 0); // none yet
    EXPECT_EQ(m_rows.GetLastErrorCode(), 0x80040E0EU);
    m_rows.MoveNext();
    EXPECT_EQ(m_rows.GetBookmark(), 1);
    m_rows.MoveLast();
    EXPECT_EQ(m_rows.SetBookmark(), 1);
    EXPECT_EQ(Text(m_rows, "name"), "乙");
    m_rows.MoveLast();
    m_rows.MoveNext();
    EXPECT_EQ(m_rows.GetBookmark(), 0);
}

TEST_P(AdoRecordsetFind, ForgetsItsPlacesWhenItIsOpenedAnew) {
    m_rows.FindFirst("name = '丙'");
    m_rows.GetBookmark();
    m_rows.Open();
    EXPECT_EQ(m_rows.SetBookmark(), 0);
    EXPECT_EQ(m_rows.Find("name = '甲'"), 1);
    EXPECT_EQ(m_rows.FindNext(), 1);
    EXPECT_EQ(Text(m_rows, "id"), "4");
}
