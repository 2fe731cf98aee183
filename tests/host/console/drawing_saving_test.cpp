// Drawings go to files and come back, in real runs.

#include "host/console/drawing_saving.h"

#include "tests/host/console/program_run.h"

#include <nlohmann/json.hpp>

namespace {

class DrawingSaving : public CProgramRun {
protected:
    std::string Path(const std::string& strName) const { return (m_folder / strName).string(); }
    nlohmann::json Dumped(const std::string& strName) const {
        return nlohmann::json::parse(ReadFile(m_folder / strName));
    }
};

} // namespace

TEST_F(DrawingSaving, AnotherRunFindsTheDrawingAsItWasDumped) {
    const CProgramResult saved =
        RunScript("FRAME\nLINES\nINSERT FRAME 5,5\nSETVAR LTSCALE 4\nSAVEAS a.dwg\nDUMP one.json\n", "-q");
    ASSERT_EQ(saved.m_strErr, "");
    EXPECT_EQ(RunScript("OPEN a.dwg\nDUMP two.json\n", "-q").m_strErr, "");
    EXPECT_EQ(ReadFile(m_folder / "two.json"), ReadFile(m_folder / "one.json"));
    EXPECT_EQ(Dumped("two.json")["drawing"], Path("a.dwg"));
    EXPECT_EQ(RunScript("QSAVE\n", "-q a.dwg").m_strErr, "");
    EXPECT_EQ(RunScript("DUMP three.json\n", "-q a.dwg").m_strErr, "");
    EXPECT_EQ(ReadFile(m_folder / "three.json"), ReadFile(m_folder / "two.json"));
}

TEST_F(DrawingSaving, ADxfFileKeepsLinesAndTexts) {
    ASSERT_EQ(RunScript("LINES\nSAVEAS A.DXF\nDUMP one.json\n", "-q").m_strErr, "");
    EXPECT_EQ(RunScript("OPEN a.dxf\nDUMP two.json\n", "-q").m_strErr, "");
    EXPECT_EQ(Dumped("two.json")["modelSpace"], Dumped("one.json")["modelSpace"]);
    EXPECT_EQ(Dumped("two.json")["drawing"], Path("A.DXF")) << "in the folder's own spelling";
}

TEST_F(DrawingSaving, TheDrawingIsNamedByItsFileAndUnchangedAfterwards) {
    EXPECT_EQ(Quiet("LINES\nSAVEAS a.dwg\nDOCUMENTS\nLINES\nDOCUMENTS\nQSAVE\nDOCUMENTS\n"),
              "1 * " + Path("a.dwg") + "\n" + "1 * " + Path("a.dwg") + " (changed)\n" + "1 * " +
                  Path("a.dwg") + "\n");
    EXPECT_EQ(Quiet("OPEN a.dwg\nDOCUMENTS\nNEW\nDOCUMENTS\n"), "1   Drawing1\n2 * " + Path("a.dwg") + "\n" +
                                                                    "1   Drawing1\n2   " + Path("a.dwg") +
                                                                    "\n3 * Drawing3\n");
}

TEST_F(DrawingSaving, QsaveAsksForThePathOfADrawingWithoutAFile) {
    const CProgramResult result = RunScript("LINES\nQSAVE\na.dwg\nLINES\nQSAVE\nQUIT\n");
    EXPECT_EQ(result.m_strOut, "Command: LINES\nCommand: QSAVE\nFile: a.dwg\nCommand: LINES\nCommand: QSAVE\n"
                               "Command: QUIT\n");
    EXPECT_EQ(result.m_strErr, "");
    EXPECT_EQ(Quiet("QSAVE b.dwg\nDOCUMENTS\n"), "1 * " + Path("b.dwg") + "\n");
    EXPECT_EQ(RunScript("QSAVE b.dwg\nQSAVE c.dwg\n", "-q").m_strErr,
              "script:2: more on the line than the command takes: c.dwg\n");
}

TEST_F(DrawingSaving, TheFormerFileStaysAsItsBackup) {
    ASSERT_EQ(RunScript("LINES\nSAVEAS a.dwg\n", "-q").m_nStatus, 0);
    EXPECT_FALSE(std::filesystem::exists(m_folder / "a.bak"));
    const std::string strFirst = ReadFile(m_folder / "a.dwg");
    ASSERT_EQ(RunScript("OPEN a.dwg\nLINES\nQSAVE\n", "-q").m_nStatus, 0);
    EXPECT_EQ(ReadFile(m_folder / "a.bak"), strFirst);
    EXPECT_NE(ReadFile(m_folder / "a.dwg"), strFirst);
    EXPECT_EQ(RunScript("OPEN a.bak\nDUMP bak.json\n", "-q").m_strErr, "") << "told by what it holds";
    EXPECT_EQ(Dumped("bak.json")["modelSpace"].size(), 2U);
    EXPECT_EQ(RunScript("OPEN a.bak\nQSAVE\n", "-q").m_strErr,
              "script:2: no .dwg or .dxf: " + Path("a.bak") + "\n");
}

TEST_F(DrawingSaving, PathsGoWithEitherSlashAndInAnyCase) {
    std::filesystem::create_directories(m_folder / "Plans");
    ASSERT_EQ(RunScript("LINES\nSAVEAS plans\\a.dwg\nLINES\nSAVEAS PLANS/A.dwg\n", "-q").m_strErr, "");
    EXPECT_TRUE(std::filesystem::exists(m_folder / "Plans/a.bak"));
    EXPECT_EQ(Quiet("OPEN PLANS\\A.DWG\nDOCUMENTS\n"), "1   Drawing1\n2 * " + Path("Plans/a.dwg") + "\n");
}

TEST_F(DrawingSaving, AFileIsSoughtBesideTheDrawingToo) {
    std::filesystem::create_directories(m_folder / "plans");
    ASSERT_EQ(RunScript("SAVEAS plans/a.dwg\nSAVEAS plans/b.dwg\n", "-q").m_strErr, "");
    EXPECT_EQ(Quiet("OPEN plans/a.dwg\nOPEN b.dwg\nDOCUMENTS\n"),
              "1   Drawing1\n2   " + Path("plans/a.dwg") + "\n3 * " + Path("plans/b.dwg") + "\n");
}

TEST_F(DrawingSaving, QsaveGoesOnWritingADxfFileExplodedOrNot) {
    const auto classOf = [this](const char* szScript) {
        EXPECT_EQ(RunScript(szScript, "-q").m_strErr, "");
        EXPECT_EQ(RunScript("OPEN a.dxf\nDUMP a.json\n", "-q").m_strErr, "");
        return Dumped("a.json")["modelSpace"][0]["class"];
    };
    EXPECT_EQ(classOf("SHEET 5,5\nSAVEAS a.dxf exploded\n"), "AcDbText");
    EXPECT_EQ(classOf("SHEET 5,5\nSAVEAS a.dxf exploded\nQSAVE\n"), "AcDbText");
    EXPECT_NE(classOf("SHEET 5,5\nSAVEAS a.dxf exploded\nSAVEAS a.dxf\nQSAVE\n"), "AcDbText");
}

TEST_F(DrawingSaving, WhatADxfFileHoldsBesidesIsToldOnOpeningAndBeforeItIsLost) {
    WriteFile("a.dxf", "0\nSECTION\n2\nENTITIES\n0\nHATCH\n5\n30\n0\nHATCH\n5\n31\n0\nMTEXT\n5\n32\n"
                       "0\nLINE\n5\n33\n10\n0\n20\n0\n11\n5\n21\n5\n0\nENDSEC\n0\nEOF\n");
    const std::string strKinds = ": HATCH (2); MTEXT (1)\n";
    const CProgramResult result = RunScript("OPEN a.dxf\nQSAVE\nQSAVE\nSAVEAS b.dxf\n", "-q");
    EXPECT_EQ(result.m_strErr, "");
    EXPECT_EQ(result.m_strOut, Path("a.dxf") + " holds what the drawing does not" + strKinds + Path("a.dxf") +
                                   " loses what the drawing does not hold" + strKinds);
    EXPECT_EQ(Quiet("OPEN a.dxf\n"), "");
}

TEST_F(DrawingSaving, ADrawingSavedElsewhereLosesNothingOfTheFileItCameFrom) {
    WriteFile("a.dxf", "0\nSECTION\n2\nENTITIES\n0\nHATCH\n5\n30\n0\nENDSEC\n0\nEOF\n");
    EXPECT_EQ(Quiet("OPEN a.dxf\nSAVEAS b.dxf\n"),
              Path("a.dxf") + " holds what the drawing does not: HATCH (1)\n");
    EXPECT_EQ(Quiet("OPEN a.dxf\nSAVEAS b.dxf\nSAVEAS a.dxf\n"),
              Path("a.dxf") + " holds what the drawing does not: HATCH (1)\n" + Path("a.dxf") +
                  " loses what the drawing does not hold: HATCH (1)\n")
        << "it is still known of that file";
}

TEST_F(DrawingSaving, AFullDiskLeavesTheFormerFileAndTheChanges) {
    ASSERT_EQ(RunScript("LINES\nSAVEAS a.dwg\n", "-q").m_nStatus, 0);
    const std::string strFirst = ReadFile(m_folder / "a.dwg");
    WriteFile("full", "trap '' XFSZ\nulimit -f 1\nexec \"$@\"\n");
    WriteFile("script", "OPEN a.dwg\nLINE 0,0 1,1\nQSAVE\n");
    const CProgramResult result = RunProgram("-q --load '" SAMPLE_MODULE "' -s script", "sh full");
    EXPECT_EQ(result.m_nStatus, 4);
    EXPECT_EQ(result.m_strErr,
              "script:3: " + Path("a.dwg") + " cannot be saved to " + Path("a.dwg") + ": File too large\n");
    EXPECT_EQ(ReadFile(m_folder / "a.dwg"), strFirst);
    EXPECT_FALSE(std::filesystem::exists(m_folder / "a.bak"));
    for (const auto& entry : std::filesystem::directory_iterator(m_folder))
        EXPECT_FALSE(entry.path().filename().string().starts_with(".tervo")) << entry.path();
}

TEST_F(DrawingSaving, AFailureKeepsTheDrawingWithItsNameAndChanges) {
    ASSERT_EQ(RunScript("LINES\nSAVEAS a.dwg\n", "-q").m_nStatus, 0);
    std::filesystem::permissions(m_folder / "a.dwg", std::filesystem::perms::owner_read);
    const CProgramResult result = RunScript("OPEN a.dwg\nLINES\nCLOSE\nyes\n", "-q");
    EXPECT_EQ(result.m_nStatus, 4);
    EXPECT_EQ(result.m_strErr, "script:4: " + Path("a.dwg") + " cannot be saved to " + Path("a.dwg") +
                                   ": it is write-protected\n");
}
