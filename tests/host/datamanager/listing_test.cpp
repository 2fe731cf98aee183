#include "host/datamanager/listing.h"

#include <gtest/gtest.h>

#include "tests/support/programs.h"
#include "tests/support/test_database.h"

namespace {

class List : public testing::TestWithParam<TestEngine> {
protected:
    List() {
        setenv("CONNECT", m_database.ConnectionText().c_str(), 1);
        m_program.Do("init \"$ROOT\"");
        m_program.Do(
            Utf8(u8"new --root \"$ROOT\" --number G1 --name 演示 --standard 2 --connect \"$CONNECT\""));
    }
    void Import(const std::string& strText) {
        const std::string strFile = m_program.Folder().Write("import.csv", strText);
        m_program.Do("import --root \"$ROOT\" --number G1 '" + strFile + "'");
    }

    CTestDatabase m_database{GetParam()};
    CProgram m_program;
};

INSTANTIATE_TEST_SUITE_P(Engines, List, TestEngines(), TestEngineName);

} // namespace

TEST_P(List, ShowsSamplesOfAllTablesInNaturalOrder) {
    Import(Utf8(u8"ZKBH,QYBH,SYFF\nA1,1,固结排水剪\n10,2,\n9,10,固结排水剪\n9,2,固结排水剪\n"));
    Import("ZKBH,QYBH,SJBH,SHJHXH,WY,SYGD,SYZJ,CLHXS,GJKXYL,CLHDS,ZXBX,JQPS,KXYL,GJPS,JLLX\n"
           "9,10,1,1,50,75,37,1,0,1,1,0,0,0,0\n9,10,1,2,50,75,37,1,0,1,1,0,0,0,0\n9,9,1,1,50,75,37,1,0,1,1,0,"
           "0,0,0\n");
    EXPECT_EQ(m_program.Do("list --root \"$ROOT\" --json"),
              Utf8(u8"{\"projects\":[{\"GCSY\":1,\"GCBH\":\"G1\",\"GCMC\":\"演示\",\"GCBZ\":2,\"running\":"
                   u8"false,\"samples\":["
                   u8"{\"ZKBH\":\"9\",\"QYBH\":\"2\",\"SYFF\":\"固结排水剪\",\"readings\":0},"
                   u8"{\"ZKBH\":\"9\",\"QYBH\":\"9\",\"SYFF\":null,\"readings\":1},"
                   u8"{\"ZKBH\":\"9\",\"QYBH\":\"10\",\"SYFF\":\"固结排水剪\",\"readings\":2},"
                   u8"{\"ZKBH\":\"10\",\"QYBH\":\"2\",\"SYFF\":null,\"readings\":0},"
                   u8"{\"ZKBH\":\"A1\",\"QYBH\":\"1\",\"SYFF\":\"固结排水剪\",\"readings\":0}]}]}\n"));
    EXPECT_EQ(m_program.Do("list --root \"$ROOT\""), Utf8(u8"G1 演示 (GCSY 1, GCBZ 2)\n"
                                                          u8"  ZKBH  QYBH  SYFF        readings\n"
                                                          u8"  9     2     固结排水剪  0\n"
                                                          u8"  9     9                 1\n"
                                                          u8"  9     10    固结排水剪  2\n"
                                                          u8"  10    2                 0\n"
                                                          u8"  A1    1     固结排水剪  0\n"));
}

TEST_P(List, MarksTheRunningProject) {
    m_program.Do("new --root \"$ROOT\" --number G2 --name x");
    m_program.Do("open --root \"$ROOT\" --number G2");
    const std::string strList = m_program.Do("list --root \"$ROOT\" --json");
    EXPECT_NE(strList.find("\"GCSY\":1,\"GCBH\":\"G1\",\"GCMC\":\"" + Utf8(u8"演示") +
                           "\",\"GCBZ\":2,\"running\":false"),
              std::string::npos)
        << strList;
    EXPECT_NE(strList.find("\"GCSY\":2,\"GCBH\":\"G2\",\"GCMC\":\"x\",\"GCBZ\":0,\"running\":true"),
              std::string::npos)
        << strList;
}

TEST_P(List, TellsOfADatabaseThatCannotBeReadAndListsTheOthers) {
    m_program.Do("new --root \"$ROOT\" --number G2 --name x");
    // 9, one of the well-known ports, on which no database answers
    EXPECT_EQ(m_program
                  .Shell("sed -i -e 's|project\\.db|missing.db|' -e 's|Port=[0-9]*|Port=9|' "
                         "\"$ROOT/Projects/G1/project.ini\"")
                  .m_nStatus,
              0);
    const CRun run = m_program.Tvdata("list --root \"$ROOT\" --json");
    EXPECT_EQ(run.m_nStatus, 4);
    EXPECT_NE(run.m_strErrors.find("tvdata: G1: "), std::string::npos) << run.m_strErrors;
    EXPECT_NE(run.m_strOut.find("\"running\":false,\"samples\":null}"), std::string::npos) << run.m_strOut;
    EXPECT_NE(run.m_strOut.find("\"GCBH\":\"G2\""), std::string::npos) << run.m_strOut;
}

TEST_P(List, IsEmptyWithoutProjects) {
    std::filesystem::remove_all(m_program.Root() + "/Projects/G1");
    EXPECT_EQ(m_program.Do("list --root \"$ROOT\" --json"), "{\"projects\":[]}\n");
    EXPECT_EQ(m_program.Do("list --root \"$ROOT\""), "");
}

TEST_P(List, TakesTheRootOfTheEnvironment) {
    EXPECT_EQ(m_program.Shell("TERVO_ROOT=\"$ROOT\" $T list").m_strOut,
              Utf8(u8"G1 演示 (GCSY 1, GCBZ 2)\n  ZKBH  QYBH  SYFF  readings\n"));
    EXPECT_EQ(m_program.Shell("XDG_DATA_HOME=\"$ROOT\" $T list").m_nStatus, 4);
    EXPECT_EQ(
        m_program.Shell("ln -s root \"$ROOT/../tervo\" && XDG_DATA_HOME=\"$ROOT/..\" $T list").m_nStatus, 0);
}
