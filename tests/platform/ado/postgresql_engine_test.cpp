#include "platform/ado/postgresql_engine.h"

#include <gtest/gtest.h>

#include <thread>

#include "platform/ado/error.h"
#include "tests/platform/ado/database_fixture.h"

namespace {

/// A table of equal rows in which another program works between reading and storing.
class PostgresqlRows : public CEngineTest {
protected:
    PostgresqlRows() {
        m_pDatabase->Execute("create table t(a integer, b varchar(9), c integer)");
        m_pDatabase->Execute("insert into t values(1,'x',0),(1,'x',0),(1,'x',0)");
    }

    std::shared_ptr<CDbConnection> m_pOther = m_database.Connect();
};

INSTANTIATE_TEST_SUITE_P(Engines, PostgresqlRows, testing::Values(TestEngine::Postgresql), TestEngineName);

} // namespace

TEST_P(PostgresqlRows, FollowsARowThatOthersChanged) {
    const auto pCursor = m_pDatabase->Query("select * from t");
    m_pOther->Execute("update t set b = 'y'");
    m_pOther->Execute("update t set b = 'z'");
    pCursor->UpdateRow(1, {{2, std::int64_t{5}}});
    EXPECT_EQ(Rows(*m_pDatabase, "select * from t order by c"), (CRows{"1|z|0", "1|z|0", "1|z|5"}));
    pCursor->UpdateRow(1, {{2, std::int64_t{6}}});
    pCursor->UpdateRow(0, {{2, std::int64_t{7}}});
    EXPECT_EQ(Rows(*m_pDatabase, "select * from t order by c"), (CRows{"1|z|0", "1|z|6", "1|z|7"}));
}

TEST_P(PostgresqlRows, FollowsARowThatIsBeingChangedAtThatMoment) {
    const auto pCursor = m_pDatabase->Query("select * from t");
    m_pOther->BeginTransaction();
    m_pOther->Execute("update t set b = 'y'");
    const std::jthread commit([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        m_pOther->CommitTransaction();
    });
    pCursor->UpdateRow(2, {{2, std::int64_t{5}}});
    EXPECT_EQ(Rows(*m_pDatabase, "select * from t order by c"), (CRows{"1|y|0", "1|y|0", "1|y|5"}));
}

TEST_P(PostgresqlRows, TellsARowByEliminationWhenItsTrackIsSweptAway) {
    m_pOther->Execute("update t set a = 2 where ctid = '(0,2)'");
    const auto pCursor = m_pDatabase->Query("select * from t order by a");
    m_pOther->Execute("update t set b = 'y' where a = 2");
    m_pOther->Execute("vacuum t");
    pCursor->UpdateRow(2, {{2, std::int64_t{5}}});
    EXPECT_EQ(Rows(*m_pDatabase, "select * from t order by a"), (CRows{"1|x|0", "1|x|0", "2|y|5"}));
}

TEST_P(PostgresqlRows, TellsRowsByTheirValuesWhenTheTableWasWrittenAnew) {
    m_pOther->Execute("update t set a = 3 where ctid = '(0,3)'");
    const auto pCursor = m_pDatabase->Query("select * from t order by a");
    m_pOther->Execute("vacuum full t");
    pCursor->UpdateRow(2, {{2, std::int64_t{5}}});
    EXPECT_EQ(Rows(*m_pDatabase, "select * from t order by a"), (CRows{"1|x|0", "1|x|0", "3|x|5"}));
    EXPECT_THROW(pCursor->UpdateRow(0, {{2, std::int64_t{6}}}), CDbError);
    EXPECT_EQ(m_arLines,
              CRows{"t: the row was changed by another program and cannot be told from others, row "
                    "not stored"});
    EXPECT_EQ(Rows(*m_pDatabase, "select * from t order by a"), (CRows{"1|x|0", "1|x|0", "3|x|5"}));
}

TEST_P(PostgresqlRows, NeverTakesARowForAnotherThatLiesInItsPlace) {
    const auto pCursor = m_pDatabase->Query("select * from t");
    m_pOther->Execute("delete from t");
    m_pOther->Execute("vacuum t");
    m_pOther->Execute("insert into t values(8,'new',0),(8,'new',0),(8,'new',0)");
    EXPECT_EQ(Rows(*m_pDatabase, "select ctid from t where ctid = '(0,1)'"), CRows{"(0,1)"});
    EXPECT_THROW(pCursor->UpdateRow(0, {{2, std::int64_t{5}}}), CDbError);
    EXPECT_THROW(pCursor->DeleteRow(1), CDbError);
    EXPECT_EQ(Rows(*m_pDatabase, "select * from t"), (CRows{"8|new|0", "8|new|0", "8|new|0"}));
}

TEST_P(PostgresqlRows, DeletesAndReadsAnewARowThatOthersChanged) {
    const auto pCursor = m_pDatabase->Query("select b, c from t");
    m_pOther->Execute("update t set b = 'y', c = 4");
    EXPECT_TRUE(pCursor->RefreshRow(1));
    EXPECT_EQ(CellText(pCursor->Cell(1, 0)), "y");
    m_pOther->Execute("update t set c = 5");
    pCursor->DeleteRow(1);
    EXPECT_FALSE(pCursor->RefreshRow(1));
    EXPECT_EQ(Rows(*m_pDatabase, "select c from t"), (CRows{"5", "5"}));
    EXPECT_TRUE(pCursor->RefreshRow(0));
    EXPECT_EQ(CellText(pCursor->Cell(0, 1)), "5");
}

TEST_P(PostgresqlRows, StoresThroughASchemaAnotherNameAndNamesInQuotes) {
    m_pDatabase->Execute("create schema \"Own\"");
    m_pDatabase->Execute("create table \"Own\".\"Ta ble\"(\"Col\" integer, plain integer)");
    m_pDatabase->Execute("insert into \"Own\".\"Ta ble\" values(1,2)");
    const auto pAll = m_pDatabase->Query("select s.* from \"Own\".\"Ta ble\" s");
    pAll->UpdateRow(0, {{0, std::int64_t{3}}, {1, std::int64_t{4}}});
    pAll->InsertRow({{0, std::int64_t{5}}});
    const auto pSome =
        m_pDatabase->Query("select plain as a, \"Col\" from \"Own\".\"Ta ble\" where plain = 4");
    m_pOther->Execute("update \"Own\".\"Ta ble\" set plain = 7 where plain = 4");
    pSome->UpdateRow(0, {{1, std::int64_t{6}}});
    EXPECT_EQ(Rows(*m_pDatabase, "select * from \"Own\".\"Ta ble\" order by 1"), (CRows{"5|", "6|7"}));
}

TEST_P(PostgresqlRows, WritesRowsInATransactionThatIsUndone) {
    const auto pCursor = m_pDatabase->Query("select * from t");
    m_pDatabase->BeginTransaction();
    for (const std::size_t nRow : {0U, 1U, 1U, 2U})
        pCursor->UpdateRow(nRow, {{2, std::int64_t{5}}});
    m_pDatabase->RollbackTransaction();
    pCursor->UpdateRow(1, {{1, std::string("y")}});
    pCursor->DeleteRow(2);
    EXPECT_EQ(Rows(*m_pDatabase, "select * from t order by b"), (CRows{"1|x|0", "1|y|0"}));
}
