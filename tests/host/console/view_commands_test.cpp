// ZOOM, REGEN, SETVAR and MEASURE in real runs.

#include "tests/host/console/program_run.h"

using ViewCommands = CProgramRun;

TEST_F(ViewCommands, SetvarShowsAndSets) {
    EXPECT_EQ(
        Quiet("SETVAR LTSCALE 0.1\nSETVAR ltscale\nSETVAR SDI\nSETVAR SDI 2\nSETVAR SDI\nSETVAR CELTYPE\n"
              "SETVAR CELTYPE continuous\nSETVAR CELTYPE\nSETVAR CLAYER\nSETVAR TEXTSTYLE\n"),
        "0.1\n0\n2\nByLayer\nContinuous\n0\nStandard\n");
}

TEST_F(ViewCommands, SetvarAsksForTheNameButNotForTheValue) {
    EXPECT_EQ(Quiet("SETVAR\nLTSCALE\nSETVAR PLOTDPI\n"), "1\n150\n");
}

TEST_F(ViewCommands, SetvarRefusesUnknownVariablesAndValues) {
    for (const char* line : {"SETVAR NOSUCH", "SETVAR SDI x", "SETVAR SDI 70000", "SETVAR LTSCALE 0",
                             "SETVAR LTSCALE nan", "SETVAR CLAYER none", "SETVAR PLOTDPI 0"}) {
        const CProgramResult result = RunScript(std::string(line) + "\n");
        EXPECT_EQ(result.m_nStatus, 5) << line;
    }
}

TEST_F(ViewCommands, ACharacterThatTheCodePageLacksIsRefusedByName) {
    WriteFile("script", "SETVAR CLAYER a\xF0\x9F\x98\x80\n");
    const CProgramResult result = RunProgram("-s script --load none");
    EXPECT_EQ(result.m_nStatus, 5);
    EXPECT_EQ(result.m_strErr, "script:1: the system code page lacks the character \xF0\x9F\x98\x80\n");
}

TEST_F(ViewCommands, VariablesOfADrawingChangeWithItAndThoseOfTheProgramStay) {
    EXPECT_EQ(Quiet("SETVAR LTSCALE 3\nSETVAR PLOTDPI 72\nNEW\nSETVAR LTSCALE\nSETVAR PLOTDPI\n"), "1\n72\n");
}

TEST_F(ViewCommands, ZoomShowsAllThatIsDrawn) {
    const std::string view = "SETVAR VIEWCTR\nSETVAR VIEWSIZE\n";
    EXPECT_EQ(Quiet("ZOOM e\n" + view), "210,148.5\n297\n") << "an empty drawing";
    EXPECT_EQ(Quiet("LINE 10,20 40,30\nZOOM e\n" + view), "25,25\n30\n");
    EXPECT_EQ(Quiet("LINE 10,20 10,80\nZOOM\nA\n" + view), "10,50\n60\n");
    EXPECT_EQ(Quiet("LINE 0,0 0,0\nZOOM e\n" + view), "0,0\n297\n") << "of no size";
    EXPECT_EQ(Quiet("LINE 0,0 1,1\nZOOM e\nNEW\n" + view), "210,148.5\n297\n") << "another drawing";
}

TEST_F(ViewCommands, ZoomIsNoChangeOfTheDrawing) {
    EXPECT_EQ(RunScript("ZOOM e\n").m_strErr, "");
}

TEST_F(ViewCommands, ZoomAndItsVariablesRefuseWhatTheyDoNotKnow) {
    for (const char* line : {"ZOOM x", "SETVAR VIEWCTR 1,2", "SETVAR VIEWSIZE 3"})
        EXPECT_EQ(RunScript(std::string(line) + "\n").m_nStatus, 5) << line;
}

TEST_F(ViewCommands, MeasurePrintsTheWidthOfTheTextsExtents) {
    const std::string out =
        Quiet("MEASURE Standard 2 固结\nMEASURE Standard 1 固结\nMEASURE Standard 1\n固结\n"
              "MEASURE Standard 1 \"\"\n");
    std::istringstream lines(out);
    double twice = 0.0, once = 0.0, fromLine = 0.0, nothing = -1.0;
    lines >> twice >> once >> fromLine >> nothing;
    EXPECT_GT(once, 1.0);
    EXPECT_DOUBLE_EQ(twice, 2.0 * once);
    EXPECT_EQ(fromLine, once);
    EXPECT_EQ(nothing, 0.0);
}

TEST_F(ViewCommands, MeasureRefusesUnknownStylesAndHeightsThatAreNone) {
    EXPECT_EQ(RunScript("MEASURE nosuch 2 a\n").m_nStatus, 5);
    EXPECT_EQ(RunScript("MEASURE Standard x a\n").m_nStatus, 5);
    EXPECT_EQ(RunScript("MEASURE Standard 0 a\n").m_nStatus, 5);
}
