// Chart drawings stored in the output tree, listed and opened, in real runs.

#include "tests/road/bren_project.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {
const std::string g_strFolder = "/Output/GC1/" + Utf8(u8"室内曲线") + "/";

std::string Shown(const std::string& strName) {
    return Utf8(u8"试样") + strName;
}

/// A project with samples, and the first of them stored as a drawing that reaches beyond its sheet.
class StoredCharts : public testing::Test {
protected:
    StoredCharts() { Store("BREN\n" + Selection("1", "1-1") + "0,0\nLINE 0,0 1000,800\n", "BR1-1-1"); }

    std::string File(const std::string& strTitle) const {
        return m_project.m_program.Root() + g_strFolder + strTitle + ".dwg";
    }
    void Store(const std::string& strScript, const std::string& strTitle) const {
        const CRun run = m_project.Run(strScript + "SAVECHARTS\nDOCUMENTS\n");
        const std::string strSaved = "saved " + File(strTitle) + "\n1 * " + File(strTitle) + "\n";
        EXPECT_TRUE(run.m_strOut.ends_with(strSaved)) << run.m_strOut;
        EXPECT_TRUE(std::filesystem::exists(File(strTitle)));
    }
    /// What a refused SAVECHARTS says.
    std::string Refusal(const std::string& strScript) const {
        const CRun run = m_project.m_program.Tvcad(strScript + "SAVECHARTS\n");
        EXPECT_EQ(run.m_nStatus, 5);
        return run.m_strErrors.substr(run.m_strErrors.find(": ") + 2);
    }
    /// The line that adds a chart of these numbers.
    std::string Chart(const char* pGCBH, const std::string& strZKBH, const std::string& strQYBH) const {
        const CJson chart{{"class", "CBRENChart"},
                          {"fields", {{"m_strGCBH", pGCBH}, {"m_strZKBH", strZKBH}, {"m_strQYBH", strQYBH}}}};
        return "ADDENTITY " + m_project.m_program.Folder().Write("chart.json", chart.dump()) + "\n";
    }

    const CBrenProject m_project{CMeasuredSamples{
        {"1", "1-1", "smith-exc4.4"}, {"1", "1-2", "smith-ex3.4"}, {"10", "1-1", "smith-exc4.4"}}};
};
} // namespace

TEST_F(StoredCharts, AreNamedByTheirBoreholeAndSamples) {
    Store("BREN\n" + Selection("1", "1-2") + "0,0\nBREN\n" + Selection("1", "1-1") + "300,0\n",
          "BR1-1-2~1-1");
    Store("BREN\n" + Selection("10", "1-1") + "0,0\nBREN\n" + Selection("10", "1-1") + "300,0\n", "BR10-1-1");
}

TEST_F(StoredCharts, OfSeveralBoreholesHaveTheNameOfAllSamples) {
    Store("BREN\ncheck 1063\nok\n0,0\n", Utf8(u8"BR全部-全部试样"));
}

TEST_F(StoredCharts, GoIntoAFolderThatDiffersByCase) {
    const std::filesystem::path root(m_project.m_program.Root());
    std::filesystem::rename(root / "Output", root / "output");
    const CRun run = m_project.Run("BREN\n" + Selection("1", "1-2") + "0,0\nSAVECHARTS\n");
    EXPECT_FALSE(std::filesystem::exists(root / "Output")) << run.m_strOut;
    EXPECT_TRUE(std::filesystem::exists(root.string() + "/output" + g_strFolder.substr(7) + "BR1-1-2.dwg"));
}

TEST_F(StoredCharts, AreRefusedWhereTheyHaveNoName) {
    EXPECT_EQ(Refusal("LINE 0,0 1,1\n"), "the drawing has no chart\n");
    EXPECT_EQ(Refusal(Chart("GC2", "1", "1-1")), "chart #60 is of project \"GC2\", not of \"GC1\"\n");
    EXPECT_EQ(Refusal(Chart("GC1", "1/2", "1-1")), "chart #60: \"1/2\" cannot stand in a file name\n");
    EXPECT_EQ(Refusal(Chart("GC1", "1", "a|b")), "chart #60: \"a|b\" cannot stand in a file name\n");
    EXPECT_EQ(Refusal(Chart("GC1", "", "1")), "chart #60: \"\" cannot stand in a file name\n");
    m_project.m_program.Do("close --root \"$ROOT\"");
    EXPECT_EQ(Refusal(""), "no project is running\n");
}

TEST_F(StoredCharts, WhoseFolderCannotBeMadeAreNotSaved) {
    const std::string strOutput = m_project.m_program.Root() + "/Output";
    std::filesystem::remove_all(strOutput);
    m_project.m_program.Folder().Write("root/Output", "a file");
    const CRun run = m_project.m_program.Tvcad("BREN\n" + Selection("1", "1-1") + "0,0\nSAVECHARTS\n");
    EXPECT_EQ(run.m_nStatus, 4);
    EXPECT_NE(run.m_strErrors.find("cannot be made: "), std::string::npos) << run.m_strErrors;
}

TEST_F(StoredCharts, OpenInADocumentOfTheirOwnZoomedToTheirExtents) {
    const CRun opened = m_project.Run("OPEN \"" + File("BR1-1-1") + "\"\nSETVAR VIEWSIZE\n");
    EXPECT_EQ(opened.m_strOut, "297\n");
    const CRun run = m_project.Run("BROPEN\nshow\nselect 1056 " + Shown("1-1-1") +
                                   "\nok\nDOCUMENTS\nSETVAR VIEWSIZE\n" + m_project.Dump());
    EXPECT_NE(run.m_strOut.find(Utf8(u8"dialog 1005 \"查看三轴剪切试验成果图\"\n")), std::string::npos)
        << run.m_strOut;
    EXPECT_NE(run.m_strOut.find("    \"" + Shown("1-1-1") + "\"\n"), std::string::npos) << run.m_strOut;
    EXPECT_TRUE(run.m_strOut.ends_with("\n1   Drawing1\n2 * " + File("BR1-1-1") + "\n1000\n"))
        << run.m_strOut;
    EXPECT_EQ(m_project.Charts().size(), 1U);
}

TEST_F(StoredCharts, TakeTheCurrentDrawingsPlaceInSingleDocumentMode) {
    const CRun run = m_project.Run("SETVAR SDI 1\nBROPEN\ndblclick 1056 " + Shown("1-1-1") + "\nDOCUMENTS\n");
    EXPECT_EQ(run.m_strOut, "1 * " + File("BR1-1-1") + "\n");
}

TEST_F(StoredCharts, OpenNotAtAllWhenSeveralAreChosen) {
    std::filesystem::copy_file(File("BR1-1-1"), File("BR1-2"));
    const CRun run = m_project.Run("BROPEN\nselect 1056 all\nok\nDOCUMENTS\n");
    EXPECT_EQ(run.m_strOut, "1 * Drawing1\n");
}

TEST_F(StoredCharts, AreListedUnderTheirBorehole) {
    Store("BREN\n" + Selection("1", "all") + "0,0\n", "BR1-1-1~1-2");
    Store("BREN\ncheck 1063\nok\n0,0\n", Utf8(u8"BR全部-全部试样"));
    const CRun run = m_project.Run("BROPEN\nselect 1055 10\nselect 1055 1\nshow\nselect 1055 " +
                                   Utf8(u8"全部") + "\nshow\ncancel\n");
    EXPECT_NE(run.m_strOut.find("  > \"1\"\n    \"10\"\n    \"" + Utf8(u8"全部") + "\"\n"), std::string::npos)
        << run.m_strOut;
    EXPECT_NE(
        run.m_strOut.find("    \"" + Shown("1-1-1") + "\"\n    \"" + Shown(Utf8(u8"1-1-1和1-2")) + "\"\n"),
        std::string::npos)
        << run.m_strOut;
    EXPECT_NE(run.m_strOut.find("multilist enabled \"\" 1\n    \"" + Shown(Utf8(u8"全部-全部试样")) + "\"\n"),
              std::string::npos)
        << run.m_strOut;
}
