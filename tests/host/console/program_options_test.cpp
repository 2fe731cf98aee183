#include "host/console/program_options.h"

#include "tests/host/console/program_run.h"

using ProgramOptions = CProgramRun;

TEST_F(ProgramOptions, VersionAndHelpEndWithZeroOnStandardOutput) {
    CProgramResult result = RunProgram("--version");
    EXPECT_EQ(result.m_nStatus, 0);
    EXPECT_EQ(result.m_strOut.substr(0, 6), "tvcad ");
    result = RunProgram("--help");
    EXPECT_EQ(result.m_nStatus, 0);
    EXPECT_NE(result.m_strOut.find("--script"), std::string::npos);
    EXPECT_NE(result.m_strOut.find("UNLOADMODULE"), std::string::npos);
    EXPECT_EQ(result.m_strErr, "");
}

TEST_F(ProgramOptions, BadUsageEndsWithTwoOnStandardError) {
    for (const char* arguments : {"--nosuch", "-s", "--root", "one two three"}) {
        const CProgramResult result = RunProgram(arguments);
        EXPECT_EQ(result.m_nStatus, 2) << arguments;
        EXPECT_EQ(result.m_strOut, "") << arguments;
        EXPECT_NE(result.m_strErr, "") << arguments;
    }
}

TEST_F(ProgramOptions, WithoutAScriptItSaysThatThereIsNoWindow) {
    for (const std::string strDisplay :
         {"", " DISPLAY=:4321", " QT_QPA_PLATFORM=nonsense", " WAYLAND_DISPLAY=none"}) {
        const CProgramResult result =
            RunProgram("", "-u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM" + strDisplay);
        EXPECT_EQ(result.m_nStatus, 2) << strDisplay;
        EXPECT_EQ(result.m_strErr,
                  "tvcad: there is no display for its window; give a script with --script FILE\n");
    }
}
