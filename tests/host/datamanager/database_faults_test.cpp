#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "host/datamanager/command_line.h"
#include "tests/other_user.h"
#include "tests/platform/ado/locking_process.h"
#include "tests/support/programs.h"

// What the program says of a project database that it cannot read or write.

namespace {

class DatabaseFaults : public testing::Test {
protected:
    DatabaseFaults() {
        m_program.Do("init \"$ROOT\"");
        m_program.Do("new --root \"$ROOT\" --number A --name one --connect '" + Connect() + "'");
        m_program.Do("import --root \"$ROOT\" --number A '" + Samples("first.csv", "1-1") + "'");
        Samples("second.csv", "1-2");
    }

    std::string Database() const { return m_program.Folder().Path("own.db"); }
    std::string Connect() const { return "Provider=SQLite;Lock Timeout=50;Data Source=" + Database(); }
    std::string Samples(const std::string& strFile, const std::string& strQYBH) const {
        return m_program.Folder().Write(strFile, "ZKBH,QYBH,SYFF\nZK1," + strQYBH + ",\n");
    }
    void Sql(const std::string& strSql) const {
        ASSERT_EQ(m_program.Shell("sqlite3 '" + Database() + "' \"" + strSql + "\"").m_nStatus, 0);
    }

    std::string Import() const {
        return "import --root \"$ROOT\" --number A '" + m_program.Folder().Path("second.csv") + "'";
    }
    std::string New() const {
        return "new --root \"$ROOT\" --number N --name n --connect '" + Connect() + "'";
    }
    static std::vector<std::string> Reading() {
        return {"list --root \"$ROOT\"", "results --root \"$ROOT\" --number A",
                "open --root \"$ROOT\" --number A"};
    }

    /// The call ends with 4 and one line that names the database and the reason.
    void Fails(const std::string& strCall, const std::string& strReason) const {
        const CRun run = m_program.Tvdata(strCall);
        const std::string strBegin = strCall.starts_with("list") ? "tvdata: A: " : "tvdata: ";
        EXPECT_EQ(run.m_nStatus, 4) << strCall;
        EXPECT_EQ(run.m_strErrors, strBegin + Database() + ": " + strReason + "\n") << strCall;
        EXPECT_NE(m_program.Read("Project.ini").find("GCSY=-1\n"), std::string::npos) << strCall;
        EXPECT_FALSE(std::filesystem::exists(m_program.Root() + "/Projects/N")) << strCall;
    }
    void AllFail(const std::string& strReason) const {
        for (const std::string& strCall : Reading())
            Fails(strCall, strReason);
        Fails(Import(), strReason);
        Fails(New(), strReason);
    }

    const CProgram m_program;
};

/// Runs the program in a process of a user without rights; what it says on standard error goes to *pErrors.
int RunAsPlainUser(const CTempFolder& folder, std::vector<std::string> arWords, std::string* pErrors) {
    const std::string strErrors = folder.Write("plain.errors", "");
    arWords.insert(arWords.begin(), "tvdata");
    const int nStatus = AsPlainUser(folder, [&] {
        std::vector<char*> arArguments;
        arArguments.reserve(arWords.size() + 1);
        for (std::string& strWord : arWords)
            arArguments.push_back(strWord.data());
        arArguments.push_back(nullptr);
        if (!freopen(strErrors.c_str(), "w", stderr) || !freopen("/dev/null", "w", stdout)) return 254;
        const int nResult = RunCommandLine(static_cast<int>(arWords.size()), arArguments.data());
        std::fflush(nullptr);
        return nResult;
    });
    *pErrors = folder.Read("plain.errors");
    return nStatus;
}

} // namespace

TEST_F(DatabaseFaults, MissingFile) {
    std::filesystem::remove(Database());
    for (const std::string& strCall : Reading())
        Fails(strCall, "There is no database " + Database() + ", or it cannot be opened.");
    Fails(Import(), "There is no database " + Database() + ", or it cannot be opened.");
    EXPECT_FALSE(std::filesystem::exists(Database())); // nothing makes one in passing
}

TEST_F(DatabaseFaults, FileThatIsNoDatabase) {
    m_program.Folder().Write("own.db", "ZKBH,QYBH,SYFF\nZK1,1-1,\n" + std::string(2000, 'x'));
    AllFail("file is not a database");
}

TEST_F(DatabaseFaults, EmptyFile) {
    m_program.Folder().Write("own.db", "");
    for (const std::string& strCall : Reading())
        Fails(strCall, "no such table: z_c_SanZhou");
    Fails(Import(), "no such table: z_c_SanZhou");
}

TEST_F(DatabaseFaults, TruncatedFile) {
    Sql("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 5000) "
        "INSERT INTO z_c_SanZhouCSXM SELECT 1, 'ZK1', '1-1', 1, i, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1 FROM n");
    std::filesystem::resize_file(Database(), std::filesystem::file_size(Database()) / 2);
    AllFail("database disk image is malformed");
}

TEST_F(DatabaseFaults, LockedBeyondTheWait) {
    const CLockingProcess other(Database());
    AllFail("locked by another program");
}

TEST_F(DatabaseFaults, LockThatGoesInTime) {
    m_program.Do("new --root \"$ROOT\" --number B --name two --connect 'Data Source=" +
                 m_program.Folder().Path("two.db") + "'");
    const CLockingProcess other(m_program.Folder().Path("two.db"), 300);
    EXPECT_EQ(
        m_program.Do("import --root \"$ROOT\" --number B '" + m_program.Folder().Path("second.csv") + "'"),
        "readings: 0\nsamples: 1\nlayers: 0\n");
}

TEST_F(DatabaseFaults, MissingTable) {
    Sql("DROP TABLE z_g_TuCeng");
    for (const std::string& strCall : Reading())
        Fails(strCall, "no such table: z_g_TuCeng");
    Fails(Import(), "no such table: z_g_TuCeng");
    EXPECT_EQ(m_program.Do(New()), "2\n"); // a new project lays the missing table out
    m_program.Do("results --root \"$ROOT\" --number A");
}

TEST_F(DatabaseFaults, MissingColumn) {
    Sql("ALTER TABLE z_c_SanZhou DROP COLUMN CDF");
    AllFail("z_c_SanZhou: column 13, CDF, is missing");
    Sql("ALTER TABLE z_c_SanZhou DROP COLUMN SYFF");
    AllFail("z_c_SanZhou: column 4 is SYRQ where SYFF belongs");
}

TEST_F(DatabaseFaults, ColumnsInAnotherOrder) {
    Sql("DROP TABLE z_c_SanZhou; CREATE TABLE z_c_SanZhou (GCSY, ZKBH, QYBH, SYRQ, SYFF, UUC, UUF, CUC, CUF, "
        "CUCE, CUFE, CDC, CDF)");
    AllFail("z_c_SanZhou: column 4 is SYRQ where SYFF belongs");
    EXPECT_EQ(m_program.Sql("../own.db", "SELECT COUNT(*) FROM z_c_SanZhou"), "0\n");
    EXPECT_EQ(m_program.Sql("../own.db", "SELECT COUNT(*) FROM z_c_QuYang"), "1\n");
    EXPECT_EQ(m_program.Sql("../own.db", "SELECT COUNT(*) FROM x_GongCheng"), "1\n");
}

TEST_F(DatabaseFaults, ReadOnlyFile) {
    std::filesystem::permissions(Database(), std::filesystem::perms(0444));
    std::string strErrors;
    const auto run = [&](std::vector<std::string> arWords) {
        return RunAsPlainUser(m_program.Folder(), std::move(arWords), &strErrors);
    };
    EXPECT_EQ(
        run({"import", "--root", m_program.Root(), "--number", "A", m_program.Folder().Path("second.csv")}),
        4);
    EXPECT_EQ(strErrors, "tvdata: " + Database() + ": attempt to write a readonly database\n");
    EXPECT_EQ(
        run({"new", "--root", m_program.Root(), "--number", "N", "--name", "n", "--connect", Connect()}), 4);
    EXPECT_EQ(strErrors, "tvdata: " + Database() + ": attempt to write a readonly database\n");
    EXPECT_EQ(run({"list", "--root", m_program.Root()}), 0) << strErrors; // reading is allowed
    EXPECT_EQ(run({"results", "--root", m_program.Root(), "--number", "A"}), 0) << strErrors;
    EXPECT_EQ(m_program.Sql("../own.db", "SELECT QYBH FROM z_c_QuYang"), "1-1\n");
}

TEST_F(DatabaseFaults, FileThatMayNotBeRead) {
    std::filesystem::permissions(Database(), std::filesystem::perms(0));
    std::string strErrors;
    EXPECT_EQ(RunAsPlainUser(m_program.Folder(), {"results", "--root", m_program.Root(), "--number", "A"},
                             &strErrors),
              4);
    EXPECT_EQ(strErrors, "tvdata: " + Database() + ": There is no database " + Database() +
                             ", or it cannot be opened.\n");
}

TEST_F(DatabaseFaults, ReadOnlyFolder) {
    std::filesystem::create_directory(m_program.Folder().Path("kept"));
    const std::string strDatabase = m_program.Folder().Path("kept/own.db");
    m_program.Do("new --root \"$ROOT\" --number K --name k --connect 'Data Source=" + strDatabase + "'");
    std::filesystem::permissions(m_program.Folder().Path("kept"), std::filesystem::perms(0555));
    std::string strErrors;
    EXPECT_EQ(RunAsPlainUser(m_program.Folder(),
                             {"import", "--root", m_program.Root(), "--number", "K",
                              m_program.Folder().Path("second.csv")},
                             &strErrors),
              4);
    EXPECT_EQ(strErrors, "tvdata: " + strDatabase + ": attempt to write a readonly database\n");
    EXPECT_EQ(m_program.Sql("../kept/own.db", "SELECT COUNT(*) FROM z_c_QuYang"), "0\n");
    EXPECT_EQ(RunAsPlainUser(m_program.Folder(), {"list", "--root", m_program.Root()}, &strErrors), 0)
        << strErrors;
    std::filesystem::permissions(m_program.Folder().Path("kept"), std::filesystem::perms(0755));
}

TEST_F(DatabaseFaults, CharacterThatTheCodePageLacks) {
    m_program.Do("import --root \"$ROOT\" --number A '" + m_program.Folder().Path("second.csv") + "'");
    Sql("UPDATE z_c_SanZhou SET SYFF = char(128512)");
    for (const std::string& strCall : {Reading()[0], Reading()[1]})
        Fails(strCall, "z_c_SanZhou.SYFF: character U+1F600 is not in the system code page");
}

TEST_F(DatabaseFaults, ServerThatIsNotThereIsNamedWithoutItsPassword) {
    const CRun run = m_program.Tvdata("new --root \"$ROOT\" --number N --name n --connect "
                                      "'Provider=Nowhere;Server=127.0.0.1;Uid=me;Pwd=secret'");
    EXPECT_EQ(run.m_nStatus, 4);
    EXPECT_NE(run.m_strErrors.find("database on 127.0.0.1: "), std::string::npos) << run.m_strErrors;
    EXPECT_EQ(run.m_strErrors.find("secret"), std::string::npos) << run.m_strErrors;
}
