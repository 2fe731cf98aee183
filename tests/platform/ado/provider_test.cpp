#include "platform/ado/provider.h"

#include <gtest/gtest.h>

#include <array>

#include "platform/ado/error.h"
#include "tests/platform/ado/database_fixture.h"

namespace {

class Provider : public CEngineTest {
protected:
    /// Why a statement fails; empty when it does not.
    static std::string WhyNot(CDbConnection& database, std::string_view strSql) {
        try {
            (void)database.Query(strSql);
        } catch (const CDbError& error) {
            return error.what();
        }
        return {};
    }
};

INSTANTIATE_TEST_SUITE_P(Engines, Provider, TestEngines(), TestEngineName);

} // namespace

TEST_P(Provider, ConvertsTextsBothWays) {
    m_pDatabase->Execute("create table 表(名称 varchar(255))");
    m_pDatabase->Execute("insert into 表 values('粘土')");
    const std::array<CDbValue, 1> arValues{std::string("砂土")};
    m_pDatabase->Execute("insert into 表 values(?)", arValues);
    EXPECT_EQ(Rows(*m_pDatabase, "select 名称 from 表 where 名称 = '粘土'"), CRows{"粘土"});
    EXPECT_EQ(Rows(*m_pDatabase, "select length(名称) from 表"), (CRows{"2", "2"}));
    EXPECT_EQ(Rows(*m_pDatabase, In("select hex(名称) from 表",
                                    "select upper(encode(convert_to(名称, 'UTF8'), 'hex')) from 表")),
              (CRows{"E7B298E59C9F", "E7A082E59C9F"}));
}

TEST_P(Provider, NamesTheCharacterThatTheCodePageLacks) {
    m_pDatabase->Execute("create table t(name text)");
    m_pDatabase->Execute(In("insert into t values(char(128512))", "insert into t values(chr(128512))"));
    EXPECT_EQ(WhyNot(*m_pDatabase, "select * from t"),
              "t.name: character U+1F600 is not in the system code page");
}

TEST_P(Provider, BindsEveryKindOfParameter) {
    m_pDatabase->Execute("create table t(a varchar(9), b integer, c double precision, d varchar(9))");
    const std::array<CDbValue, 4> arValues{std::monostate(), std::int64_t{-5}, 0.1, std::string("it's")};
    EXPECT_EQ(m_pDatabase->Execute("insert into t values(?,?,?,?)", arValues), 1);
    EXPECT_EQ(Rows(*m_pDatabase, "select * from t"), CRows{"|-5|0.1|it's"});
}

TEST_P(Provider, CountsTheRowsThatAStatementChanged) {
    EXPECT_EQ(m_pDatabase->Execute("create table t(a integer)"), 0);
    EXPECT_EQ(m_pDatabase->Execute("insert into t values(1),(2),(3)"), 3);
    EXPECT_EQ(m_pDatabase->Execute("update t set a = a + 1 where a > 1"), 2);
    EXPECT_EQ(m_pDatabase->Execute("delete from t where a > 100"), 0);
    EXPECT_EQ(Rows(*m_pDatabase, "select a from t order by a"), (CRows{"1", "3", "4"}));
}

TEST_P(Provider, UndoesATransactionThatIsRolledBackOrLeft) {
    m_pDatabase->Execute("create table t(a integer)");
    m_pDatabase->BeginTransaction();
    m_pDatabase->Execute("insert into t values(1)");
    m_pDatabase->RollbackTransaction();
    const auto pOther = OpenDbConnection(ConnectionText());
    pOther->BeginTransaction();
    pOther->Execute("insert into t values(2)");
    pOther->CommitTransaction();
    auto pLeft = OpenDbConnection(ConnectionText());
    pLeft->BeginTransaction();
    pLeft->Execute("insert into t values(3)");
    pLeft.reset();
    EXPECT_EQ(Rows(*m_pDatabase, "select a from t"), CRows{"2"});
}

TEST_P(Provider, WaitsUntilAnotherProgramLetsGo) {
    m_pDatabase->Execute("create table t(a integer)");
    const CDatabaseLock other(m_database, 300);
    EXPECT_EQ(m_pDatabase->Execute("insert into t values(1)"), 1);
}

TEST_P(Provider, GivesUpOnALockThatStays) {
    m_pDatabase->Execute("create table t(a integer)");
    const auto pHurried = OpenDbConnection(ConnectionText() + ";Lock Timeout=50");
    const CDatabaseLock other(m_database);
    try {
        pHurried->Execute("insert into t values(1)");
        FAIL() << "written past a lock";
    } catch (const CDbError& error) {
        EXPECT_EQ(error.Failure(), DbFailure::Locked);
    }
}

TEST_P(Provider, HoldsNoLockWhileRowsAreKept) {
    m_pDatabase->Execute("create table t(a integer)");
    m_pDatabase->Execute("insert into t values(1)");
    const auto pRows = m_pDatabase->Query("select * from t");
    const auto pHurried = OpenDbConnection(ConnectionText() + ";Lock Timeout=50");
    EXPECT_NO_THROW(CDatabaseLock{m_database});
    EXPECT_EQ(pHurried->Execute("update t set a = 2"), 1);
    EXPECT_EQ(CellText(pRows->Cell(0, 0)), "1");
}

TEST_P(Provider, RunsAPreparedStatementWithOtherValuesAlsoAfterAFailure) {
    m_pDatabase->Execute("create table t(a integer unique, b text)");
    const auto pInsert = m_pDatabase->Prepare("insert into t values(?, ?)");
    const auto insert = [&](const CDbValue& a, const CDbValue& b) {
        pInsert->Execute(std::array<CDbValue, 2>{a, b});
    };
    insert(std::int64_t{1}, std::string("砂"));
    EXPECT_THROW(insert(std::int64_t{1}, std::string("twice")), CDbError);
    insert(std::int64_t{2}, CDbValue());
    EXPECT_EQ(Rows(*m_pDatabase, "select a, coalesce(b, 'null') from t order by a"),
              (CRows{"1|砂", "2|null"}));
}

TEST_P(Provider, SaysWhatIsWrongWithAMissingTableAndABadStatement) {
    EXPECT_EQ(WhyNot(*m_pDatabase, "select * from t"),
              In("no such table: t", "relation \"t\" does not exist"));
    EXPECT_EQ(WhyNot(*m_pDatabase, " "), "The statement is empty.");
    EXPECT_THROW(m_pDatabase->Execute("selekt"), CDbError);
    EXPECT_THROW(m_pDatabase->Execute(" "), CDbError);
    EXPECT_THROW(m_pDatabase->Execute("select '\xFF"), CDbError); // bytes that are no character
}

TEST_P(Provider, StaysUsableAfterAStatementThatFailsInATransaction) {
    m_pDatabase->Execute("create table t(a integer unique)");
    m_pDatabase->BeginTransaction();
    m_pDatabase->Execute("insert into t values(1)");
    EXPECT_THROW(m_pDatabase->Execute("insert into t values(1)"), CDbError);
    EXPECT_THROW((void)m_pDatabase->Query("select * from missing"), CDbError);
    m_pDatabase->Execute("insert into t values(2)");
    m_pDatabase->CommitTransaction();
    EXPECT_EQ(Rows(*m_pDatabase, "select a from t order by a"), (CRows{"1", "2"}));
}

TEST_P(Provider, KnowsOneTransactionAtATime) {
    EXPECT_THROW(m_pDatabase->CommitTransaction(), CDbError);
    EXPECT_THROW(m_pDatabase->RollbackTransaction(), CDbError);
    m_pDatabase->BeginTransaction();
    EXPECT_THROW(m_pDatabase->BeginTransaction(), CDbError);
    m_pDatabase->RollbackTransaction();
    m_pDatabase->BeginTransaction();
    m_pDatabase->CommitTransaction();
}

TEST_P(Provider, ATransactionTakesTheWriteLockAtOnce) {
    m_pDatabase->Execute("create table t(a integer)");
    const auto pHurried = OpenDbConnection(ConnectionText() + ";Lock Timeout=50");
    m_pDatabase->BeginTransaction();
    try {
        pHurried->BeginTransaction();
        FAIL() << "two writers at once";
    } catch (const CDbError& error) {
        EXPECT_EQ(error.Failure(), DbFailure::Locked);
    }
    EXPECT_EQ(Rows(*pHurried, "select count(*) from t"), CRows{"0"}); // readers go on
    m_pDatabase->CommitTransaction();
    pHurried->BeginTransaction(); // and the one that gave up can try again
    pHurried->RollbackTransaction();
}

TEST_P(Provider, QueuedRowsAreThereAfterAFlush) {
    m_pDatabase->Execute("create table t(a integer, b varchar(9))");
    const auto pInsert = m_pDatabase->Prepare("insert into t (a, b) values (?, ?);");
    constexpr std::int64_t nRows = 1007;
    for (std::int64_t i = 0; i < nRows; ++i)
        pInsert->Queue(std::array<CDbValue, 2>{i, i % 2 ? CDbValue(std::string("孔")) : CDbValue()});
    pInsert->Flush();
    pInsert->Flush();
    EXPECT_EQ(Rows(*m_pDatabase, "select count(*), count(b), min(a), max(a), sum(a) from t"),
              CRows{"1007|503|0|1006|506521"});
    pInsert->Execute(std::array<CDbValue, 2>{std::int64_t{-1}, CDbValue()});
    EXPECT_EQ(Rows(*m_pDatabase, "select count(*) from t"), CRows{"1008"});
}

TEST_P(Provider, ReadsTextsOfAnyLength) {
    m_pDatabase->Execute("create table t(n integer, name text)");
    std::string strLong;
    for (const std::size_t nLength : {0U, 1U, 254U, 255U, 256U, 257U, 510U, 511U, 512U, 70000U}) {
        strLong.clear();
        while (strLong.size() / 2 < nLength)
            strLong += "土";
        m_pDatabase->Execute("delete from t");
        m_pDatabase->Execute("insert into t values(1, ?)", std::array<CDbValue, 1>{strLong});
        EXPECT_EQ(Rows(*m_pDatabase, "select name, n from t").at(0), strLong + "|1") << nLength;
    }
}

TEST_P(Provider, TakesQuotedTextsAsTheyStand) {
    if (!IsSqlite()) m_pDatabase->Execute("set standard_conforming_strings = off");
    for (const std::string& strText :
         {std::string("C:\\数据\\x"), std::string("\\"), std::string("a ? b"), std::string("{d '1'}"),
          std::string("left(a,1)+b; -- /* $1 %s"), std::string("土\\'"), std::string()}) {
        std::string strLiteral = "'";
        for (std::size_t i = 0; i < strText.size(); ++i) {
            strLiteral.append(strText[i] == '\'' ? 2 : 1, strText[i]);
        }
        EXPECT_EQ(Rows(*m_pDatabase, "select " + strLiteral + "';"), CRows{strText}) << strText;
        EXPECT_EQ(Rows(*m_pDatabase, "select " + strLiteral + "' where 1 = 1 -- it's ? over"),
                  CRows{strText});
    }
}
