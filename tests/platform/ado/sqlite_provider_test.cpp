#include "platform/ado/sqlite_provider.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/ado/error.h"
#include "platform/windows/code_page.h"
#include "tests/platform/ado/database_fixture.h"

namespace {

class SqliteProvider : public CDatabaseTest {
protected:
    CTempFolder m_folder;
    std::string m_strPath = m_database.File();
};

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
              "There is no database provider \"Nonsense\"; there is SQLite, ODBC.");
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
