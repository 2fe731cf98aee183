#include "platform/ado/sqlite_pool.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

#include "platform/ado/error.h"
#include "tests/temp_folder.h"

namespace {

namespace fs = std::filesystem;

class OpenSqliteFileTest : public testing::Test {
protected:
    OpenSqliteFileTest() { Fill(m_strPath, "first"); }

    static void Run(sqlite3* pDatabase, const std::string& strSql) {
        ASSERT_EQ(sqlite3_exec(pDatabase, strSql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK)
            << sqlite3_errmsg(pDatabase);
    }
    /// A database with one row, made behind the pool's back.
    static void Fill(const std::string& strPath, const std::string& strText) {
        sqlite3* pDatabase = nullptr;
        ASSERT_EQ(sqlite3_open(strPath.c_str(), &pDatabase), SQLITE_OK);
        Run(pDatabase, "CREATE TABLE t (c text); INSERT INTO t VALUES ('" + strText + "')");
        sqlite3_close(pDatabase);
    }
    [[nodiscard]] bool IsYounger(const std::string& strPath) const {
        return fs::last_write_time(strPath) > fs::last_write_time(m_strPath);
    }
    static std::string Text(const CSqliteHandle& pDatabase) {
        CSqliteStatement statement(pDatabase, "SELECT c FROM t");
        return statement.Step() ? reinterpret_cast<const char*>(sqlite3_column_text(statement.Get(), 0)) : "";
    }
    [[nodiscard]] CSqliteHandle Open() const { return OpenSqliteFile(m_strPath, SQLITE_OPEN_READWRITE); }

    CTempFolder m_folder;
    std::string m_strPath = m_folder.Path("a.db");
};

TEST_F(OpenSqliteFileTest, GivesTheReleasedHandleOfAnUnchangedFileAgain) {
    const sqlite3* pFirst = nullptr;
    {
        const CSqliteHandle pDatabase = Open();
        EXPECT_EQ(Text(pDatabase), "first");
        pFirst = pDatabase.get();
    }
    EXPECT_EQ(Open().get(), pFirst);
}

TEST_F(OpenSqliteFileTest, GivesEachHolderAHandleOfItsOwn) {
    const CSqliteHandle pOne = Open();
    const CSqliteHandle pOther = Open();
    EXPECT_NE(pOne.get(), pOther.get());
}

TEST_F(OpenSqliteFileTest, KeepsTheHandleOfOneFileFromAnother) {
    const std::string strOther = m_folder.Path("b.db");
    Fill(strOther, "other");
    EXPECT_EQ(Text(Open()), "first");
    EXPECT_EQ(Text(OpenSqliteFile(strOther, SQLITE_OPEN_READWRITE)), "other");
}

TEST_F(OpenSqliteFileTest, SeesAFilePutInItsPlace) {
    EXPECT_EQ(Text(Open()), "first");
    Fill(m_folder.Path("new.db"), "second");
    fs::rename(m_folder.Path("new.db"), m_strPath);
    EXPECT_EQ(Text(Open()), "second");
}

TEST_F(OpenSqliteFileTest, SeesAFileCopiedOverIt) {
    EXPECT_EQ(Text(Open()), "first");
    do // file times move in ticks; a later one is what is asked for here
        Fill(m_folder.Path("new.db"), "second");
    while (!IsYounger(m_folder.Path("new.db")) && fs::remove(m_folder.Path("new.db")));
    fs::copy_file(m_folder.Path("new.db"), m_strPath, fs::copy_options::overwrite_existing);
    EXPECT_EQ(Text(Open()), "second");
}

TEST_F(OpenSqliteFileTest, RefusesAFileThatWentAwayAndTakesItWhenItIsBack) {
    EXPECT_EQ(Text(Open()), "first");
    fs::rename(m_strPath, m_folder.Path("away.db"));
    EXPECT_THROW((void)Open(), CDbError);
    EXPECT_FALSE(fs::exists(m_strPath));
    fs::rename(m_folder.Path("away.db"), m_strPath);
    EXPECT_EQ(Text(Open()), "first");
}

TEST_F(OpenSqliteFileTest, UndoesATransactionThatWasLeftOpen) {
    {
        const CSqliteHandle pDatabase = Open();
        Run(pDatabase.get(), "BEGIN IMMEDIATE; DELETE FROM t");
    }
    EXPECT_EQ(Text(Open()), "first");
    Run(Open().get(), "BEGIN IMMEDIATE; COMMIT"); // no lock was left behind
}

TEST_F(OpenSqliteFileTest, GivesAForkedChildAHandleOfItsOwn) {
    const sqlite3* pParents = Open().get();
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        const CSqliteHandle pDatabase = Open();
        _exit(pDatabase.get() != pParents && Text(pDatabase) == "first" ? 0 : 1);
    }
    int nStatus = -1;
    ASSERT_EQ(waitpid(child, &nStatus, 0), child);
    EXPECT_EQ(nStatus, 0);
    EXPECT_EQ(Open().get(), pParents);
}

} // namespace
