#include "tests/support/programs.h"

#include <gtest/gtest.h>

namespace {
const char* const g_pChoice = "SELECT FileName, Path, GCBZ, Fun, Type FROM g_TervoTempletConfig";

class FrameChoice : public testing::Test {
protected:
    FrameChoice() { m_program.Do("init \"$ROOT\""); }
    std::string Choice() const { return m_program.Sql("Data/config.db", g_pChoice); }
    static std::string Row(const std::string& strFile) {
        return strFile + "|\\Templates|-1|" + Utf8(u8"三轴剪试验曲线|图框") + "\n";
    }

    const CProgram m_program;
};
} // namespace

TEST_F(FrameChoice, IsTheUprightSheetUntilAnotherIsChosen) {
    EXPECT_EQ(Choice(), Row("BREN-A4.dwg"));
    m_program.Do("template --root \"$ROOT\" BREN-A3.dwg");
    EXPECT_EQ(Choice(), Row("BREN-A3.dwg"));
    m_program.Do("template --root \"$ROOT\" bren-a4.DWG");
    EXPECT_EQ(Choice(), Row("BREN-A4.dwg")); // as the file is called
}

TEST_F(FrameChoice, TakesAFileOfTheUsersOwn) {
    EXPECT_FALSE(m_program.Folder().Write(Utf8(u8"root/Templates/本院图框.dwg"), "").empty());
    m_program.Do("template --root \"$ROOT\" " + Utf8(u8"本院图框.dwg"));
    EXPECT_EQ(Choice(), Row(Utf8(u8"本院图框.dwg")));
}

TEST_F(FrameChoice, IsMadeWhereTheConfigurationHasNone) {
    m_program.Sql("Data/config.db", "DELETE FROM g_TervoTempletConfig");
    m_program.Do("template --root \"$ROOT\" BREN-A3.dwg");
    EXPECT_EQ(Choice(), Row("BREN-A3.dwg"));
}

TEST_F(FrameChoice, IsRefusedForAFileThatIsNotInTheFolder) {
    for (const char* pFile : {"none.dwg", "../tervo.ini", "\"$ROOT/Templates/BREN-A3.dwg\"", "..", "\"\""}) {
        const CRun run = m_program.Tvdata(std::string("template --root \"$ROOT\" ") + pFile);
        EXPECT_EQ(run.m_nStatus, 1) << pFile;
        EXPECT_NE(run.m_strErrors.find("there is no such file in"), std::string::npos) << run.m_strErrors;
    }
    EXPECT_EQ(Choice(), Row("BREN-A4.dwg"));
}

TEST_F(FrameChoice, NeedsAFileAndTheConfigurationsDatabase) {
    EXPECT_EQ(m_program.Tvdata("template --root \"$ROOT\"").m_nStatus, 2);
    m_program.Sql("Data/config.db", "DROP TABLE g_TervoTempletConfig");
    EXPECT_EQ(m_program.Tvdata("template --root \"$ROOT\" BREN-A3.dwg").m_nStatus, 4);
    EXPECT_EQ(m_program.Tvdata("template --root /nowhere BREN-A3.dwg").m_nStatus, 4);
}
