// Chart drawings stored in the output tree, listed and opened, in real runs.

#include "tests/road/bren_project.h"

#include <filesystem>
#include <fstream>
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

TEST_F(StoredCharts, AreRefusedInAProjectThatCannotNameAFolder) {
    for (const char* pGCBH : {"..", "1/2", "GC.", ""}) {
        EXPECT_EQ(m_project.m_program
                      .Shell("sed -i 's|^GCBH=.*|GCBH=" + std::string(pGCBH) + "|' \"$ROOT/Project.ini\"")
                      .m_nStatus,
                  0);
        EXPECT_EQ(Refusal(Chart(pGCBH, "1", "1-1")),
                  "project \"" + std::string(pGCBH) + "\" cannot name a folder\n");
    }
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

TEST_F(StoredCharts, AskBeforeTheyTakeTheChangedDrawingsPlace) {
    const std::string strScript =
        "SETVAR SDI 1\nLINE 0,0 1,1\nBROPEN\ndblclick 1056 " + Shown("1-1-1") + "\n";
    EXPECT_EQ(m_project.Run(strScript + "cancel\nDOCUMENTS\n").m_strOut, "1 * Drawing1 (changed)\n");
    EXPECT_EQ(m_project.Run(strScript + "no\nDOCUMENTS\n").m_strOut, "1 * " + File("BR1-1-1") + "\n");
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

TEST_F(StoredCharts, AreNoneInAnEmptyOrMissingFolder) {
    const std::filesystem::path file = File("BR1-1-1"), folder = file.parent_path();
    for (const std::filesystem::path& gone : {file, folder, folder.parent_path()}) {
        std::filesystem::remove_all(gone);
        const CRun run = m_project.Run("BROPEN\nok\nshow\ncancel\nDOCUMENTS\n");
        EXPECT_TRUE(run.m_strOut.starts_with(Utf8(u8"[Tervo] 请选择试样,然后确认!\n"))) << run.m_strOut;
        EXPECT_NE(run.m_strOut.find("  > \"1\"\n    \"10\"\n"), std::string::npos) << run.m_strOut;
        EXPECT_NE(run.m_strOut.find("1056 multilist enabled \"\" 0\n"), std::string::npos) << run.m_strOut;
        EXPECT_TRUE(run.m_strOut.ends_with("\n1 * Drawing1\n")) << run.m_strOut;
    }
}

TEST_F(StoredCharts, AreListedAmongFilesOfOtherPrograms) {
    const std::filesystem::path folder = std::filesystem::path(File("x")).parent_path();
    for (const char* pOther :
         {"MV1-1.dwg", "1-1.dwg", "BR1-1.bak", "BR1-1.dwg.bak", "BR1.dwg", "BR.dwg", ".dwg"})
        std::ofstream(folder / pOther) << "other";
    std::filesystem::create_directory(folder / "BR1-8.dwg");
    std::ofstream(folder / "BR1-9.dwg") << "no drawing";
    std::filesystem::create_symlink("nowhere", folder / "BR1-7.dwg");
    const std::string strOut = m_project.Run("BROPEN\nshow\ncancel\n").m_strOut;
    EXPECT_NE(strOut.find("1056 multilist enabled \"\" 3\n    \"" + Shown("1-1-1") + "\"\n    \"" +
                          Shown("1-8") + "\"\n    \"" + Shown("1-9") + "\"\n1 button"),
              std::string::npos)
        << strOut;
    for (const char* pNone : {"1-8", "1-9"})
        EXPECT_EQ(m_project.Run("BROPEN\nselect 1056 " + Shown(pNone) + "\nok\nDOCUMENTS\n").m_strOut,
                  "1 * Drawing1\n");
}

TEST_F(StoredCharts, AreFoundInAnyCaseButForTheBorehole) {
    const std::filesystem::path output = m_project.m_program.Root() + "/Output";
    std::filesystem::rename(File("BR1-1-1"),
                            std::filesystem::path(File("x")).replace_filename("br1-1-1.DWG"));
    std::filesystem::rename(output / "GC1", output / "gc1");
    std::filesystem::rename(output, output.parent_path() / "OUTPUT");
    const CRun run = m_project.Run("BROPEN\nselect 1056 " + Shown("1-1-1") + "\nok\nDOCUMENTS\n");
    EXPECT_EQ(run.m_strOut, "1   Drawing1\n2 * " + m_project.m_program.Root() + "/OUTPUT/gc1/" +
                                Utf8(u8"室内曲线") + "/br1-1-1.DWG\n");
}

TEST(StoredChartsOfHyphens, AreListedUnderEachBoreholeThatTheirNameBeginsWith) {
    const CBrenProject project(CMeasuredSamples{{"A", "1", "smith-exc4.4"},
                                                {"A-1", "2", "smith-ex3.4"},
                                                {"ZK1", "1-1", "smith-exc4.4"},
                                                {"zk1", "1-1", "smith-exc4.4"}});
    for (const auto& [strZKBH, strQYBH] :
         {std::pair{"A", "1"}, std::pair{"A-1", "2"}, std::pair{"ZK1", "1-1"}})
        project.Run("BREN\n" + Selection(strZKBH, strQYBH) + "0,0\nSAVECHARTS\n");
    const auto listed = [&](const std::string& strZKBH) {
        const std::string strOut =
            project.Run("BROPEN\nselect 1055 " + strZKBH + "\nshow\ncancel\n").m_strOut;
        const std::size_t nStart = strOut.find("1056 multilist"), nEnd = strOut.find("1 button");
        return strOut.substr(nStart, nEnd - nStart);
    };
    const std::string strList = "1056 multilist enabled \"\" ";
    EXPECT_EQ(listed("A"), strList + "2\n    \"" + Shown("A-1-2") + "\"\n    \"" + Shown("A-1") + "\"\n");
    EXPECT_EQ(listed("A-1"), strList + "1\n    \"" + Shown("A-1-2") + "\"\n");
    EXPECT_EQ(listed("ZK1"), strList + "1\n    \"" + Shown("ZK1-1-1") + "\"\n");
    EXPECT_EQ(listed("zk1"), strList + "0\n");
    const CRun run =
        project.Run("BROPEN\nselect 1055 A-1\nselect 1056 " + Shown("A-1-2") + "\nok\nDOCUMENTS\n");
    EXPECT_TRUE(run.m_strOut.ends_with("/BRA-1-2.dwg\n")) << run.m_strOut;
}

TEST(StoredChartsOfOddBytes, AreListedAndOpenedAsOthersAre) {
    // In the code page their second bytes are a backslash, a bar and a tilde.
    const std::string strZKBH = Utf8(u8"乗倈"), strQYBH = Utf8(u8"儈");
    const CBrenProject project(
        CMeasuredSamples{{strZKBH, strQYBH, "smith-exc4.4"}, {strZKBH, strQYBH + "2", "smith-ex3.4"}});
    project.Run("BREN\n" + Selection(strZKBH, "all") + "0,0\nSAVECHARTS\n");
    const CRun run =
        project.Run("BROPEN\nselect 1056 " + Shown(strZKBH + "-" + strQYBH + Utf8(u8"和") + strQYBH) +
                    "2\nok\nDOCUMENTS\n");
    EXPECT_TRUE(run.m_strOut.ends_with("/BR" + strZKBH + "-" + strQYBH + "~" + strQYBH + "2.dwg\n"))
        << run.m_strOut;
}
