#include "platform/ado/cursor.h"

#include <gtest/gtest.h>

#include "platform/ado/error.h"
#include "tests/platform/ado/database_fixture.h"
#include "tests/platform/ado/locking_process.h"

namespace {

class Cursor : public CDatabaseTest {
protected:
    Cursor() {
        m_pDatabase->Execute("create table t(ZKBH text, QYBH text, C real, D double, N integer, S smallint, "
                             "B byte, T datetime, M numeric(8,2), F bit, X)");
        m_pDatabase->Execute("insert into t values('ZK1','1',1.5,2.5,3,4,5,'2024-03-09',1.25,1,'x')");
        m_pDatabase->Execute("insert into t values('ZK1','1',1.5,2.5,3,4,5,'2024-03-09',1.25,1,'x')");
    }
};

} // namespace

TEST_F(Cursor, FindsColumnsWithoutCase) {
    const auto pCursor = m_pDatabase->Query("select * from t");
    EXPECT_EQ(pCursor->FindColumn("zkbh"), 0U);
    EXPECT_EQ(pCursor->FindColumn("x"), 10U);
    EXPECT_FALSE(pCursor->FindColumn("rowid").has_value());
    EXPECT_FALSE(pCursor->FindColumn("").has_value());
}

TEST_F(Cursor, TypesFollowTheDeclarationWhereTheValueFits) {
    const auto pCursor = m_pDatabase->Query("select * from t");
    const std::vector<DBTYPE> arExpected = {DBTYPE_BSTR,    DBTYPE_BSTR, DBTYPE_R4,  DBTYPE_R8,
                                            DBTYPE_I4,      DBTYPE_I2,   DBTYPE_UI1, DBTYPE_DATE,
                                            DBTYPE_DECIMAL, DBTYPE_BOOL, DBTYPE_BSTR};
    for (std::size_t i = 0; i < arExpected.size(); ++i)
        EXPECT_EQ(pCursor->CellType(0, i), arExpected[i]) << i;
}

TEST_F(Cursor, TypesFollowTheValueWhereItDoesNotFit) {
    m_pDatabase->Execute("delete from t");
    m_pDatabase->Execute("insert into t values(NULL,7,'text',1,1.5,70000,-1,5,'x',2.5,8)");
    const auto pCursor = m_pDatabase->Query("select ZKBH,C,N,S,B,T,M,X,N from t");
    const std::vector<DBTYPE> arExpected = {DBTYPE_NULL, DBTYPE_BSTR, DBTYPE_R8, DBTYPE_I4, DBTYPE_I4,
                                            DBTYPE_I4,   DBTYPE_BSTR, DBTYPE_I4, DBTYPE_R8};
    for (std::size_t i = 0; i < arExpected.size(); ++i)
        EXPECT_EQ(pCursor->CellType(0, i), arExpected[i]) << i;
}

TEST_F(Cursor, UpdatesOneOfTwoEqualRows) {
    const auto pCursor = m_pDatabase->Query("select * from t");
    pCursor->UpdateRow(1, {{2, 9.5}, {0, std::string("ZK2")}, {4, std::monostate()}});
    EXPECT_EQ(Rows(*m_pDatabase, "select ZKBH,C,N from t"), (CRows{"ZK1|1.5|3", "ZK2|9.5|"}));
    EXPECT_EQ(CellText(pCursor->Cell(1, 0)), "ZK2");
    EXPECT_EQ(CellText(pCursor->Cell(1, 2)), "9.5");
}

TEST_F(Cursor, UpdatesTheColumnBehindAnotherName) {
    m_pDatabase->Query("select C as QYBH from t")->UpdateRow(0, {{0, 4.0}});
    EXPECT_EQ(Rows(*m_pDatabase, "select QYBH,C from t"), (CRows{"1|4", "1|1.5"}));
}

TEST_F(Cursor, ReadsATableWithoutRowNumbersButDoesNotUpdateIt) {
    m_pDatabase->Execute("create table w(a integer primary key, b) without rowid");
    m_pDatabase->Execute("insert into w values(1,2)");
    const auto pCursor = m_pDatabase->Query("select * from w");
    EXPECT_EQ(CellText(pCursor->Cell(0, 1)), "2");
    EXPECT_THROW(pCursor->UpdateRow(0, {{1, 3.0}}), CDbError);
    EXPECT_EQ(m_arLines, CRows{"w: the result is not the rows of one table, row not stored"});
}

TEST_F(Cursor, DoesNotUpdateAViewOrAJoin) {
    m_pDatabase->Execute("create view v as select * from t");
    EXPECT_THROW(m_pDatabase->Query("select * from v")->UpdateRow(0, {{2, 3.0}}), CDbError);
    EXPECT_THROW(m_pDatabase->Query("select a.C from t a, t b")->UpdateRow(0, {{0, 3.0}}), CDbError);
    EXPECT_EQ(Rows(*m_pDatabase, "select C from t"), (CRows{"1.5", "1.5"}));
}

TEST_F(Cursor, ReportsARowThatIsGone) {
    const auto pCursor = m_pDatabase->Query("select * from t");
    m_pDatabase->Execute("delete from t");
    EXPECT_THROW(pCursor->UpdateRow(0, {{2, 3.0}}), CDbError);
    EXPECT_EQ(m_arLines, CRows{"t ZK1 1: the row was deleted by another program, row not stored"});
}

TEST_F(Cursor, ReportsAWriteGivenUpForALock) {
    m_pDatabase->Execute("update t set ZKBH = '孔1'");
    const auto pHurried = OpenDbConnection(ConnectionText() + ";Lock Timeout=20");
    const auto pCursor = pHurried->Query("select * from t");
    const CLockingProcess other(m_strPath);
    EXPECT_THROW(pCursor->UpdateRow(0, {{2, 3.0}}), CDbError);
    EXPECT_EQ(m_arLines, CRows{"t 孔1 1: locked by another program, row not stored"});
    EXPECT_EQ(CellText(pCursor->Cell(0, 2)), "1.5");
}

TEST_F(Cursor, StaysReadableAndWritableWhenItsConnectionIsReleased) {
    const auto pCursor = m_pDatabase->Query("select * from t");
    m_pDatabase.reset();
    pCursor->UpdateRow(0, {{2, 8.0}});
    EXPECT_EQ(Rows(*OpenDbConnection(ConnectionText()), "select C from t"), (CRows{"8", "1.5"}));
}
