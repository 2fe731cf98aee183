// ERASE and LIST in real runs.

#include "tests/host/console/program_run.h"

using DrawingCommands = CProgramRun;

TEST_F(DrawingCommands, ListTellsClassLayerColourLinetypeAndExtents) {
    const std::string out = Quiet("LINES\nLIST 10,0\n");
    EXPECT_EQ(out.substr(out.find(' ')),
              " AcDbPolyline\nlayer 0\ncolor 256\nlinetype ByLayer\nextents 0,0 to 20,0\n");
}

TEST_F(DrawingCommands, APointPicksTheLastEntityThatPassesWithinOneUnit) {
    EXPECT_NE(Quiet("LINES\nLINES\nLIST 10,0.9\n").find("AcDbPolyline"), std::string::npos);
    const CProgramResult result = RunScript("LINES\nLIST 10,1.1\n");
    EXPECT_EQ(result.m_nStatus, 5);
    EXPECT_EQ(result.m_strErr, "script:2: no entity there: 10,1.1\n");
    // Of two in the same place the later one is picked: both handles, last first.
    const std::string out = Quiet("LINES\nLINES\nLIST 10,0\nERASE 10,0\nLIST 10,0\n");
    const unsigned long later = std::stoul(out.substr(1), nullptr, 16);
    const unsigned long earlier = std::stoul(out.substr(out.find('#', 1) + 1), nullptr, 16);
    EXPECT_GT(later, earlier);
}

TEST_F(DrawingCommands, AnEmptyLineAtAnEntityPromptPicksNothing) {
    const CProgramResult result = RunScript("LIST\n\nSETVAR PLOTDPI\n", "-q");
    EXPECT_EQ(result.m_strOut, "150\n");
    EXPECT_EQ(result.m_nStatus, 0);
}

TEST_F(DrawingCommands, ASelectionTakesOnePickALineUntilAnEmptyLine) {
    const CProgramResult result = RunScript("LINES\nERASE\nL\n10,0\n\nLIST L\n");
    EXPECT_EQ(result.m_nStatus, 5); // nothing is left to list
    EXPECT_EQ(result.m_strErr, "script:6: no entity there: L\n");
}

TEST_F(DrawingCommands, ASelectionOnTheLineIsAllOrPicksJoinedWithPlus) {
    EXPECT_EQ(RunScript("LINES\nERASE all\nLIST L\n").m_strErr, "script:3: no entity there: L\n");
    EXPECT_EQ(RunScript("LINES\nERASE L+10,0+L\nLIST L\n").m_strErr, "script:3: no entity there: L\n");
    EXPECT_EQ(RunScript("LINES\nERASE L+\n").m_nStatus, 5);
}

TEST_F(DrawingCommands, AnErasedEntityOrAHandleOfSomethingElseIsNoPick) {
    const std::string out = Quiet("LINES\nLIST L\n");
    const std::string handle = out.substr(0, out.find(' '));
    EXPECT_EQ(RunScript("LINES\nLIST " + handle + "\n").m_nStatus, 0);
    EXPECT_EQ(RunScript("LINES\nERASE " + handle + "\nLIST " + handle + "\n").m_nStatus, 5);
    EXPECT_EQ(RunScript("LIST #1\n").m_nStatus, 5); // a table
    EXPECT_EQ(RunScript("LIST #\n").m_nStatus, 5);
    EXPECT_EQ(RunScript("LIST #xyz\n").m_nStatus, 5);
}
