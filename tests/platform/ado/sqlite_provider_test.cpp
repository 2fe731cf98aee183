#include "platform/ado/sqlite_provider.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>

#include "platform/ado/error.h"
#include "platform/windows/code_page.h"
#include "tests/platform/ado/database_fixture.h"
#include "tests/platform/ado/locking_process.h"

namespace {

class SqliteProvider : public CDatabaseTest {};

std::string WhyNotOpened(const std::string& strText) {
    try {
        OpenDbConnection(strText);
    } catch (const CDbError& error) {
        return error.what();
    }
    return {};
}

std::string WhyNotRead(const std::string& strText) {
    try {
        (void)OpenDbConnection(strText)->Query("select * from t");
    } catch (const CDbError& error) {
        return error.what();
    }
    return {};
}

} // namespace

TEST_F(SqliteProvider, OpensADatabaseByItsConnectionText) {
    m_pDatabase->Execute("create table t(a integer)");
    m_pDatabase->Execute("insert into t values(7)");
    EXPECT_EQ(Rows(*OpenDbConnection(ConnectionText()), "select A from T"), CRows{"7"});
}

TEST_F(SqliteProvider, IsMeantWhereNoProviderIsNamed) {
    EXPECT_EQ(Rows(*OpenDbConnection("Data Source=" + m_strPath), "select 5"), CRows{"5"});
}

TEST_F(SqliteProvider, NeverCreatesAMissingDatabase) {
    const std::string strPath = m_folder.Path("missing.db");
    EXPECT_EQ(WhyNotOpened("Provider=SQLite;Data Source=" + strPath),
              "There is no database " + strPath + ", or it cannot be opened.");
    EXPECT_FALSE(std::filesystem::exists(strPath));
}

TEST_F(SqliteProvider, RefusesAnEmptyPathAndAFolder) {
    EXPECT_NE(WhyNotOpened("Provider=SQLite"), "");
    EXPECT_NE(WhyNotOpened("Provider=SQLite;Data Source=" + m_folder.Path()), "");
    EXPECT_NE(WhyNotOpened("Provider=SQLite;Data Source=:memory:"), "");
    EXPECT_NE(WhyNotOpened("Provider=SQLite;Data Source=file::memory:"), "");
}

TEST_F(SqliteProvider, NamesAnUnknownProvider) {
    EXPECT_EQ(WhyNotOpened("Provider=Nonsense;Data Source=x"),
              "There is no database provider \"Nonsense\"; there is SQLite.");
}

TEST_F(SqliteProvider, OpensAFileWhoseNameIsNotAscii) {
    std::string strPath;
    ASSERT_TRUE(Utf8ToGbk(m_folder.Path(), &strPath));
    strPath += "/工程一.db";
    CreateSqliteDatabase(strPath)->Execute("create table t(a)");
    EXPECT_TRUE(std::filesystem::exists(m_folder.Path("\xE5\xB7\xA5\xE7\xA8\x8B\xE4\xB8\x80.db")));
    EXPECT_EQ(Rows(*OpenDbConnection("Provider=SQLite;Data Source=" + strPath), "select * from t"), CRows{});
}

TEST_F(SqliteProvider, OpensAPathWithEitherSlashInAnyCase) {
    m_pDatabase->Execute("create table t(a)");
    std::filesystem::create_directory(m_folder.Path("Data"));
    std::filesystem::copy(m_strPath, m_folder.Path("Data/Common.db"));
    const auto pDatabase =
        OpenDbConnection("Provider=SQLite;Data Source=" + m_folder.Path() + "/DATA\\common.DB");
    EXPECT_EQ(Rows(*pDatabase, "select count(*) from t"), CRows{"0"});
}

TEST_F(SqliteProvider, SaysWhatIsWrongWithAFileThatIsNoDatabase) {
    const std::string strPath = m_folder.Write("text.db", std::string(4096, 'x'));
    EXPECT_EQ(WhyNotRead("Provider=SQLite;Data Source=" + strPath), "file is not a database");
}

TEST_F(SqliteProvider, SaysWhatIsWrongWithATruncatedDatabase) {
    m_pDatabase->Execute("create table t(a)");
    for (int i = 0; i < 200; ++i)
        m_pDatabase->Execute("insert into t values('" + std::string(100, 'x') + "')");
    m_pDatabase.reset();
    std::filesystem::resize_file(m_strPath, 6000);
    EXPECT_EQ(WhyNotRead(ConnectionText()), "database disk image is malformed");
}

TEST_F(SqliteProvider, SaysWhatIsWrongWithAMissingTableAndABadStatement) {
    EXPECT_EQ(WhyNotRead(ConnectionText()), "no such table: t");
    EXPECT_THROW(m_pDatabase->Execute("selekt"), CDbError);
    EXPECT_THROW(m_pDatabase->Execute(" "), CDbError);
    EXPECT_THROW(m_pDatabase->Execute("select '\xFF"), CDbError); // bytes that are no character
}

TEST_F(SqliteProvider, ConvertsTextsBothWays) {
    m_pDatabase->Execute("create table 表(名称 text)");
    m_pDatabase->Execute("insert into 表 values('粘土')");
    const std::array<CDbValue, 1> arValues{std::string("砂土")};
    m_pDatabase->Execute("insert into 表 values(?)", arValues);
    EXPECT_EQ(Rows(*m_pDatabase, "select 名称 from 表 where 名称 = '粘土'"), CRows{"粘土"});
    EXPECT_EQ(Rows(*m_pDatabase, "select length(名称) from 表"), (CRows{"2", "2"}));
    EXPECT_EQ(Rows(*m_pDatabase, "select hex(名称) from 表"), (CRows{"E7B298E59C9F", "E7A082E59C9F"}));
}

TEST_F(SqliteProvider, NamesTheCharacterThatTheCodePageLacks) {
    m_pDatabase->Execute("create table t(name text)");
    m_pDatabase->Execute("insert into t values(char(128512))");
    EXPECT_EQ(WhyNotRead(ConnectionText()), "t.name: character U+1F600 is not in the system code page");
}

TEST_F(SqliteProvider, BindsEveryKindOfParameter) {
    m_pDatabase->Execute("create table t(a,b,c,d)");
    const std::array<CDbValue, 4> arValues{std::monostate(), std::int64_t{-5}, 0.1, std::string("it's")};
    EXPECT_EQ(m_pDatabase->Execute("insert into t values(?,?,?,?)", arValues), 1);
    EXPECT_EQ(Rows(*m_pDatabase, "select * from t"), CRows{"|-5|0.1|it's"});
}

TEST_F(SqliteProvider, CountsTheRowsThatAStatementChanged) {
    EXPECT_EQ(m_pDatabase->Execute("create table t(a)"), 0);
    EXPECT_EQ(m_pDatabase->Execute("insert into t values(1),(2),(3)"), 3);
    EXPECT_EQ(m_pDatabase->Execute("update t set a = a + 1 where a > 1"), 2);
    EXPECT_EQ(m_pDatabase->Execute("delete from t where a > 100"), 0);
    EXPECT_EQ(Rows(*m_pDatabase, "select a from t"), (CRows{"1", "3", "4"}));
}

TEST_F(SqliteProvider, UndoesATransactionThatIsRolledBackOrLeft) {
    m_pDatabase->Execute("create table t(a)");
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

TEST_F(SqliteProvider, WaitsUntilAnotherProgramLetsGo) {
    m_pDatabase->Execute("create table t(a)");
    const CLockingProcess other(m_strPath, 300);
    EXPECT_EQ(m_pDatabase->Execute("insert into t values(1)"), 1);
}

TEST_F(SqliteProvider, GivesUpOnALockThatStays) {
    m_pDatabase->Execute("create table t(a)");
    const auto pHurried = OpenDbConnection(ConnectionText() + ";Lock Timeout=50");
    const CLockingProcess other(m_strPath);
    try {
        pHurried->Execute("insert into t values(1)");
        FAIL() << "written past a lock";
    } catch (const CDbError& error) {
        EXPECT_EQ(error.Failure(), DbFailure::Locked);
    }
}

TEST_F(SqliteProvider, HoldsNoLockWhileRowsAreKept) {
    m_pDatabase->Execute("create table t(a)");
    m_pDatabase->Execute("insert into t values(1)");
    const auto pRows = m_pDatabase->Query("select * from t");
    EXPECT_NO_THROW(CLockingProcess{m_strPath});
    EXPECT_EQ(CellText(pRows->Cell(0, 0)), "1");
}

TEST_F(SqliteProvider, RunsAPreparedStatementWithOtherValuesAlsoAfterAFailure) {
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
