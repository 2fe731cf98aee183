// NEW, QNEW, OPEN, SAVEAS, QSAVE, CLOSE, QUIT, DOCUMENTS and ACTIVATE in real runs.

#include "tests/host/console/program_run.h"

using DocumentCommands = CProgramRun;

TEST_F(DocumentCommands, DocumentsListsNumberCurrentOneNameAndChanges) {
    EXPECT_EQ(Quiet("NEW\nQNEW\nLINES\nACTIVATE 2\nDOCUMENTS\n"), "1   Drawing1\n"
                                                                  "2 * Drawing2\n"
                                                                  "3   Drawing3 (changed)\n");
}

TEST_F(DocumentCommands, ActivateMakesAnotherDrawingTheWorkingOne) {
    EXPECT_EQ(Quiet("SETVAR LTSCALE 2\nNEW\nSETVAR LTSCALE\nACTIVATE\n1\nSETVAR LTSCALE\n"), "1\n2\n");
}

TEST_F(DocumentCommands, ActivateTakesANumberOfTheList) {
    for (const char* number : {"0", "2", "-1", "x", "1.5"}) {
        const CProgramResult result = RunScript(std::string("ACTIVATE ") + number + "\n");
        EXPECT_EQ(result.m_nStatus, 5);
        EXPECT_EQ(result.m_strErr, std::string("script:1: no such drawing: ") + number + "\n");
    }
}

TEST_F(DocumentCommands, CloseLeavesTheDrawingThatWasCurrentBefore) {
    EXPECT_EQ(Quiet("NEW\nNEW\nACTIVATE 1\nCLOSE\nDOCUMENTS\n"), "1   Drawing2\n2 * Drawing3\n");
}

TEST_F(DocumentCommands, WithoutADrawingOnlyWhatNeedsNoneRuns) {
    EXPECT_EQ(Quiet("CLOSE\nDOCUMENTS\nSETVAR PLOTDPI\nNEW\nDOCUMENTS\n"), "150\n1 * Drawing2\n");
    for (const char* command : {"CLOSE", "LINES", "REGEN", "DUMP a.json"}) {
        const CProgramResult result = RunScript(std::string("CLOSE\n") + command + "\n");
        EXPECT_EQ(result.m_nStatus, 5) << command;
        EXPECT_EQ(result.m_strErr, "script:2: no drawing is open\n") << command;
    }
}

TEST_F(DocumentCommands, CloseAsksForAChangedDrawingOnly) {
    EXPECT_EQ(RunScript("CLOSE\n").m_strOut, "Command: CLOSE\n");
    const CProgramResult result = RunScript("LINES\nCLOSE\nno\nDOCUMENTS\n");
    EXPECT_EQ(result.m_strOut, "Command: LINES\nCommand: CLOSE\nSave changes to Drawing1? no\n"
                               "Command: DOCUMENTS\n");
    EXPECT_EQ(result.m_nStatus, 0);
    EXPECT_EQ(result.m_strErr, "");
}

TEST_F(DocumentCommands, CancelKeepsTheDrawingAndTheRunGoesOn) {
    const CProgramResult result = RunScript("LINES\nCLOSE\ncancel\nQUIT\n cancel \nDOCUMENTS\n", "-q");
    EXPECT_EQ(result.m_strOut, "1 * Drawing1 (changed)\n");
    EXPECT_EQ(result.m_nStatus, 0);
    EXPECT_EQ(result.m_strErr, "tvcad: Drawing1 was changed and is not saved\n");
}

TEST_F(DocumentCommands, AnotherAnswerIsNoneHere) {
    for (const char* answer : {"maybe", "YES", "", "ok"}) {
        const CProgramResult result = RunScript(std::string("LINES\nCLOSE\n") + answer + "\n");
        EXPECT_EQ(result.m_nStatus, 5);
        EXPECT_EQ(result.m_strErr, std::string("script:3: neither yes, no nor cancel: ") + answer + "\n");
    }
    EXPECT_EQ(RunScript("LINES\nCLOSE\n").m_nStatus, 3);
}

TEST_F(DocumentCommands, TheAnswerIsTheNextLineNotAWord) {
    const CProgramResult result = RunScript("LINES\nQUIT no\n");
    EXPECT_EQ(result.m_nStatus, 5);
    EXPECT_EQ(result.m_strErr, "script:2: more on the line than the command takes: no\n");
}

TEST_F(DocumentCommands, ADrawingWithoutAFileIsAskedForAPathAndKeptWhenItCannotBeSavedThere) {
    CProgramResult result = RunScript("LINES\nCLOSE\nyes\nnone/my drawing.dwg\nDOCUMENTS\n", "-q");
    EXPECT_EQ(result.m_nStatus, 4);
    EXPECT_EQ(result.m_strOut, "");
    EXPECT_EQ(result.m_strErr,
              "script:4: Drawing1 cannot be saved to none/my drawing.dwg: No such file or directory\n");
    result = RunScript("LINES\nCLOSE\nyes\nmy drawing.dwg\nDOCUMENTS\n", "-q");
    EXPECT_EQ(result.m_strErr, "");
    EXPECT_EQ(result.m_strOut, "");
    EXPECT_TRUE(std::filesystem::exists(m_folder / "my drawing.dwg"));
    result = RunScript("LINES\nCLOSE\nyes\ncancel\nDOCUMENTS\n", "-q");
    EXPECT_EQ(result.m_nStatus, 0);
    EXPECT_EQ(result.m_strOut, "1 * Drawing1 (changed)\n");
}

TEST_F(DocumentCommands, QuitAsksForEachChangedDrawingAndEndsTheRun) {
    const CProgramResult result = RunScript("LINES\nNEW\nNEW\nLINES\nQUIT\nno\nno\nNOSUCH\n");
    EXPECT_EQ(result.m_nStatus, 0);
    EXPECT_EQ(result.m_strErr, "");
    EXPECT_NE(result.m_strOut.find("Command: QUIT\nSave changes to Drawing1? no\n"
                                   "Save changes to Drawing3? no\n"),
              std::string::npos);
}

TEST_F(DocumentCommands, NewAsksAndReplacesOnlyInSingleDocumentMode) {
    EXPECT_EQ(RunScript("LINES\nNEW\n").m_strErr, "tvcad: Drawing1 was changed and is not saved\n");
    for (const char* command : {"NEW", "QNEW"}) {
        const CProgramResult result =
            RunScript(std::string("LINES\nSETVAR SDI 1\n") + command + "\nno\nDOCUMENTS\n", "-q");
        EXPECT_EQ(result.m_strOut, "1 * Drawing2\n");
        EXPECT_EQ(result.m_strErr, "");
    }
    EXPECT_EQ(Quiet("LINES\nSETVAR SDI 1\nNEW\ncancel\nDOCUMENTS\n"), "1 * Drawing1 (changed)\n");
}
