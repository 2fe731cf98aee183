#include "platform/ado/rowset.h"

#include <gtest/gtest.h>

#include <cstddef>

#include "platform/windows/code_page.h"
#include "tests/platform/ado/database_fixture.h"

namespace {

struct CRow {
    std::int32_t m_nIndex;
    char m_szName[9]; // eight bytes of text
    float m_fValue;
    std::int16_t m_nShort;
    std::int8_t m_nSigned;
    std::uint8_t m_nUnsigned;
    DBSTATUS m_statusName;
    DBSTATUS m_statusValue;
};

std::vector<CColumnBinding> Bindings() {
    return {{1, DBTYPE_I4, 4, offsetof(CRow, m_nIndex), g_nNoStatus},
            {2, DBTYPE_STR, 8, offsetof(CRow, m_szName), offsetof(CRow, m_statusName)},
            {3, DBTYPE_R4, 4, offsetof(CRow, m_fValue), offsetof(CRow, m_statusValue)},
            {4, DBTYPE_I2, 2, offsetof(CRow, m_nShort), g_nNoStatus},
            {5, DBTYPE_I1, 1, offsetof(CRow, m_nSigned), g_nNoStatus},
            {6, DBTYPE_UI1, 1, offsetof(CRow, m_nUnsigned), g_nNoStatus}};
}

constexpr CRowsetProperties g_forChange{true, true, true, true, 7};

class Rowset : public CEngineTest {
protected:
    Rowset() {
        m_pDatabase->Execute(
            "create table t(n integer, name text, v double precision, s smallint, i integer, u smallint)");
    }

    void Insert(const std::string& strValues) {
        m_pDatabase->Execute("insert into t values(" + strValues + ")");
    }
    static std::wstring Wide(const std::string& strAscii) { return {strAscii.begin(), strAscii.end()}; }

    int Open(const char* pszSql = "select * from t", const CRowsetProperties& properties = g_forChange,
             const std::string& strMore = "") {
        CDbDataSource source;
        CDbSession session;
        if (!source.Initialize(Wide(ConnectionText() + strMore).c_str()) || !session.Open(source)) return 0;
        return m_rows.Open(session, pszSql, properties, Bindings(), &m_row, sizeof m_row);
    }

    CRow m_row{};
    CDbRowset m_rows;
};

INSTANTIATE_TEST_SUITE_P(Engines, Rowset, TestEngines(), TestEngineName);

/// Where any column takes any value.
class SqliteRowset : public Rowset {};

INSTANTIATE_TEST_SUITE_P(Engines, SqliteRowset, testing::Values(TestEngine::Sqlite), TestEngineName);

} // namespace

TEST_P(Rowset, ReadsEveryTypeByPosition) {
    Insert("-7,'ZK1',1.25,-300,-2,200");
    ASSERT_EQ(Open(), 1);
    ASSERT_EQ(m_rows.MoveFirst(), 0);
    EXPECT_EQ(m_row.m_nIndex, -7);
    EXPECT_STREQ(m_row.m_szName, "ZK1");
    EXPECT_EQ(m_row.m_fValue, 1.25F);
    EXPECT_EQ(m_row.m_nShort, -300);
    EXPECT_EQ(m_row.m_nSigned, -2);
    EXPECT_EQ(m_row.m_nUnsigned, 200);
    EXPECT_EQ(m_row.m_statusName, 0U);
    EXPECT_EQ(m_row.m_statusValue, 0U);
}

TEST_P(Rowset, ReportsTheEndAndAnEmptyResult) {
    ASSERT_EQ(Open(), 1);
    EXPECT_EQ(m_rows.MoveFirst(), g_nRowsetEnd);
    EXPECT_EQ(m_rows.Store(), g_nRowsetFailed);
    Insert("1,'a',1,1,1,1");
    Insert("2,'b',1,1,1,1");
    ASSERT_EQ(Open(), 1);
    EXPECT_EQ(m_rows.MoveFirst(), 0);
    EXPECT_EQ(m_rows.MoveNext(), 0);
    EXPECT_EQ(m_row.m_nIndex, 2);
    EXPECT_EQ(m_rows.MoveNext(), g_nRowsetEnd);
    EXPECT_EQ(m_rows.MoveNext(), g_nRowsetEnd);
    EXPECT_EQ(m_rows.MoveFirst(), 0);
    EXPECT_EQ(m_row.m_nIndex, 1);
}

TEST_P(Rowset, NullGivesStatusThreeAndNothingOfTheRowBefore) {
    Insert("1,'abc',2.5,3,4,5");
    Insert("NULL,NULL,NULL,NULL,NULL,NULL");
    ASSERT_EQ(Open(), 1);
    ASSERT_EQ(m_rows.MoveFirst(), 0);
    ASSERT_EQ(m_rows.MoveNext(), 0);
    EXPECT_EQ(m_row.m_statusName, DBSTATUS_S_ISNULL);
    EXPECT_EQ(m_row.m_statusValue, DBSTATUS_S_ISNULL);
    EXPECT_STREQ(m_row.m_szName, "");
    EXPECT_EQ(m_row.m_nIndex, 0);
    EXPECT_EQ(m_row.m_fValue, 0.0F);
    EXPECT_EQ(m_row.m_nUnsigned, 0);
}

TEST_P(Rowset, CutsATextAtACharacter) {
    Insert("1,'粘土粘土粘土',0,0,0,0");
    Insert("1,'a粘土粘土粘土',0,0,0,0");
    ASSERT_EQ(Open(), 1);
    ASSERT_EQ(m_rows.MoveFirst(), 0);
    EXPECT_STREQ(m_row.m_szName, "粘土粘土");
    ASSERT_EQ(m_rows.MoveNext(), 0);
    EXPECT_STREQ(m_row.m_szName, "a粘土粘");
    EXPECT_EQ(m_row.m_statusName, 0U);
}

TEST_P(SqliteRowset, TakesAValueOfAnotherKindAsFarAsItGoes) {
    Insert("'12A',3.5,'ZK',99999,-300,300");
    Insert("3000000000,7,1e300,1.9,-1.9,-1");
    ASSERT_EQ(Open(), 1);
    ASSERT_EQ(m_rows.MoveFirst(), 0);
    EXPECT_EQ(m_row.m_nIndex, 12);
    EXPECT_STREQ(m_row.m_szName, "3.5");
    EXPECT_EQ(m_row.m_fValue, 0.0F);
    EXPECT_EQ(m_row.m_statusValue, 0U);
    EXPECT_EQ(m_row.m_nShort, 32767);
    EXPECT_EQ(m_row.m_nSigned, -128);
    EXPECT_EQ(m_row.m_nUnsigned, 255);
    ASSERT_EQ(m_rows.MoveNext(), 0);
    EXPECT_EQ(m_row.m_nIndex, 2147483647);
    EXPECT_EQ(m_row.m_fValue, std::numeric_limits<float>::max());
    EXPECT_EQ(m_row.m_nShort, 1);
    EXPECT_EQ(m_row.m_nSigned, -1);
    EXPECT_EQ(m_row.m_nUnsigned, 0);
}

TEST_P(Rowset, StoresOnlyWhatChangedOfTheOneRow) {
    Insert("1,'longer than the buffer',1.23456789,5,6,7");
    Insert("1,'longer than the buffer',1.23456789,5,6,7");
    ASSERT_EQ(Open(), 1);
    ASSERT_EQ(m_rows.MoveFirst(), 0);
    ASSERT_EQ(m_rows.MoveNext(), 0);
    m_row.m_nShort = 9;
    EXPECT_EQ(m_rows.Store(), 0);
    EXPECT_EQ(Rows(*m_pDatabase, "select * from t"), (CRows{"1|longer than the buffer|1.23456789|5|6|7",
                                                            "1|longer than the buffer|1.23456789|9|6|7"}));
}

TEST_P(Rowset, StoresNullByTheStatusWordAndAValueInItsPlace) {
    Insert("1,NULL,2.5,5,6,7");
    ASSERT_EQ(Open(), 1);
    ASSERT_EQ(m_rows.MoveFirst(), 0);
    m_row.m_statusValue = DBSTATUS_S_ISNULL;
    m_row.m_statusName = DBSTATUS_S_OK;
    GbkCopy(m_row.m_szName, sizeof m_row.m_szName, "it's");
    EXPECT_EQ(m_rows.Store(), 0);
    EXPECT_EQ(Rows(*m_pDatabase, "select * from t"), CRows{"1|it's||5|6|7"});
    m_row.m_statusValue = DBSTATUS_S_OK;
    m_row.m_fValue = 12.35F;
    EXPECT_EQ(m_rows.Store(), 0);
    EXPECT_EQ(Rows(*m_pDatabase, "select * from t"), CRows{"1|it's|12.350000381469727|5|6|7"});
}

TEST_P(Rowset, LeavesAColumnThatAnotherProgramChangedMeanwhile) {
    Insert("1,'a',2.5,5,6,7");
    ASSERT_EQ(Open(), 1);
    ASSERT_EQ(m_rows.MoveFirst(), 0);
    m_pDatabase->Execute("update t set name = 'other'");
    m_row.m_nShort = 8;
    EXPECT_EQ(m_rows.Store(), 0);
    EXPECT_EQ(Rows(*m_pDatabase, "select * from t"), CRows{"1|other|2.5|8|6|7"});
}

TEST_P(Rowset, StoresNothingWhereNothingChanged) {
    Insert("NULL,NULL,NULL,NULL,NULL,NULL");
    ASSERT_EQ(Open("select * from t", g_forChange, ";Lock Timeout=20"), 1);
    ASSERT_EQ(m_rows.MoveFirst(), 0);
    const CDatabaseLock other(m_database);
    EXPECT_EQ(m_rows.Store(), 0);
}

TEST_P(Rowset, ReportsAndCountsAWriteThatIsGivenUp) {
    Insert("1,'a',2.5,5,6,7");
    ASSERT_EQ(Open("select * from t", g_forChange, ";Lock Timeout=20"), 1);
    ASSERT_EQ(m_rows.MoveFirst(), 0);
    const CDatabaseLock other(m_database);
    m_row.m_nShort = 8;
    EXPECT_LT(m_rows.Store(), 0);
    EXPECT_EQ(m_arLines, CRows{"t: locked by another program, row not stored"});
}

TEST_P(Rowset, RefusesToStoreWhenNotOpenedForChange) {
    Insert("1,'a',2.5,5,6,7");
    ASSERT_EQ(Open("select * from t", {true, true, true, false, 0}), 1);
    ASSERT_EQ(m_rows.MoveFirst(), 0);
    m_row.m_nShort = 8;
    EXPECT_LT(m_rows.Store(), 0);
    EXPECT_EQ(Rows(*m_pDatabase, "select s from t"), CRows{"5"});
}

TEST_P(Rowset, FailsToOpenWithFewerColumnsThanBound) {
    Insert("1,'a',2.5,5,6,7");
    EXPECT_EQ(Open("select n,name from t"), 0);
    EXPECT_EQ(m_rows.IsOpen(), 0);
    EXPECT_EQ(m_rows.LastError(), "The result has too few columns.");
}

TEST_P(Rowset, FailsToOpenWithoutTableSessionOrDatabase) {
    EXPECT_EQ(Open("select * from missing"), 0);
    EXPECT_EQ(m_rows.LastError(), In("no such table: missing", "relation \"missing\" does not exist"));
    EXPECT_EQ(m_rows.Open(CDbSession(), "select * from t", g_forChange, Bindings(), &m_row, sizeof m_row), 0);
    CDbDataSource source;
    EXPECT_EQ(source.Initialize(L"Provider=SQLite;Data Source=/nowhere/x.db"), 0);
    EXPECT_NE(source.LastError(), "");
    EXPECT_EQ(CDbSession().Open(source), 0);
}

TEST_P(Rowset, NamesAForeignCharacterInTheTextWindow) {
    Insert(In("1,char(128512),2.5,5,6,7", "1,chr(128512),2.5,5,6,7"));
    EXPECT_EQ(Open(), 0);
    EXPECT_EQ(m_arLines, CRows{"t.name: character U+1F600 is not in the system code page"});
}

TEST_P(Rowset, ClosedRowsGiveNothing) {
    EXPECT_EQ(m_rows.MoveFirst(), g_nRowsetFailed);
    EXPECT_EQ(m_rows.MoveNext(), g_nRowsetFailed);
    EXPECT_EQ(m_rows.Store(), g_nRowsetFailed);
    m_rows.Close();
    Insert("1,'a',2.5,5,6,7");
    ASSERT_EQ(Open(), 1);
    ASSERT_EQ(m_rows.MoveFirst(), 0);
    m_rows.Close();
    m_rows.Close();
    EXPECT_EQ(m_rows.Store(), g_nRowsetFailed);
}
