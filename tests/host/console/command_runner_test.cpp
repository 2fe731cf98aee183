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
