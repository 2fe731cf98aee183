#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <string>

#include "platform/windows/descriptor.h"
#include "tests/platform/windows/waited_file.h"
#include "tests/support/programs.h"

// Imports at the same time, and one that is killed.

namespace {

const std::string g_strHeader =
    "ZKBH,QYBH,SJBH,SHJHXH,WY,SYGD,SYZJ,CLHXS,GJKXYL,CLHDS,ZXBX,JQPS,KXYL,GJPS,JLLX\n";

std::string Reading(const std::string& strZKBH, int nSHJHXH) {
    return strZKBH + ",1-1,1," + std::to_string(nSHJHXH) + ",50,80,39.1,1,0,1,2,0,0,0,2\n";
}

class ImportProcesses : public testing::Test {
protected:
    ImportProcesses() {
        m_program.Do("init \"$ROOT\"");
        m_program.Do("new --root \"$ROOT\" --number A --name x");
    }

    std::string Path(const std::string& strName) const { return m_program.Folder().Path(strName); }
    std::string Rows(const std::string& strSql) const {
        return m_program.Sql("Projects/A/project.db", strSql);
    }

    /// Starts an import of a file of the folder. Its output goes to NAME.out, then its status to NAME.status.
    void Start(const std::string& strFile, const std::string& strName) const {
        const CRun run = m_program.Shell("cd \"$ROOT/..\"; { $T import --root root --number A " + strFile +
                                         " >" + strName + ".out 2>&1 & echo $! >" + strName +
                                         ".pid; wait $!; echo $? >" + strName + ".part; mv " + strName +
                                         ".part " + strName + ".status; } >/dev/null 2>&1 & true");
        EXPECT_EQ(run.m_nStatus, 0);
    }
    std::string StatusOf(const std::string& strName) const {
        return WaitedFile(m_program.Folder(), strName + ".status");
    }
    /// An import that reads from a pipe, and so keeps its place in the middle until it is fed.
    CDescriptor StartFed(const std::string& strName) const {
        EXPECT_EQ(mkfifo(Path(strName).c_str(), 0600), 0);
        Start(strName, strName);
        // The other end is opened when the importer has begun its transaction.
        return CDescriptor(open(Path(strName).c_str(), O_WRONLY | O_CLOEXEC));
    }
    static void Feed(const CDescriptor& pipe, const std::string& strText) {
        for (std::size_t nAt = 0; nAt < strText.size();) {
            const ssize_t nWritten = write(pipe.Get(), strText.data() + nAt, strText.size() - nAt);
            ASSERT_GT(nWritten, 0);
            nAt += static_cast<std::size_t>(nWritten);
        }
    }

    const CProgram m_program;
};

} // namespace

TEST_F(ImportProcesses, TwoAtOnceBringInTheirRows) {
    m_program.Folder().Write("second.csv", g_strHeader + Reading("ZK2", 1) + Reading("ZK2", 2));
    CDescriptor pipe = StartFed("first");
    Feed(pipe, g_strHeader + Reading("ZK1", 1));
    Start("second.csv", "second");
    Feed(pipe, Reading("ZK1", 2));
    pipe.Close();
    EXPECT_EQ(StatusOf("first"), "0\n") << m_program.Folder().Read("first.out");
    EXPECT_EQ(StatusOf("second"), "0\n") << m_program.Folder().Read("second.out");
    EXPECT_EQ(Rows("SELECT ZKBH, SHJHXH FROM z_c_SanZhouCSXM ORDER BY ZKBH, SHJHXH"),
              "ZK1|1\nZK1|2\nZK2|1\nZK2|2\n");
}

TEST_F(ImportProcesses, OfTwoWithTheSameRowsTheLaterIsRefused) {
    m_program.Folder().Write("second.csv", g_strHeader + Reading("ZK2", 1) + Reading("ZK1", 1));
    CDescriptor pipe = StartFed("first");
    Start("second.csv", "second");
    Feed(pipe, g_strHeader + Reading("ZK1", 1));
    pipe.Close();
    EXPECT_EQ(StatusOf("first"), "0\n") << m_program.Folder().Read("first.out");
    EXPECT_EQ(StatusOf("second"), "1\n");
    EXPECT_EQ(m_program.Folder().Read("second.out"),
              "second.csv:3: SHJHXH: a row of this key is stored already\n");
    EXPECT_EQ(Rows("SELECT ZKBH FROM z_c_SanZhouCSXM"), "ZK1\n");
}

TEST_F(ImportProcesses, ManyWithTheSameRowsLeaveOneSetOfThem) {
    std::string strRows = g_strHeader;
    for (int i = 0; i < 500; ++i)
        strRows += Reading("ZK1", i);
    m_program.Folder().Write("same.csv", strRows);
    std::string strStatus;
    for (const char* pszName : {"a", "b", "c", "d"})
        Start("same.csv", pszName);
    for (const char* pszName : {"a", "b", "c", "d"})
        strStatus += StatusOf(pszName);
    EXPECT_EQ(std::count(strStatus.begin(), strStatus.end(), '0'), 1) << strStatus;
    EXPECT_EQ(std::count(strStatus.begin(), strStatus.end(), '1'), 3) << strStatus;
    EXPECT_EQ(Rows("SELECT COUNT(*), COUNT(DISTINCT SHJHXH) FROM z_c_SanZhouCSXM"), "500|500\n");
}

TEST_F(ImportProcesses, ReadersSeeTheFormerStateMeanwhile) {
    m_program.Folder().Write("before.csv", g_strHeader + Reading("ZK0", 1));
    m_program.Do("import --root \"$ROOT\" --number A '" + Path("before.csv") + "'");
    const std::string strBefore = m_program.Do("list --root \"$ROOT\"");
    CDescriptor pipe = StartFed("first");
    Feed(pipe, g_strHeader + Reading("ZK1", 1));
    EXPECT_EQ(m_program.Do("list --root \"$ROOT\""), strBefore);
    pipe.Close();
    EXPECT_EQ(StatusOf("first"), "0\n");
    EXPECT_NE(m_program.Do("list --root \"$ROOT\""), strBefore);
}

TEST_F(ImportProcesses, OneThatIsKilledLeavesTheDatabaseAsItWas) {
    m_program.Folder().Write("before.csv", g_strHeader + Reading("ZK0", 1));
    m_program.Do("import --root \"$ROOT\" --number A '" + Path("before.csv") + "'");
    // More rows than the engine keeps in memory, so that part of them stands in the file already.
    std::string strRows = g_strHeader;
    for (int i = 0; i < 60000; ++i)
        strRows += Reading("ZK1", i);
    m_program.Folder().Write("after.csv", strRows);
    const std::string strDatabase = m_program.Root() + "/Projects/A/project.db";
    const auto nSize = std::filesystem::file_size(strDatabase);
    CDescriptor pipe = StartFed("first");
    Feed(pipe, strRows);
    EXPECT_GT(std::filesystem::file_size(strDatabase), nSize);
    EXPECT_TRUE(std::filesystem::exists(strDatabase + "-journal"));
    ASSERT_EQ(kill(std::stoi(m_program.Folder().Read("first.pid")), SIGKILL), 0);
    EXPECT_EQ(StatusOf("first"), "137\n");
    pipe.Close();
    EXPECT_EQ(Rows("SELECT ZKBH, SHJHXH FROM z_c_SanZhouCSXM"), "ZK0|1\n");
    EXPECT_EQ(Rows("PRAGMA integrity_check"), "ok\n");
    EXPECT_EQ(m_program.Do("import --root \"$ROOT\" --number A '" + Path("after.csv") + "'"),
              "readings: 60000\nsamples: 0\nlayers: 0\n");
}

TEST_F(ImportProcesses, OneThatIsKeptOutTooLongTellsSo) {
    m_program.Do("new --root \"$ROOT\" --number B --name x --connect \"Provider=SQLite;Lock Timeout=50;Data "
                 "Source=$ROOT/Projects/A/project.db\"");
    m_program.Folder().Write("second.csv", g_strHeader + Reading("ZK2", 1));
    CDescriptor pipe = StartFed("first");
    Feed(pipe, g_strHeader + Reading("ZK1", 1));
    const CRun run = m_program.Tvdata("import --root \"$ROOT\" --number B '" + Path("second.csv") + "'");
    EXPECT_EQ(run.m_nStatus, 4);
    EXPECT_EQ(run.m_strErrors,
              "tvdata: " + m_program.Root() + "/Projects/A/project.db: locked by another program\n");
    pipe.Close();
    EXPECT_EQ(StatusOf("first"), "0\n");
    EXPECT_EQ(Rows("SELECT GCSY, ZKBH FROM z_c_SanZhouCSXM"), "1|ZK1\n");
}
