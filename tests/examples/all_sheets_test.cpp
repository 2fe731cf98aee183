// examples/all-sheets: every sample of a project on a page of one PDF file.

#include "tests/examples/demo_project.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {
const std::vector<std::string> g_arSamples = {"ZK1-1-1",  "ZK1-1-2",   "ZK1-1-3",   "ZK2-2-1",  "ZK2-2-2",
                                              "ZK2-2-10", "ZK10-10-1", "ZK10-10-2", "ZK10-10-3"};

/// The word that follows the first such caption of a page.
std::string WordBehind(const std::string& strPage, const std::string& strCaption) {
    const std::size_t nAt = strPage.find(strCaption);
    std::string strWord;
    if (nAt != std::string::npos) std::istringstream(strPage.substr(nAt + strCaption.size())) >> strWord;
    return strWord;
}

class AllSheets : public testing::Test, protected CDemoProject {
protected:
    void Sql(const std::string& strSql) const { m_program.Sql("Projects/DEMO-01/project.db", strSql); }
    void ExpectAllPages(const std::string& strFile) const {
        const std::vector<std::string> arPages = Pages(strFile);
        ASSERT_EQ(arPages.size(), g_arSamples.size());
        for (std::size_t i = 0; i < arPages.size(); ++i)
            EXPECT_EQ(WordBehind(arPages[i], Utf8(u8"试样编号：")), g_arSamples[i]) << arPages[i];
    }
};
} // namespace

TEST_F(AllSheets, MakesAPageForEachSampleInOrderAndStoresItsValues) {
    const CRun run = Example("all-sheets --root \"$ROOT\" --number DEMO-01 all.pdf");
    EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
    EXPECT_EQ(run.m_strErrors, "");
    ExpectAllPages("all.pdf");
    EXPECT_EQ(Values("ZK1", "1-1")["UUC"], 135.18);
    EXPECT_EQ(Values("ZK2", "2-10")["CDC"], 13.75);
    EXPECT_EQ(Values("ZK10", "10-3")["CUFE"], 32.89);
}

TEST_F(AllSheets, GivesEachFrameTheBoreholeOfItsSample) {
    EXPECT_EQ(Example("all-sheets --root \"$ROOT\" --number DEMO-01 all.pdf").m_nStatus, 0);
    for (const std::string& strPage : Pages("all.pdf")) {
        const std::string strHole = WordBehind(strPage, Utf8(u8"钻孔编号"));
        EXPECT_EQ(WordBehind(strPage, Utf8(u8"试样编号：")).substr(0, strHole.size() + 1), strHole + "-")
            << strPage;
    }
}

TEST_F(AllSheets, LeavesTheRunningProjectAloneAndMarksTheSamples) {
    MakeDemoProject(m_program, "GC 2");
    const std::string strProject = m_program.Read("Project.ini");
    const std::string strLog = m_program.Read("datamanager.log");
    const CRun run = Example("all-sheets --root \"$ROOT\" --number 'GC 2' 'all of 2.pdf'");
    EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
    ExpectAllPages("all of 2.pdf");
    EXPECT_EQ(Values("ZK10", "10-3", "GC 2")["CUFE"], 32.89);
    EXPECT_TRUE(Values("ZK10", "10-3")["CUFE"].is_null());
    EXPECT_EQ(m_program.Read("Project.ini"), strProject);
    EXPECT_EQ(m_program.Read("datamanager.log"), strLog);
    EXPECT_NE(m_program.Read("Marks.ini").find("SYQXGC 2ZK2=2-1@2-2@2-10"), std::string::npos);
}

TEST_F(AllSheets, KeepsTheWideSheetsOfStandard2Apart) {
    MakeDemoProject(m_program, "GC-2", 2);
    m_program.Do("template --root \"$ROOT\" BREN-A3.dwg");
    const CRun run = Example("all-sheets --root \"$ROOT\" --number GC-2 all.pdf");
    EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
    ExpectAllPages("all.pdf");
    for (const std::string& strPage : Pages("all.pdf"))
        EXPECT_EQ(strPage.find(Utf8(u8"试样编号")), strPage.rfind(Utf8(u8"试样编号"))) << strPage;
}

TEST_F(AllSheets, TakesTheProgramsOfThePathAndTheRootOfTheEnvironment) {
    const CRun run = m_program.Shell("cd '" + Folder().Path() +
                                     "' && env -u TERVO_BIN PATH=\"" TERVO_BIN
                                     ":$PATH\" TERVO_ROOT=\"$ROOT\" " TERVO_EXAMPLES
                                     "/all-sheets --number DEMO-01 all.pdf");
    EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
    ExpectAllPages("all.pdf");
}

TEST_F(AllSheets, PassesOnThatTheDatabaseCannotBeRead) {
    std::ofstream(m_program.Root() + "/Projects/DEMO-01/project.db") << "no database";
    const CRun run = Example("all-sheets --root \"$ROOT\" --number DEMO-01 all.pdf");
    EXPECT_EQ(run.m_nStatus, 4);
    EXPECT_NE(run.m_strErrors.find("tvdata: "), std::string::npos) << run.m_strErrors;
    EXPECT_FALSE(std::filesystem::exists(Folder().Path("all.pdf")));
}

TEST_F(AllSheets, PassesOnThatTheRunCouldNotGoOnAtASampleWithoutMethod) {
    Sql("UPDATE z_c_SanZhou SET SYFF = NULL WHERE QYBH = '2-2'");
    const CRun run = Example("all-sheets --root \"$ROOT\" --number DEMO-01 all.pdf");
    EXPECT_EQ(run.m_nStatus, 5);
    EXPECT_NE(run.m_strOut.find(Utf8(u8"试样【2-2】中没有试验方法")), std::string::npos) << run.m_strOut;
    EXPECT_FALSE(std::filesystem::exists(Folder().Path("all.pdf")));
}

TEST_F(AllSheets, FailsWhereASampleWasDrawnButNotStored) {
    Sql("CREATE TRIGGER refuses BEFORE UPDATE ON z_c_SanZhou WHEN new.QYBH = '2-2' BEGIN "
        "SELECT RAISE(ABORT, 'refused'); END");
    const CRun run = Example("all-sheets --root \"$ROOT\" --number DEMO-01 all.pdf");
    EXPECT_EQ(run.m_nStatus, 1) << run.m_strOut;
    EXPECT_NE(run.m_strErrors.find("not every sample of DEMO-01 was drawn and stored"), std::string::npos);
    ExpectAllPages("all.pdf");
    EXPECT_EQ(Values("ZK2", "2-10")["CDC"], 13.75) << "the samples after it";
}

TEST_F(AllSheets, FailsWhereNoSampleHasReadings) {
    Sql("DELETE FROM z_c_SanZhouCSXM");
    const CRun run = Example("all-sheets --root \"$ROOT\" --number DEMO-01 all.pdf");
    EXPECT_EQ(run.m_nStatus, 1);
    EXPECT_EQ(run.m_strErrors, "all-sheets: no sample of DEMO-01 has readings\n");
}

TEST_F(AllSheets, RefusesWhatItCannotDoAndLeavesNothing) {
    const auto expectRefused = [this](const std::string& strArguments, int nStatus,
                                      const std::string& strError) {
        const CRun run = Example("all-sheets " + strArguments);
        EXPECT_EQ(run.m_nStatus, nStatus) << strArguments;
        EXPECT_EQ(run.m_strErrors.find("all-sheets: " + strError), 0U) << run.m_strErrors;
        EXPECT_FALSE(std::filesystem::exists(Folder().Path("all.pdf"))) << strArguments;
    };
    expectRefused("", 2, "no project number; usage: ");
    expectRefused("--number", 2, "--number needs a value; usage: ");
    expectRefused("--number DEMO-01", 2, "no FILE.pdf; usage: ");
    expectRefused("--number DEMO-01 all.svg", 2, "no FILE.pdf; usage: ");
    expectRefused("--number DEMO-01 all.pdf two.pdf", 2, "one FILE.pdf, not two; usage: ");
    expectRefused("--everything all.pdf", 2, "unknown option --everything; usage: ");
    expectRefused("--root \"$ROOT\" --number GC-9 all.pdf", 1, "there is no project GC-9 in ");
    expectRefused("--root nowhere --number DEMO-01 all.pdf", 4, "nowhere: there is no installation");
}
