#include "host/datamanager/new_project.h"

#include <gtest/gtest.h>

#include <cctype>
#include <cstdlib>

#include "platform/ado/error.h"
#include "platform/windows/code_page.h"
#include "tests/support/programs.h"
#include "tests/support/test_database.h"

namespace {

class New : public testing::Test {
protected:
    New() { m_program.Do("init \"$ROOT\""); }

    CProgram m_program;
};

/// Projects in a database that several installations share.
class NewInShared : public testing::TestWithParam<TestEngine> {
protected:
    NewInShared() {
        m_program.Do("init \"$ROOT\"");
        m_program.Do("init \"$ROOT/../other\"");
        setenv("CONNECT", m_database.ConnectionText().c_str(), 1);
    }
    /// Rows of the shared database.
    [[nodiscard]] std::string Sql(const std::string& strSql) const {
        return RowsText(*m_database.Connect()->Query(strSql));
    }

    CTestDatabase m_database{GetParam()};
    CProgram m_program;
};

INSTANTIATE_TEST_SUITE_P(Engines, NewInShared, TestEngines(), TestEngineName);

} // namespace

TEST_F(New, PrintsTheLeastFreeIndexAndNotesTheProject) {
    EXPECT_EQ(m_program.Do(Utf8(u8"new --root \"$ROOT\" --number 工程-1 --name 演示 --standard 3")), "1\n");
    EXPECT_EQ(m_program.Do("new --root \"$ROOT\" --number B --name two"), "2\n");
    EXPECT_EQ(m_program.Read(Utf8(u8"Projects/工程-1/project.ini"), true),
              Utf8(u8"[Project]\nGCSY=1\nGCBH=工程-1\nGCMC=演示\nGCBZ=3\nConnect=\n"));
    EXPECT_EQ(m_program.Read("Projects/B/project.ini"),
              "[Project]\nGCSY=2\nGCBH=B\nGCMC=two\nGCBZ=0\nConnect=\n");
    EXPECT_EQ(m_program.Sql("Projects/B/project.db", "SELECT GCSY, GCBH, GCMC, GCBZ FROM x_GongCheng"),
              "2|B|two|0\n");
    std::filesystem::remove_all(m_program.Root() + Utf8(u8"/Projects/工程-1"));
    EXPECT_EQ(m_program.Do("new --root \"$ROOT\" --number C --name three"), "1\n");
}

TEST_F(New, LaysOutTheTablesInTheOrderOfTheSuite) {
    m_program.Do("new --root \"$ROOT\" --number A --name one");
    const auto columns = [&](const std::string& strTable) {
        return m_program.Sql("Projects/A/project.db",
                             "SELECT name FROM pragma_table_info('" + strTable + "')");
    };
    EXPECT_EQ(columns("z_c_SanZhou"),
              "GCSY\nZKBH\nQYBH\nSYFF\nSYRQ\nUUC\nUUF\nCUC\nCUF\nCUCE\nCUFE\nCDC\nCDF\n");
    EXPECT_EQ(columns("z_c_SanZhouCSXM"),
              "GCSY\nZKBH\nQYBH\nSJBH\nSHJHXH\nWY\nSYGD\nSYZJ\nCLHXS\nGJKXYL\nCLHDS\nZXBX\n"
              "JQPS\nKXYL\nGJPS\nJLLX\n");
    EXPECT_EQ(columns("z_c_QuYang"), "GCSY\nZKBH\nQYBH\nQYSD\nQYHD\nQYHSL\nQYLX\nQYSY\nQYYX\n");
    EXPECT_EQ(columns("z_g_TuCeng"), "GCSY\nZKBH\nTCCDSD\nTCHD\nTCMC\n");
    EXPECT_EQ(columns("x_GongCheng"), "GCSY\nGCBH\nGCMC\nGCBZ\nGCSJ\n");
    EXPECT_EQ(m_program.Sql("Projects/A/project.db",
                            "SELECT tbl_name FROM sqlite_master WHERE type = 'index' ORDER BY tbl_name"),
              "z_c_QuYang\nz_c_SanZhou\nz_c_SanZhouCSXM\n");
}

TEST_F(New, RefusesANumberThatIsThereOrCannotNameAFolder) {
    m_program.Do("new --root \"$ROOT\" --number A --name one");
    for (const char* pszNumber : {"A", "a/b", "'a\\b'", "..", "''", "' a'", "'a:b'", "'a\tb'"}) {
        const CRun run = m_program.Tvdata(std::string("new --root \"$ROOT\" --name x --number ") + pszNumber);
        EXPECT_EQ(run.m_nStatus, 1) << pszNumber;
        EXPECT_NE(run.m_strErrors, "") << pszNumber;
    }
}

TEST_F(New, NamesACharacterThatTheCodePageLacks) {
    const CRun run = m_program.Tvdata(Utf8(u8"new --root \"$ROOT\" --number A --name 名𠀀"));
    EXPECT_EQ(run.m_nStatus, 1);
    EXPECT_NE(run.m_strErrors.find(Utf8(u8"\"𠀀\"")), std::string::npos) << run.m_strErrors;
    EXPECT_FALSE(std::filesystem::exists(m_program.Root() + "/Projects/A"));
}

TEST_P(NewInShared, LaysOutTheTablesInTheOrderOfTheSuite) {
    m_program.Do("new --root \"$ROOT\" --number A --name one --connect \"$CONNECT\"");
    const auto columns = [&](const std::string& strTable) {
        const auto pRows = m_database.Connect()->Query("SELECT * FROM " + strTable);
        std::string strNames;
        for (const CDbColumn& column : pRows->Columns())
            strNames += (strNames.empty() ? "" : " ") + column.m_strName;
        for (char& c : strNames)
            c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        return strNames;
    };
    EXPECT_EQ(columns("z_c_SanZhou"), "GCSY ZKBH QYBH SYFF SYRQ UUC UUF CUC CUF CUCE CUFE CDC CDF");
    EXPECT_EQ(columns("z_c_SanZhouCSXM"),
              "GCSY ZKBH QYBH SJBH SHJHXH WY SYGD SYZJ CLHXS GJKXYL CLHDS ZXBX JQPS "
              "KXYL GJPS JLLX");
    EXPECT_EQ(columns("z_c_QuYang"), "GCSY ZKBH QYBH QYSD QYHD QYHSL QYLX QYSY QYYX");
    EXPECT_EQ(columns("z_g_TuCeng"), "GCSY ZKBH TCCDSD TCHD TCMC");
    EXPECT_EQ(columns("x_GongCheng"), "GCSY GCBH GCMC GCBZ GCSJ");
    EXPECT_EQ(Sql(GetParam() == TestEngine::Sqlite
                      ? "SELECT lower(tbl_name) FROM sqlite_master WHERE type = 'index' ORDER BY 1"
                      : "SELECT tablename FROM pg_indexes WHERE schemaname = 'public' AND indexdef LIKE "
                        "'%(gcsy, zkbh, qybh)' ORDER BY 1"),
              "z_c_quyang\nz_c_sanzhou\nz_c_sanzhoucsxm\n");
    EXPECT_EQ(Sql("SELECT val('12A'), isnumeric(left('9',1)), 'a'+'b'"), "12|-1|ab\n");
}

TEST_P(NewInShared, JoinsAProjectThatStandsInTheDatabase) {
    m_program.Do("new --root \"$ROOT\" --number A --name one");
    m_program.Do("new --root \"$ROOT/../other\" --number P --name first");
    EXPECT_EQ(m_program.Do(Utf8(u8"new --root \"$ROOT\" --number S --name 共有 --standard 7 --connect "
                                u8"\"$CONNECT\"")),
              "2\n");
    EXPECT_EQ(
        m_program.Do("new --root \"$ROOT/../other\" --number S --name elsewhere --connect \"$CONNECT\""),
        "2\n");
    const std::string strIni = ToUtf8(m_program.Folder().Read("other/Projects/S/project.ini"));
    EXPECT_NE(strIni.find(Utf8(u8"GCSY=2\nGCBH=S\nGCMC=共有\nGCBZ=7\n")), std::string::npos) << strIni;
    EXPECT_EQ(Sql("SELECT GCSY, GCBH, GCMC, GCBZ FROM x_GongCheng"), Utf8(u8"2|S|共有|7\n"));
    EXPECT_FALSE(std::filesystem::exists(m_program.Root() + "/Projects/S/project.db"));
}

TEST_P(NewInShared, RefusesToJoinWithAnIndexThatIsUsedHere) {
    m_program.Do("new --root \"$ROOT\" --number S --name shared --connect \"$CONNECT\"");
    m_program.Do("new --root \"$ROOT/../other\" --number P --name first");
    const CRun run =
        m_program.Tvdata("new --root \"$ROOT/../other\" --number S --name x --connect \"$CONNECT\"");
    EXPECT_EQ(run.m_nStatus, 1);
    EXPECT_NE(run.m_strErrors.find("S has index 1 in the database"), std::string::npos) << run.m_strErrors;
    EXPECT_FALSE(std::filesystem::exists(m_program.Folder().Path("other/Projects/S")));
}

TEST_P(NewInShared, CountsTheIndicesOfADatabaseThatIsShared) {
    EXPECT_EQ(m_program.Do("new --root \"$ROOT/../other\" --number P --name x --connect \"$CONNECT\""),
              "1\n");
    EXPECT_EQ(m_program.Do("new --root \"$ROOT\" --number A --name x"), "1\n");
    EXPECT_EQ(m_program.Do("new --root \"$ROOT\" --number Q --name x --connect \"$CONNECT\""), "2\n");
}

TEST_P(NewInShared, KeepsTablesThatAreThere) {
    const auto pDatabase = m_database.Connect();
    pDatabase->Execute("CREATE TABLE z_g_TuCeng (GCSY integer, ZKBH varchar(9), TCCDSD real, TCHD real, TCMC "
                       "varchar(9), more varchar(9))");
    pDatabase->Execute("INSERT INTO z_g_TuCeng VALUES (5,'K',1,1,'clay','x')");
    m_program.Do("new --root \"$ROOT\" --number A --name x --connect \"$CONNECT\"");
    EXPECT_EQ(Sql("SELECT * FROM z_g_TuCeng"), "5|K|1|1|clay|x\n");
    EXPECT_EQ(Sql("SELECT COUNT(*) FROM z_c_QuYang"), "0\n");
}

TEST_P(NewInShared, LeavesNothingBehindWhereItIsRefused) {
    const auto pDatabase = m_database.Connect();
    pDatabase->Execute("CREATE TABLE x_GongCheng (GCSY integer, GCBH varchar(9))");
    const CRun run = m_program.Tvdata("new --root \"$ROOT\" --number A --name x --connect \"$CONNECT\"");
    EXPECT_EQ(run.m_nStatus, 4);
    EXPECT_FALSE(std::filesystem::exists(m_program.Root() + "/Projects/A"));
    EXPECT_THROW((void)Sql("SELECT COUNT(*) FROM z_c_QuYang"), CDbError); // made, and undone
}

TEST_F(New, SaysInOneLineWhyADriversDatabaseCannotBeHad) {
    const auto refused = [&](const std::string& strConnect, const std::string& strPlace,
                             const std::string& strReason) {
        const CRun run = m_program.Tvdata(
            "new --root \"$ROOT\" --number A --name x --connect 'Provider=ODBC;" + strConnect + "'");
        EXPECT_EQ(run.m_nStatus, 4);
        EXPECT_TRUE(run.m_strErrors.starts_with("tvdata: " + strPlace + ": ")) << run.m_strErrors;
        EXPECT_EQ(run.m_strErrors.find('\n'), run.m_strErrors.size() - 1) << run.m_strErrors;
        EXPECT_NE(run.m_strErrors.find(strReason), std::string::npos) << run.m_strErrors;
        EXPECT_EQ(run.m_strErrors.find("hidden"), std::string::npos) << run.m_strErrors;
        EXPECT_FALSE(std::filesystem::exists(m_program.Root() + "/Projects/A"));
    };
    const std::string strServer = "Server=127.0.0.1;Port=9;Database=gc1;Uid=me;Pwd=hidden";
    refused("Driver=PostgreSQL Unicode;" + strServer, "database gc1 on 127.0.0.1:9", "Connection refused");
    refused("Driver=No Such Driver;" + strServer, "database gc1 on 127.0.0.1:9", "No Such Driver");
    refused("DSN=nowhere;Pwd=hidden", "data source nowhere", "Data source name not found");
}

TEST_F(New, UsesTheDatabaseThatTheInstallationNamesForEveryProject) {
    const std::string strIni = m_program.Root() + "/tervo.ini";
    EXPECT_EQ(
        m_program
            .Shell(
                "sed -i \"s|^ProjectConnect=.*|ProjectConnect=Provider=SQLite;Data Source=$ROOT/all.db|\" '" +
                strIni + "'")
            .m_nStatus,
        0);
    m_program.Do("new --root \"$ROOT\" --number A --name one");
    m_program.Do("new --root \"$ROOT\" --number B --name two");
    EXPECT_EQ(m_program.Sql("all.db", "SELECT GCSY, GCBH FROM x_GongCheng ORDER BY GCSY"), "1|A\n2|B\n");
}

TEST_F(New, SettlesARelativePathOfTheDatabase) {
    const CRun run = m_program.Shell("cd \"$ROOT/..\" && $T new --root root --number A --name x "
                                     "--connect 'Provider=SQLite;Data Source=own.db'");
    EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
    EXPECT_EQ(m_program.Do("list --root \"$ROOT\" --json"),
              "{\"projects\":[{\"GCSY\":1,\"GCBH\":\"A\",\"GCMC\":\"x\",\"GCBZ\":0,\"running\":false,"
              "\"samples\":[]}]}\n");
}

TEST_F(New, TakesAConnectionWithoutAProviderForAFile) {
    m_program.Do("new --root \"$ROOT\" --number A --name x --connect \"Data Source=$ROOT/plain.db\"");
    EXPECT_EQ(m_program.Sql("plain.db", "SELECT GCBH FROM x_GongCheng"), "A\n");
}

TEST_F(New, LeavesNothingBehindWhenTheDatabaseCannotBeHad) {
    const CRun run =
        m_program.Tvdata("new --root \"$ROOT\" --number A --name x --connect 'Provider=SQLite;Data "
                         "Source=/nonexistent/x.db'");
    EXPECT_EQ(run.m_nStatus, 4);
    EXPECT_FALSE(std::filesystem::exists(m_program.Root() + "/Projects/A"));
}
