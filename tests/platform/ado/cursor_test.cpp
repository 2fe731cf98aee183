#include "platform/ado/cursor.h"

#include <gtest/gtest.h>

#include "platform/ado/error.h"
#include "tests/platform/ado/database_fixture.h"

namespace {

/// A table with two equal rows.
class Cursor : public CEngineTest {
protected:
    Cursor() {
        m_pDatabase->Execute(
            In("create table t(ZKBH text, QYBH text, C real, D double, N integer, S smallint, "
               "B byte, T datetime, M numeric(8,2), F bit, X)",
               "create table t(ZKBH text, QYBH text, C real, D double precision, N integer, "
               "S smallint, B smallint, T date, M numeric(8,2), F boolean, X varchar(255))"));
        for (int i = 0; i < 2; ++i)
            m_pDatabase->Execute("insert into t values('ZK1','1',1.5,2.5,3,4,5,'2024-03-09',1.25,'1','x')");
        if (IsSqlite()) m_pDatabase->Execute("update t set F = 1"); // no type makes a number of it
    }
};

/// What only the embedded engine has: values of any type in any column.
class SqliteCursor : public CDatabaseTest {};

INSTANTIATE_TEST_SUITE_P(Engines, Cursor, TestEngines(), TestEngineName);

} // namespace

TEST_P(Cursor, FindsColumnsWithoutCase) {
    const auto pCursor = m_pDatabase->Query("select * from t");
    EXPECT_EQ(pCursor->FindColumn("zkbh"), 0U);
    EXPECT_EQ(pCursor->FindColumn("x"), 10U);
    for (const char* pszHidden : {"rowid", "ctid", "xmin"})
        EXPECT_FALSE(pCursor->FindColumn(pszHidden).has_value()) << pszHidden;
    EXPECT_FALSE(pCursor->FindColumn("").has_value());
}

TEST_P(Cursor, TypesFollowTheDeclarationWhereTheValueFits) {
    const auto pCursor = m_pDatabase->Query("select * from t");
    const std::vector<DBTYPE> arExpected = {DBTYPE_BSTR,
                                            DBTYPE_BSTR,
                                            DBTYPE_R4,
                                            DBTYPE_R8,
                                            DBTYPE_I4,
                                            DBTYPE_I2,
                                            IsSqlite() ? DBTYPE_UI1 : DBTYPE_I2,
                                            DBTYPE_DATE,
                                            DBTYPE_DECIMAL,
                                            DBTYPE_BOOL,
                                            DBTYPE_BSTR};
    for (std::size_t i = 0; i < arExpected.size(); ++i)
        EXPECT_EQ(pCursor->CellType(0, i), arExpected[i]) << i;
    EXPECT_EQ(Rows(*m_pDatabase, "select * from t").at(0), "ZK1|1|1.5|2.5|3|4|5|2024-03-09|1.25|1|x");
}

TEST_F(SqliteCursor, TypesFollowTheValueWhereItDoesNotFit) {
    m_pDatabase->Execute(
        "create table t(ZKBH text, QYBH text, C real, D double, N integer, S smallint, B byte, "
        "T datetime, M numeric(8,2), F bit, X)");
    m_pDatabase->Execute("insert into t values(NULL,7,'text',1,1.5,70000,-1,5,'x',2.5,8)");
    const auto pCursor = m_pDatabase->Query("select ZKBH,C,N,S,B,T,M,X,N from t");
    const std::vector<DBTYPE> arExpected = {DBTYPE_NULL, DBTYPE_BSTR, DBTYPE_R8, DBTYPE_I4, DBTYPE_I4,
                                            DBTYPE_I4,   DBTYPE_BSTR, DBTYPE_I4, DBTYPE_R8};
    for (std::size_t i = 0; i < arExpected.size(); ++i)
        EXPECT_EQ(pCursor->CellType(0, i), arExpected[i]) << i;
}

TEST_P(Cursor, UpdatesOneOfTwoEqualRows) {
    const auto pCursor = m_pDatabase->Query("select * from t");
    pCursor->UpdateRow(1, {{2, 9.5}, {0, std::string("ZK2")}, {4, std::monostate()}});
    EXPECT_EQ(Rows(*m_pDatabase, "select ZKBH,C,N from t order by ZKBH"), (CRows{"ZK1|1.5|3", "ZK2|9.5|"}));
    EXPECT_EQ(CellText(pCursor->Cell(1, 0)), "ZK2");
    EXPECT_EQ(CellText(pCursor->Cell(1, 2)), "9.5");
}

TEST_P(Cursor, UpdatesTheColumnBehindAnotherName) {
    m_pDatabase->Query("select C as QYBH from t")->UpdateRow(0, {{0, 4.0}});
    EXPECT_EQ(Rows(*m_pDatabase, "select QYBH,C from t order by C"), (CRows{"1|1.5", "1|4"}));
}

TEST_F(SqliteCursor, ReadsATableWithoutRowNumbersButDoesNotUpdateIt) {
    m_pDatabase->Execute("create table w(a integer primary key, b) without rowid");
    m_pDatabase->Execute("insert into w values(1,2)");
    const auto pCursor = m_pDatabase->Query("select * from w");
    EXPECT_EQ(CellText(pCursor->Cell(0, 1)), "2");
    EXPECT_THROW(pCursor->UpdateRow(0, {{1, 3.0}}), CDbError);
    EXPECT_EQ(m_arLines, CRows{"w: the result is not the rows of one table, row not stored"});
}

TEST_P(Cursor, DoesNotUpdateAViewOrAJoin) {
    m_pDatabase->Execute("create view v as select * from t");
    EXPECT_THROW(m_pDatabase->Query("select * from v")->UpdateRow(0, {{2, 3.0}}), CDbError);
    EXPECT_THROW(m_pDatabase->Query("select a.C from t a, t b")->UpdateRow(0, {{0, 3.0}}), CDbError);
    EXPECT_EQ(Rows(*m_pDatabase, "select C from t"), (CRows{"1.5", "1.5"}));
}

TEST_P(Cursor, ReportsARowThatIsGone) {
    const auto pCursor = m_pDatabase->Query("select * from t");
    m_pDatabase->Execute("delete from t");
    EXPECT_THROW(pCursor->UpdateRow(0, {{2, 3.0}}), CDbError);
    EXPECT_EQ(m_arLines, CRows{"t ZK1 1: the row was deleted by another program, row not stored"});
}

TEST_P(Cursor, ReportsAWriteGivenUpForALock) {
    m_pDatabase->Execute("update t set ZKBH = '孔1'");
    const auto pHurried = OpenDbConnection(ConnectionText() + ";Lock Timeout=20");
    const auto pCursor = pHurried->Query("select * from t");
    const CDatabaseLock other(m_database);
    EXPECT_THROW(pCursor->UpdateRow(0, {{2, 3.0}}), CDbError);
    EXPECT_EQ(m_arLines, CRows{"t 孔1 1: locked by another program, row not stored"});
    EXPECT_EQ(CellText(pCursor->Cell(0, 2)), "1.5");
}

TEST_P(Cursor, StaysReadableAndWritableWhenItsConnectionIsReleased) {
    const auto pCursor = m_pDatabase->Query("select * from t");
    m_pDatabase.reset();
    pCursor->UpdateRow(0, {{2, 8.0}});
    EXPECT_EQ(Rows(*OpenDbConnection(ConnectionText()), "select C from t order by C"), (CRows{"1.5", "8"}));
}

TEST_F(SqliteCursor, RefusesAWriteOfAComputedColumn) {
    m_pDatabase->Execute("create table t(C real)");
    m_pDatabase->Execute("insert into t values(1)");
    const auto pCursor = m_pDatabase->Query("select \"nothing\" as A, C from t");
    EXPECT_THROW(pCursor->UpdateRow(0, {{0, 3.0}}), CDbError);
    EXPECT_EQ(m_arLines, CRows{"t: a computed column cannot be written, row not stored"});
}

TEST_P(Cursor, FollowsARowWhoseNumberItChanges) {
    m_pDatabase->Execute("create table k(id integer primary key, a text)");
    m_pDatabase->Execute("insert into k values(1,'x')");
    const auto pCursor = m_pDatabase->Query("select * from k");
    pCursor->UpdateRow(0, {{0, std::int64_t{7}}});
    pCursor->UpdateRow(0, {{1, std::string("y")}});
    EXPECT_EQ(Rows(*m_pDatabase, "select * from k"), CRows{"7|y"});
}

TEST_P(Cursor, AppendsAnInsertedRowAsItWasStored) {
    m_pDatabase->Execute(In("create table d(id integer primary key, a text default '缺省', b real)",
                            "create table d(id serial primary key, a text default '缺省', b real)"));
    const auto pCursor = m_pDatabase->Query("select b, a, id from d"); // nothing there yet
    pCursor->InsertRow({{0, std::int64_t{3}}});
    pCursor->InsertRow({});
    ASSERT_EQ(pCursor->RowCount(), 2U);
    EXPECT_EQ(CellText(pCursor->Cell(0, 0)), "3");
    EXPECT_EQ(pCursor->CellType(0, 0), DBTYPE_R4);
    EXPECT_EQ(CellText(pCursor->Cell(0, 1)), "缺省");
    EXPECT_EQ(CellText(pCursor->Cell(1, 2)), "2");
    pCursor->UpdateRow(1, {{1, std::string("甲")}});
    EXPECT_EQ(Rows(*m_pDatabase, "select * from d order by id"), (CRows{"1|缺省|3", "2|甲|"}));
}

TEST_P(Cursor, InsertsNothingWhereNoOneTableIsBehind) {
    m_pDatabase->Execute("create view v as select * from t");
    for (const char* pszSql : {"select * from v", "select a.C from t a, t b", "select count(*) as C from t"})
        EXPECT_THROW(m_pDatabase->Query(pszSql)->InsertRow({{0, 3.0}}), CDbError) << pszSql;
    EXPECT_EQ(m_arLines.size(), 3U);
}

TEST_P(Cursor, ReportsAnInsertGivenUpUnderTheNewRowsName) {
    m_pDatabase->Execute("create table u(ZKBH text unique, QYBH text)");
    m_pDatabase->Execute("insert into u values('孔1','1')");
    const auto pHurried = OpenDbConnection(ConnectionText() + ";Lock Timeout=20");
    const auto pCursor = pHurried->Query("select * from u");
    const std::vector<CDbChange> arRow = {{0, std::string("孔1")}, {1, std::string("2")}};
    EXPECT_THROW(pCursor->InsertRow(arRow), CDbError);
    const CDatabaseLock other(m_database);
    EXPECT_THROW(pCursor->InsertRow(arRow), CDbError);
    const std::string strTwice =
        In("UNIQUE constraint failed: u.ZKBH", "duplicate key value violates unique constraint "
                                               "\"u_zkbh_key\" DETAIL: Key (zkbh)=(孔1) already exists.");
    EXPECT_EQ(m_arLines, (CRows{"u 孔1 2: " + strTwice + ", row not stored",
                                "u 孔1 2: locked by another program, row not stored"}));
    EXPECT_EQ(pCursor->RowCount(), 1U);
}

TEST_P(Cursor, DeletesOneOfTwoEqualRows) {
    m_pDatabase->Execute("insert into t(ZKBH,QYBH,X) values('ZK1','1','z')");
    const auto pCursor = m_pDatabase->Query("select ZKBH, QYBH from t order by X");
    pCursor->DeleteRow(0);
    EXPECT_EQ(Rows(*m_pDatabase, "select X from t order by X"), (CRows{"x", "z"}));
    EXPECT_EQ(pCursor->RowCount(), 3U); // the positions of the other rows stay
    EXPECT_THROW(pCursor->DeleteRow(0), CDbError);
    EXPECT_EQ(m_arLines, CRows{"t ZK1 1: the row was deleted by another program, row not deleted"});
}

TEST_P(Cursor, ReportsADeletionGivenUpForALock) {
    const auto pHurried = OpenDbConnection(ConnectionText() + ";Lock Timeout=20");
    const auto pCursor = pHurried->Query("select * from t");
    const CDatabaseLock other(m_database);
    EXPECT_THROW(pCursor->DeleteRow(1), CDbError);
    EXPECT_EQ(m_arLines, CRows{"t ZK1 1: locked by another program, row not deleted"});
}

TEST_P(Cursor, ReadsARowAnewUntilItIsGone) {
    m_pDatabase->Execute("insert into t(X, C, N) values('xx', 1, 2)");
    const auto pCursor = m_pDatabase->Query("select X, C, N from t order by N");
    m_pDatabase->Execute("update t set X = 'yy', C = NULL, N = 8 where X = 'xx'");
    EXPECT_EQ(CellText(pCursor->Cell(0, 0)), "xx");
    EXPECT_TRUE(pCursor->RefreshRow(0));
    EXPECT_EQ(CellText(pCursor->Cell(0, 0)), "yy");
    EXPECT_EQ(pCursor->CellType(0, 1), DBTYPE_NULL);
    EXPECT_EQ(CellText(pCursor->Cell(0, 2)), "8");
    EXPECT_EQ(CellText(pCursor->Cell(1, 2)), "3");
    m_pDatabase->Execute("delete from t");
    EXPECT_FALSE(pCursor->RefreshRow(0));
    EXPECT_EQ(CellText(pCursor->Cell(0, 0)), "yy");
}

TEST_P(Cursor, KeepsBytesApartFromTextAndNull) {
    m_pDatabase->Execute(
        In("create table p(id integer, picture blob)", "create table p(id integer, picture bytea)"));
    const auto pCursor = m_pDatabase->Query("select picture from p");
    const std::vector<unsigned char> arBytes = {0x00, 0xFF, 0x27, 0x0A};
    pCursor->InsertRow({{0, arBytes}});
    pCursor->InsertRow({{0, std::vector<unsigned char>()}});
    pCursor->InsertRow({{0, std::monostate()}});
    const std::string strHex = In("hex(picture)", "upper(encode(picture,'hex'))");
    EXPECT_EQ(Rows(*m_pDatabase, "select " + strHex + ", case when picture is null then 1 else 0 end from p"),
              (CRows{"00FF270A|0", "|0", "|1"}));
    EXPECT_EQ(pCursor->CellType(0, 0), DBTYPE_BYTES);
    EXPECT_EQ(pCursor->CellType(1, 0), DBTYPE_BYTES);
    EXPECT_EQ(pCursor->CellType(2, 0), DBTYPE_NULL);
    EXPECT_EQ(CellText(pCursor->Cell(0, 0)), "00FF270A");
    pCursor->UpdateRow(2, {{0, arBytes}});
    EXPECT_EQ(Rows(*m_pDatabase, "select " + strHex + " from p"), (CRows{"00FF270A", "", "00FF270A"}));
    EXPECT_EQ(pCursor->CellType(2, 0), DBTYPE_BYTES);
}
