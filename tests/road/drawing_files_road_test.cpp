// A generated sheet goes to a file and is opened by another run of the program.

#include "tests/road/bren_project.h"
#include "tests/support/without_handles.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

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

    const CBrenProject m_project{CMeasuredSamples{{"ZK1", "1-1", "mafra-ciu"}}};
};

} // namespace

TEST_F(DrawingFilesRoad, AChartComesBackFromADwgFileAsTheChartThatItWas) {
    EXPECT_EQ(Generate("SAVEAS " + File("sheet.dwg") + "\nDUMP " + File("one.json") + "\n").m_strErrors, "");
    const CRun opened = m_project.Run("OPEN " + File("SHEET.dwg") + "\nDUMP " + File("two.json") +
                                      "\nLINE 0,0 1,1\nQSAVE\nQUIT\n");
    EXPECT_EQ(opened.m_strErrors, "");
    EXPECT_EQ(opened.m_strOut, "");
    const CJson one = Dumped("one.json");
    EXPECT_NE(Classes(one["modelSpace"]).find("BRENChart"), std::string::npos);
    const CJson notFiled = {
        {"op", "replace"}, {"path", "/modelSpace/1/fields/m_bColorChanging"}, {"value", 0}};
    EXPECT_EQ(CJson::diff(WithoutHandles(one), WithoutHandles(Dumped("two.json"))), CJson::array({notFiled}));
    m_project.Run("OPEN " + File("sheet.bak") + "\nDUMP " + File("bak.json") + "\n");
    EXPECT_EQ(Dumped("bak.json")["modelSpace"], Dumped("two.json")["modelSpace"]);
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
