#include "host/datamanager/new_project.h"

#include <gtest/gtest.h>

#include "tests/support/programs.h"

namespace {

class New : public testing::Test {
protected:
    New() { m_program.Do("init \"$ROOT\""); }

    CProgram m_program;
};

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

TEST_F(New, JoinsAProjectThatStandsInTheDatabase) {
    m_program.Do("new --root \"$ROOT\" --number A --name one");
    m_program.Do("init \"$ROOT/../other\"");
    m_program.Do("new --root \"$ROOT/../other\" --number P --name first");
    const std::string strConnect = " --connect \"Provider=SQLite;Data Source=$ROOT/../shared.db\"";
    EXPECT_EQ(m_program.Do("new --root \"$ROOT\" --number S --name shared --standard 7" + strConnect), "2\n");
    EXPECT_EQ(m_program.Do("new --root \"$ROOT/../other\" --number S --name elsewhere" + strConnect), "2\n");
    const std::string strIni = m_program.Folder().Read("other/Projects/S/project.ini");
    EXPECT_NE(strIni.find("GCSY=2\nGCBH=S\nGCMC=shared\nGCBZ=7\n"), std::string::npos) << strIni;
    EXPECT_EQ(m_program.Sql("../shared.db", "SELECT GCSY, GCBH, GCMC, GCBZ FROM x_GongCheng"),
              "2|S|shared|7\n");
    EXPECT_FALSE(std::filesystem::exists(m_program.Root() + "/Projects/S/project.db"));
}

TEST_F(New, RefusesToJoinWithAnIndexThatIsUsedHere) {
    const std::string strConnect = " --connect \"Provider=SQLite;Data Source=$ROOT/../shared.db\"";
    m_program.Do("new --root \"$ROOT\" --number S --name shared" + strConnect);
    m_program.Do("init \"$ROOT/../other\"");
    m_program.Do("new --root \"$ROOT/../other\" --number P --name first");
    const CRun run = m_program.Tvdata("new --root \"$ROOT/../other\" --number S --name x" + strConnect);
    EXPECT_EQ(run.m_nStatus, 1);
    EXPECT_NE(run.m_strErrors.find("S has index 1 in the database"), std::string::npos) << run.m_strErrors;
    EXPECT_FALSE(std::filesystem::exists(m_program.Folder().Path("other/Projects/S")));
}

TEST_F(New, CountsTheIndicesOfADatabaseThatIsShared) {
    const std::string strConnect = " --connect \"Provider=SQLite;Data Source=$ROOT/../shared.db\"";
    m_program.Do("init \"$ROOT/../other\"");
    EXPECT_EQ(m_program.Do("new --root \"$ROOT/../other\" --number P --name x" + strConnect), "1\n");
    EXPECT_EQ(m_program.Do("new --root \"$ROOT\" --number A --name x"), "1\n");
    EXPECT_EQ(m_program.Do("new --root \"$ROOT\" --number Q --name x" + strConnect), "2\n");
}

TEST_F(New, KeepsTablesThatAreThere) {
    const std::string strFile = m_program.Root() + "/../own.db";
    EXPECT_EQ(m_program
                  .Shell("sqlite3 '" + strFile +
                         "' \"CREATE TABLE z_g_TuCeng (GCSY, ZKBH, TCCDSD, TCHD, TCMC, more); "
                         "INSERT INTO z_g_TuCeng VALUES (5,'K',1,1,'clay','x')\"")
                  .m_nStatus,
              0);
    m_program.Do(
        "new --root \"$ROOT\" --number A --name x --connect \"Provider=SQLite;Data Source=" + strFile + "\"");
    EXPECT_EQ(m_program.Sql("../own.db", "SELECT * FROM z_g_TuCeng"), "5|K|1|1|clay|x\n");
    EXPECT_EQ(m_program.Sql("../own.db", "SELECT COUNT(*) FROM z_c_QuYang"), "0\n");
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
