// Lines of a megabyte where a line is a few words.

#include "tests/road/bren_project.h"

#include <gtest/gtest.h>

namespace {
constexpr std::size_t g_nMegabyte = 1U << 20U;
const std::string g_strLong(g_nMegabyte, 'x');

class LongLines : public testing::Test {
protected:
    /// What an import of a file says that is refused for its first line after the header.
    std::string Refusal(const std::string& strCsv) const {
        m_program.Folder().Write("long.csv", strCsv);
        const CRun run = m_program.Shell("cd \"$ROOT/..\" && $T import --root root --number GC1 long.csv");
        EXPECT_EQ(run.m_nStatus, 1);
        EXPECT_EQ(m_project.Sql("SELECT COUNT(*) FROM z_g_TuCeng"), "1\n");
        return run.m_strErrors;
    }
    void ExpectASheet() const {
        m_project.Run("BREN\n" + Selection("1", "1-1") + "0,0\n" + m_project.Dump());
        EXPECT_EQ(m_project.Charts().size(), 1U);
    }

    const CBrenProject m_project{g_arOneSample};
    const CProgram& m_program = m_project.m_program;
};
} // namespace

TEST_F(LongLines, OfIniFilesArePassedOverAndKept) {
    const std::string strLong = ";" + g_strLong + "\n" + g_strLong + "\n[" + g_strLong + "]\n" + g_strLong +
                                "=" + g_strLong + "\n" + std::string(g_nMegabyte, '[') + "\n";
    for (const char* pName : {"Project.ini", "Marks.ini", "Projects/GC1/project.ini"})
        m_program.Folder().Write(std::string("root/") + pName,
                                 m_program.Folder().Read(std::string("root/") + pName) + strLong);
    ExpectASheet();
    EXPECT_EQ(m_project.Marks("SYQXGC1"), "1");
    EXPECT_EQ(m_project.Results().size(), 1U);
    m_program.Do("close --root \"$ROOT\"");
    const std::string strIni = m_program.Read("Project.ini");
    EXPECT_NE(strIni.find("GCSY=-1\n"), std::string::npos);
    EXPECT_TRUE(strIni.ends_with(strLong));
}

TEST_F(LongLines, OfIniFilesAreNoNames) {
    for (const char* pKey : {"GCBH", "GCMC", "GCSY", "Database", "Connect"}) {
        m_program.Do("open --root \"$ROOT\" --number GC1");
        m_program.Folder().Write("root/Project.ini", "[Project]\n" + std::string(pKey) + "=" + g_strLong +
                                                         "\n" + m_program.Read("Project.ini"));
        const CRun run = m_program.Tvcad("BREN\ncancel\n");
        EXPECT_TRUE(run.m_nStatus == 0 || run.m_nStatus == 5) << pKey << run.m_nStatus << run.m_strErrors;
        EXPECT_LT(run.m_strOut.size() + run.m_strErrors.size(), g_nMegabyte) << pKey;
    }
    m_program.Folder().Write("root/Project.ini", "[Project]\nGCSY=-1\n");
    m_program.Folder().Write("root/Projects/GC1/project.ini",
                             "[Project]\nGCSY=1\nGCBH=" + g_strLong + "\nGCMC=" + g_strLong + "\nGCBZ=0\n");
    m_program.Do("open --root \"$ROOT\" --number GC1");
    ExpectASheet();
}

TEST_F(LongLines, OfCsvFilesAreRefusedInAShortLine) {
    const std::string strHeader = "ZKBH,TCCDSD,TCHD,TCMC\n";
    const auto expect = [&](const std::string& strCsv, const std::string& strStart) {
        const std::string strErrors = Refusal(strCsv);
        EXPECT_EQ(strErrors.substr(0, strStart.size()), strStart);
        EXPECT_LT(strErrors.size(), 1000U) << strStart;
    };
    expect(strHeader + g_strLong + ",1,1,x\n", "long.csv:2: ZKBH: ");
    expect(strHeader + "1," + std::string(g_nMegabyte, '1') + ",1,x\n", "long.csv:2: TCCDSD: ");
    expect(strHeader + "1,1,1,\"" + g_strLong + "\n", "long.csv:2: TCMC: ");
    expect(strHeader + std::string(g_nMegabyte, ',') + "\n", "long.csv:2: ");
    expect(strHeader + "1,1,1,\"x\"" + g_strLong + "\n", "long.csv:2: TCMC: ");
    expect("ZKBH,TCCDSD,TCHD,TCMC," + g_strLong + "\n1,1,1,x,y\n", "long.csv:1: ");
    expect(g_strLong + "\n", "long.csv:1: ");
}

TEST_F(LongLines, OfCsvFilesAreCutBetweenCharacters) {
    std::string strErrors;
    for (const char* pBefore : {"", "a", "ab"}) {
        std::string strNumber = pBefore;
        while (strNumber.size() < 3000)
            strNumber += Utf8(u8"粘");
        strErrors = Refusal("ZKBH,TCCDSD,TCHD,TCMC\n1," + strNumber + ",1,x\n");
        EXPECT_NE(strErrors.find(Utf8(u8"粘...粘")), std::string::npos) << strErrors;
        EXPECT_TRUE(
            strErrors.ends_with(Utf8(u8"粘\" is no decimal number within the range of a 4-byte float\n")))
            << strErrors;
    }
}

TEST_F(LongLines, OfScriptsAreAnswersOrRefused) {
    EXPECT_EQ(m_project.Run(";" + g_strLong + "\nTEXT 0,0 5 " + g_strLong + "\n" + m_project.Dump())
                  .m_strErrors.find("script:"),
              std::string::npos);
    EXPECT_EQ(m_project.Entities()[0]["text"].get<std::string>().size(), g_nMegabyte);
    for (const std::string& strLine :
         {g_strLong, "LINE " + g_strLong, "OPEN " + g_strLong, "SAVEAS " + g_strLong + ".dwg",
          "BREN\nselect 1010 " + g_strLong, std::string(g_nMegabyte, '"')}) {
        const CRun run = m_program.Tvcad(strLine + "\n");
        EXPECT_TRUE(run.m_nStatus == 4 || run.m_nStatus == 5) << run.m_nStatus << strLine.substr(0, 20);
    }
}
