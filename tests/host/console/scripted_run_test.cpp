#include "host/console/scripted_run.h"

#include "tests/host/console/program_run.h"

using ScriptedRun = CProgramRun;

TEST_F(ScriptedRun, EndsWithZeroAtTheEndOfTheScript) {
    const CProgramResult result = RunScript("");
    EXPECT_EQ(result.m_nStatus, 0);
    EXPECT_EQ(result.m_strOut, "");
    EXPECT_EQ(result.m_strErr, "");
}

TEST_F(ScriptedRun, PromptsAreFollowedByTheAnswerReadAndALineEnd) {
    const CProgramResult result = RunScript("TWOPOINTS\n1,2\n\nLIST\n\n");
    EXPECT_EQ(result.m_strOut, ToUtf8("Command: TWOPOINTS\n"
                                      "\n请指定第一点:1,2\n"
                                      "\npoint 1 2 0Second point: \n"
                                      "\nno point\n"
                                      "Command: LIST\n"
                                      "Select an entity: \n"));
    EXPECT_EQ(result.m_nStatus, 0);
}

TEST_F(ScriptedRun, QuietLeavesOutPromptsAndAnswersOnly) {
    EXPECT_EQ(RunScript("TWOPOINTS\n1,2\n\nSETVAR PLOTDPI\n", "-q").m_strOut,
              "\npoint 1 2 0\nno point\n150\n");
}

TEST_F(ScriptedRun, CommentsCarriageReturnsEmptyLinesAndAMarkAreNoCommands) {
    WriteFile("script", "\xEF\xBB\xBF; comment\r\n\r\n  \r\nSETVAR PLOTDPI\r\n;QUIT");
    const CProgramResult result = RunProgram("-q -s script --load none");
    EXPECT_EQ(result.m_strOut, "150\n");
    EXPECT_EQ(result.m_nStatus, 0);
}

TEST_F(ScriptedRun, ACommentBetweenAPromptAndItsAnswerIsSkipped) {
    EXPECT_EQ(Quiet("TWOPOINTS\n;first\n1,2\n;second\n3,4\n"), "\npoint 1 2 0\npoint 3 4 0\n");
}

TEST_F(ScriptedRun, CommandsAreFoundInAnyCaseByGlobalAndLocalName) {
    EXPECT_EQ(Quiet("twopoints 1,2 3,4\nzwei 1,2 3,4\nsetvar plotdpi\n"),
              "\npoint 1 2 0\npoint 3 4 0\n\npoint 1 2 0\npoint 3 4 0\n150\n");
}

TEST_F(ScriptedRun, AnswersOnTheCommandsLineComeBeforeTheFollowingLines) {
    EXPECT_EQ(Quiet("TWOPOINTS 1,2\n3,4\n"), "\npoint 1 2 0\npoint 3 4 0\n");
}

TEST_F(ScriptedRun, RelativePointsCountFromTheLastPointAndANewDrawingForgetsIt) {
    EXPECT_EQ(Quiet("TWOPOINTS 1,2,3 @10,-20\nNEW\nTWOPOINTS @1,1 @1,1,1\n"),
              "\npoint 1 2 3\npoint 11 -18 3\n\npoint 1 1 0\npoint 2 2 1\n");
}

TEST_F(ScriptedRun, StopsAtTheFirstFailingLineAndNamesIt) {
    const CProgramResult result = RunScript("SETVAR PLOTDPI\n;\nNOSUCH\nSETVAR PLOTDPI\n", "-q");
    EXPECT_EQ(result.m_nStatus, 5);
    EXPECT_EQ(result.m_strOut, "150\n");
    EXPECT_EQ(result.m_strErr, "script:3: unknown command: NOSUCH\n");
}

TEST_F(ScriptedRun, MoreWordsThanTheCommandTakesAreAnErrorAndNothingIsDone) {
    CProgramResult result = RunScript("LINES\nERASE L more\n");
    EXPECT_EQ(result.m_nStatus, 5);
    EXPECT_EQ(result.m_strErr, "script:2: more on the line than the command takes: more\n");
    result = RunScript("TWOPOINTS 1,2 3,4 5,6\n");
    EXPECT_EQ(result.m_nStatus, 5);
    EXPECT_EQ(result.m_strErr, "script:1: more on the line than the command takes: 5,6\n");
}

TEST_F(ScriptedRun, AnOpenQuoteIsAnError) {
    const CProgramResult result = RunScript("DUMP \"a b\n");
    EXPECT_EQ(result.m_nStatus, 5);
    EXPECT_FALSE(std::filesystem::exists(m_folder / "a b"));
}

TEST_F(ScriptedRun, QuotesKeepBlanksTogether) {
    EXPECT_EQ(RunScript("DUMP \"a \"\"b\"\".json\"\n").m_nStatus, 0);
    EXPECT_TRUE(std::filesystem::exists(m_folder / "a \"b\".json"));
}

TEST_F(ScriptedRun, CancelEndsTheCommandAndTheRunGoesOn) {
    const CProgramResult result =
        RunScript("TWOPOINTS\n cancel \ncancel\nERASE\ncancel\nSETVAR PLOTDPI\n", "-q");
    EXPECT_EQ(result.m_strOut, "\ncancelled\ncancelled\n150\n");
    EXPECT_EQ(result.m_nStatus, 0);
}

TEST_F(ScriptedRun, AModulesCommandThatRanOutOfInputIsCancelledAndTheRunEndsWithThree) {
    const CProgramResult result = RunScript("TWOPOINTS\n1,2", "-q");
    EXPECT_EQ(result.m_strOut, "\npoint 1 2 0\n\ncancelled\n");
    EXPECT_EQ(result.m_nStatus, 3);
    EXPECT_EQ(result.m_strErr, "script:2: the input ran out before an answer that is still needed\n");
}

TEST_F(ScriptedRun, AHostCommandThatRanOutOfInputEndsWithThree) {
    EXPECT_EQ(RunScript("ERASE\n").m_nStatus, 3);
    EXPECT_EQ(RunScript("SETVAR\n").m_nStatus, 3);
}

TEST_F(ScriptedRun, ABadPointCancelsThePromptAndTheRestAndEndsWithFive) {
    const CProgramResult result = RunScript("TWOPOINTS\n1;2\n3,4\nSETVAR PLOTDPI\n", "-q");
    EXPECT_EQ(result.m_strOut, "\ncancelled\ncancelled\n");
    EXPECT_EQ(result.m_nStatus, 5);
    EXPECT_EQ(result.m_strErr, "script:2: not a point: 1;2\n");
}

TEST_F(ScriptedRun, StandardInputIsAScriptNamedByAMinus) {
    WriteFile("in", "SETVAR PLOTDPI\nNOSUCH\n");
    const CProgramResult result = RunProgram("-s - --load none <in");
    EXPECT_EQ(result.m_nStatus, 5);
    EXPECT_EQ(result.m_strOut, "Command: SETVAR PLOTDPI\n150\nCommand: NOSUCH\n");
    EXPECT_EQ(result.m_strErr, "-:2: unknown command: NOSUCH\n");
}

TEST_F(ScriptedRun, AScriptThatCannotBeReadEndsWithFour) {
    CProgramResult result = RunProgram("-s missing --load none");
    EXPECT_EQ(result.m_nStatus, 4);
    EXPECT_EQ(result.m_strErr, "tvcad: missing cannot be read: No such file or directory\n");
    result = RunProgram("-s . --load none");
    EXPECT_EQ(result.m_nStatus, 4);
    EXPECT_EQ(result.m_strErr, "tvcad: . cannot be read: Is a directory\n");
}

TEST_F(ScriptedRun, AModuleThatDoesNotLoadAtTheStartEndsWithFourAfterTheScript) {
    WriteFile("script", "SETVAR PLOTDPI\n");
    const CProgramResult result = RunProgram("-q -s script --load missing.so");
    EXPECT_EQ(result.m_nStatus, 4);
    EXPECT_EQ(result.m_strOut, "150\n");
    EXPECT_EQ(result.m_strErr, "tvcad: module missing.so did not load: there is no such file\n");
}

TEST_F(ScriptedRun, NamesChangedDrawingsAtTheEndAndQuitNamesNone) {
    CProgramResult result = RunScript("LINES\nNEW\nNEW\nSETVAR LTSCALE 2\n");
    EXPECT_EQ(result.m_nStatus, 0);
    EXPECT_EQ(result.m_strErr, "tvcad: Drawing1 was changed and is not saved\n"
                               "tvcad: Drawing3 was changed and is not saved\n");
    result = RunScript("LINES\nQUIT\nno\nNOSUCH\n");
    EXPECT_EQ(result.m_nStatus, 0);
    EXPECT_EQ(result.m_strErr, "");
}

TEST_F(ScriptedRun, WritesNothingOnStandardErrorWithoutARuntimeFolder) {
    WriteFile("script", "MEASURE Standard 10 abc\nPLOT a.png\n");
    const CProgramResult result =
        RunProgram("-s script --load none", "-u XDG_RUNTIME_DIR -u DISPLAY LANG=C LC_ALL=C");
    EXPECT_EQ(result.m_nStatus, 0);
    EXPECT_EQ(result.m_strErr, "");
}

TEST_F(ScriptedRun, ARootThatTheCodePageLacksIsRefusedByName) {
    WriteFile("script", "");
    const CProgramResult result = RunProgram("-s script --load none --root /tmp/\xF0\x9F\x98\x80");
    EXPECT_EQ(result.m_nStatus, 2);
    EXPECT_NE(result.m_strErr.find("lacks the character \xF0\x9F\x98\x80"), std::string::npos);
}

TEST_F(ScriptedRun, AMessageBoxIsOneLineAndTakesItsAnswerFromTheNextLineNotFromTheCommandsWords) {
    const CProgramResult result = RunScript("BOXES\nyes\n", "-q");
    EXPECT_EQ(result.m_strOut, ToUtf8("begun\n[Tervo] 第一行\\n第二行\n[Tervo] 固结?\nanswer 6\n"));
    EXPECT_EQ(result.m_nStatus, 0);
    EXPECT_EQ(RunScript("BOXES yes\n").m_nStatus, 3);
    EXPECT_EQ(RunScript("BOXES\nok\n").m_nStatus, 5);
}
