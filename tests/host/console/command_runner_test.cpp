#include "host/console/command_runner.h"

#include "tests/host/console/program_run.h"

using CommandRunner = CProgramRun;

TEST_F(CommandRunner, ReactorsAreToldTheGlobalNameInUpperCase) {
    EXPECT_EQ(Quiet("WATCH\nregen\nZWEI\n\n1,2\ncancel\n"),
              "\nended WATCH\n"
              "\nwill REGEN\nended REGEN\n"
              "\nwill TWOPOINTS\nno point\npoint 1 2 0\ncancelled"
              "\ncancelled TWOPOINTS\n");
}

TEST_F(CommandRunner, WhatAReactorAsksIsAnsweredByLinesNotByTheCommandsWords) {
    EXPECT_EQ(Quiet("WATCH\nTWOPOINTS 1,2 3,4\n7,8\n"),
              "\nended WATCH\n"
              "\nwill TWOPOINTS\npoint 7 8 0\npoint 1 2 0\npoint 3 4 0"
              "\nended TWOPOINTS\n");
}

TEST_F(CommandRunner, AReactorThatRunsOutOfInputKeepsTheCommandFromStarting) {
    const CProgramResult result = RunScript("WATCH\nTWOPOINTS 1,2 3,4\n", "-q");
    EXPECT_EQ(result.m_nStatus, 3);
    EXPECT_EQ(result.m_strOut, "\nended WATCH\n\nwill TWOPOINTS\n\ncancelled\n");
}

TEST_F(CommandRunner, ACancelledHostCommandIsToldAsCancelled) {
    EXPECT_EQ(Quiet("WATCH\nERASE\ncancel\n"), "\nended WATCH\n\nwill ERASE\ncancelled ERASE\n");
}

TEST_F(CommandRunner, EachEntityAppendedOrChangedIsDrawnOnceWhenTheCommandEnds) {
    const std::string out = Quiet("TELL\nWATCH\nSHEET 0,0\nTELL\nREGEN\n");
    const size_t at = out.find("drawn ");
    ASSERT_NE(at, std::string::npos) << out;
    const std::string drawn = out.substr(at, out.find('\n', at) - at); // with the handle
    EXPECT_EQ(out, "\nended WATCH\n"
                   "\nwill SHEET\npoint 0 0 0\nended SHEET\n" +
                       drawn +
                       "\n"
                       "\nwill TELL\nended TELL\n"
                       "\nwill REGEN\n" +
                       drawn + "\nended REGEN\n");
}

TEST_F(CommandRunner, WhatACommandHandsOverRunsAfterItAndBeforeTheNextLine) {
    EXPECT_EQ(RunDocuments("LATER\nDOCUMENTS\n").m_strOut,
              "\ndocument context\napplication context\n1 * Drawing1\n");
}

TEST_F(CommandRunner, ASentTextIsReadBeforeTheNextLine) {
    WriteFile("sent", "1 ae\nsetvar plotdpi 200 ");
    EXPECT_EQ(RunDocuments("SEND\nSETVAR PLOTDPI\n", "").m_strOut, "Command: SEND\n"
                                                                   "\nsend eOk\n"
                                                                   "Command: setvar plotdpi 200\n"
                                                                   "Command: SETVAR PLOTDPI\n200\n");
}

TEST_F(CommandRunner, ASentTextWithoutEchoIsNotShown) {
    WriteFile("sent", "1 a\nsetvar plotdpi 200 ");
    EXPECT_EQ(RunDocuments("SEND\nSETVAR PLOTDPI\n", "").m_strOut, "Command: SEND\n"
                                                                   "\nsend eOk\n"
                                                                   "Command: SETVAR PLOTDPI\n200\n");
}

TEST_F(CommandRunner, ASentTextMayHoldSeveralLinesAndTheScriptGivesWhatItLacks) {
    WriteFile("sent", "1 ae\nline\n0,0\n10,0\nlist\n");
    const std::string out = RunDocuments("SEND\nL\nSETVAR PLOTDPI\n").m_strOut;
    EXPECT_NE(out.find(" AcDbLine\n"), std::string::npos) << out;
    EXPECT_TRUE(out.ends_with("extents 0,0 to 10,0\n150\n")) << out;
}

TEST_F(CommandRunner, CharacterThreeOfASentTextCancelsWhatRuns) {
    WriteFile("sent", "1 ae\n\x03line\n0,0\n\x03\x03setvar plotdpi\n");
    EXPECT_EQ(RunDocuments("SEND\nLIST\n\n").m_strOut, "\nsend eOk\n150\n");
}

TEST_F(CommandRunner, ABegunTextIsNeverRun) {
    WriteFile("sent", "1 ae\nsetvar plotdpi");
    EXPECT_EQ(RunDocuments("SEND\nDOCUMENTS\n").m_strOut, "\nsend eOk\n1 * Drawing1\n");
}

TEST_F(CommandRunner, ASentTextRunsInItsDocumentWhichItActivatesUnlessToldOtherwise) {
    WriteFile("sent", "1 ae\nsetvar ltscale 3 ");
    EXPECT_EQ(RunDocuments("NEW\nSEND\nDOCUMENTS\n").m_strOut,
              "\nsend eOk\n1 * Drawing1 (changed)\n2   Drawing2\n");
    WriteFile("sent", "1 e\nsetvar ltscale 3 ");
    EXPECT_EQ(RunDocuments("NEW\nSEND\nDOCUMENTS\nACTIVATE 1\nDOCUMENTS\n").m_strOut,
              "\nsend eOk\n1   Drawing1\n2 * Drawing2\n1 * Drawing1 (changed)\n2   Drawing2\n");
}

TEST_F(CommandRunner, ASentTextThatClosesItsDocumentLeavesTheOneBefore) {
    WriteFile("sent", "1 ae\nclose ");
    EXPECT_EQ(RunDocuments("NEW\nSEND\nDOCUMENTS\n").m_strOut, "\nsend eOk\n1 * Drawing2\n");
}

TEST_F(CommandRunner, AFailureInASentTextIsToldAtTheLineReadLast) {
    WriteFile("sent", "1 ae\nnosuch ");
    const CProgramResult result = RunDocuments("\nSEND\nDOCUMENTS\n");
    EXPECT_EQ(result.m_nStatus, 5);
    EXPECT_EQ(result.m_strErr, "script:2: unknown command: nosuch\n");
}

TEST_F(CommandRunner, AfterAFailureNothingDeferredRuns) {
    const CProgramResult result = RunDocuments("LATER more\n");
    EXPECT_EQ(result.m_strOut, "\ndocument context\n");
    EXPECT_EQ(result.m_nStatus, 5);
}

TEST_F(CommandRunner, WorkOfAModuleThatIsGoneIsDropped) {
    const CProgramResult result =
        RunDocuments("LATERATUNLOAD\nUNLOADMODULE \"" DOCUMENT_MODULE "\"\nDOCUMENTS\n");
    EXPECT_EQ(result.m_strOut, "\ndocument context\n1 * Drawing1\n");
    EXPECT_EQ(result.m_nStatus, 0);
}

TEST_F(CommandRunner, ABoxAndAPickOfAReactorAreAnsweredByLinesAndTheWordsStayForTheCommand) {
    EXPECT_EQ(RunDocuments("LINE 0,0 10,0\nTELL\nPICK 5,0\nyes\nL\n").m_strOut,
              "\nended TELL\n[Tervo] store?\n"
              "\npicked 5100 AcDbLine 0 0\npicked 5100 AcDbLine 5 0\nended PICK\n"
              "\nmessage 13\nmessage 4\nmessage 8\nmessage 2\n");
}

TEST_F(CommandRunner, ADialogOfAReactorIsAnsweredByLinesAndTheWordsStayForTheCommand) {
    const std::string out = RunDocuments("LINE 0,0 10,0\nTELL\nPICKSET L\ncheck 14\nok\n").m_strOut;
    EXPECT_TRUE(out.starts_with("\nended TELL\n\ndialog closed by 1\nselected 5100 1\nended PICKSET\n"))
        << out;
}

TEST_F(CommandRunner, ADialogThatRunsLaterIsAnsweredByTheFollowingLines) {
    EXPECT_EQ(RunDocuments("LATERDIALOG\n\nSETVAR PLOTDPI\n").m_strOut, "\ndialog closed by 1\n150\n");
}

TEST_F(CommandRunner, EndedCancelledAndFailedCommandsAreToldApart) {
    const std::string out = RunDocuments("TELL\nREGEN\nERASE\ncancel\nERASE x\n").m_strOut;
    EXPECT_EQ(out.substr(0, out.find("\n\nmessage")),
              "\nended TELL\n\nended REGEN\n\ncancelled ERASE\n\nfailed ERASE");
}

TEST_F(CommandRunner, ANestedCommandTakesLinesAndTheWordsStayForTheOuterOne) {
    EXPECT_EQ(RunDocuments("LINE 0,0 10,0\nNEST 5,0\n10,0\nSETVAR PLOTDPI\n").m_strOut,
              "\npicked 5100 AcDbLine 10 0\nnested 5100"
              "\npicked 5100 AcDbLine 5 0\nnested 5100\n200\n");
}

TEST_F(CommandRunner, ANestedCommandThatIsCancelledLeavesTheOuterOneRunning) {
    EXPECT_EQ(RunDocuments("LINE 0,0 10,0\nNEST 5,0\ncancel\nSETVAR PLOTDPI\n").m_strOut,
              "\npicked -5002\nnested -5002\npicked 5100 AcDbLine 5 0\nnested 5100\n200\n");
}

TEST_F(CommandRunner, ANestedCommandThatFailsFailsTheRun) {
    CProgramResult result = RunDocuments("NESTUNKNOWN\nDOCUMENTS\n");
    EXPECT_EQ(result.m_strOut, "\nnested -5001\n");
    EXPECT_EQ(result.m_nStatus, 5);
    EXPECT_EQ(result.m_strErr, "script:1: unknown command: nosuch\n");
    result = RunDocuments("NESTCLOSE\nDOCUMENTS\n");
    EXPECT_EQ(result.m_strErr, "script:1: not from within a command: close\n");
}
