// A generated sheet goes to a file and is opened by another run of the program.

#include "tests/road/bren_project.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

/// A dump as it is after the drawing was saved and opened: one field of a chart is in no record.
CJson Reopened(CJson dump) {
    for (CJson& entity : dump["modelSpace"])
        if (entity["class"] == "CBRENChart") entity["fields"]["m_bColorChanging"] = 0;
    return dump;
}

class DrawingFilesRoad : public testing::Test {
protected:
    std::string File(const std::string& strName) const { return m_project.m_program.Folder().Path(strName); }
    CJson Dumped(const std::string& strName) const {
        return CJson::parse(m_project.m_program.Folder().Read(strName));
    }
    /// Generates the sheet, then does what the script says.
    CRun Generate(const std::string& strThen) const {
        return m_project.Run("BREN\n" + Selection("ZK1", "1-1") + "0,0\n" + strThen);
    }

    /// What a run without the module printed; it must end well.
    std::string RunWithoutModule(const std::string& strScript) const {
        const CProgram& program = m_project.m_program;
        const std::string strFile = program.Folder().Write("without.scr", strScript);
        const CRun run =
            program.Shell(TERVO_BIN "/tvcad --root \"$ROOT\" --load none -q -s '" + strFile + "'");
        EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
        return run.m_strOut;
    }

    const CBrenProject m_project{CMeasuredSamples{{"ZK1", "1-1", "mafra-ciu"}}};
};

} // namespace

TEST_F(DrawingFilesRoad, AChartComesBackFromADwgFileAsTheChartThatItWas) {
    EXPECT_EQ(Generate("SAVEAS " + File("sheet.dwg") + "\nDUMP " + File("one.json") + "\n").m_strErrors, "");
    const CRun opened = m_project.Run("OPEN " + File("SHEET.dwg") + "\nDUMP " + File("two.json") +
                                      "\nLINE 0,0 1,1\nQSAVE\nQUIT\n");
    EXPECT_EQ(opened.m_strErrors, "");
    EXPECT_EQ(opened.m_strOut, "");
    EXPECT_NE(Classes(Dumped("one.json")["modelSpace"]).find("BRENChart"), std::string::npos);
    EXPECT_EQ(Dumped("two.json"), Reopened(Dumped("one.json")));
    m_project.Run("OPEN " + File("sheet.bak") + "\nDUMP " + File("bak.json") + "\n");
    EXPECT_EQ(Dumped("bak.json")["modelSpace"], Dumped("two.json")["modelSpace"]);
}

TEST(DrawingFilesRoadOfMany, AHundredSheetsComeBackAsTheyWere) {
    CSamples samples;
    for (int i = 1; i <= 100; ++i)
        samples.push_back({"1", "1-" + std::to_string(i)});
    const CBrenProject project(samples);
    const auto path = [&](const char* pName) { return project.m_program.Folder().Path(pName); };
    const auto dumped = [&](const char* pName) {
        return CJson::parse(project.m_program.Folder().Read(pName));
    };
    project.Run("BREN\ncheck 1063\nok\n0,0\nSAVEAS " + path("all.dwg") + "\nDUMP " + path("one.json") + "\n");
    project.Run("OPEN " + path("all.dwg") + "\nDUMP " + path("two.json") + "\n");
    EXPECT_EQ(dumped("one.json")["modelSpace"].size(), 400U) << "a reference, a chart and two texts each";
    EXPECT_EQ(dumped("two.json"), Reopened(dumped("one.json")));
}

TEST_F(DrawingFilesRoad, WithoutTheModuleAChartIsAProxyWithItsPictureAndComesBackFromItsFile) {
    Generate("SAVEAS " + File("sheet.dwg") + "\nDUMP " + File("chart.json") + "\n");
    EXPECT_EQ(RunWithoutModule("OPEN " + File("sheet.dwg") + "\nDUMP " + File("proxy.json") + "\nSAVEAS " +
                               File("kept.dwg") + "\nPLOT " + File("proxy.svg") + "\n"),
              "");
    const CJson dump = Dumped("proxy.json");
    CJson proxies = CJson::array();
    for (const CJson& entity : dump["modelSpace"])
        if (entity["class"] == "AcDbProxyEntity") proxies.push_back(entity);
    ASSERT_EQ(proxies.size(), 1U) << Classes(dump["modelSpace"]);
    EXPECT_EQ(proxies[0]["originalClass"], "CBRENChart");
    EXPECT_GT(proxies[0]["graphics"].size(), 100U);
    m_project.Run("OPEN " + File("kept.dwg") + "\nDUMP " + File("again.json") + "\n");
    CJson expected = Reopened(Dumped("chart.json"));
    expected["drawing"] = File("kept.dwg");
    EXPECT_EQ(Dumped("again.json"), expected);
}

TEST_F(DrawingFilesRoad, AProxyLeftByTheModuleIsSavedAsTheChartThatItWas) {
    Generate("DUMP " + File("chart.json") + "\nUNLOADMODULE tervo-bren.so\nSAVEAS " + File("proxy.dwg") +
             "\n");
    m_project.Run("OPEN " + File("proxy.dwg") + "\nDUMP " + File("again.json") + "\n");
    EXPECT_EQ(Dumped("again.json")["modelSpace"], Reopened(Dumped("chart.json"))["modelSpace"]);
}

TEST_F(DrawingFilesRoad, AnExplodedDxfFileHoldsTheChartsPartsAndTheDrawingKeepsTheChart) {
    EXPECT_EQ(
        Generate("SAVEAS " + File("sheet.dxf") + " exploded\nDUMP " + File("one.json") + "\n").m_strErrors,
        "");
    EXPECT_EQ(m_project.Run("OPEN " + File("sheet.dxf") + "\nDUMP " + File("two.json") + "\n").m_strErrors,
              "");
    EXPECT_NE(Classes(Dumped("one.json")["modelSpace"]).find("BRENChart"), std::string::npos);
    const CJson parts = Dumped("two.json")["modelSpace"];
    EXPECT_EQ(Classes(parts).find("BREN"), std::string::npos);
    EXPECT_GT(parts.size(), 50U);
}

TEST_F(DrawingFilesRoad, QuitAsksForTheSheetAndSavesItUnderThePathThatIsGiven) {
    const CRun run = Generate("QUIT\nyes\n" + File("kept.dwg") + "\n");
    EXPECT_EQ(run.m_nStatus, 0);
    EXPECT_EQ(run.m_strErrors, "");
    EXPECT_EQ(m_project.Run("OPEN " + File("kept.dwg") + "\n" + m_project.Dump()).m_strErrors, "");
    EXPECT_EQ(m_project.Charts().size(), 1U);
}
