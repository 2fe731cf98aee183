#include "host/console/host_commands.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "tests/host/console/program_run.h"

TEST(HostCommands, HaveNamesOfTheirOwnInUpperCaseAndHelp) {
    std::set<std::string> names;
    for (const CHostCommand& command : HostCommands()) {
        EXPECT_TRUE(names.insert(command.m_pName).second) << command.m_pName;
        EXPECT_EQ(FindHostCommand(command.m_pName), &command);
        EXPECT_EQ(std::string(command.m_pName).find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ"),
                  std::string::npos);
        EXPECT_NE(std::string(command.m_pHelp), "");
    }
}

TEST(HostCommands, AnUnknownNameOrOneInLowerCaseIsNone) {
    EXPECT_EQ(FindHostCommand("NOSUCH"), nullptr);
    EXPECT_EQ(FindHostCommand("quit"), nullptr);
}

using HostCommandsRun = CProgramRun;

TEST_F(HostCommandsRun, EachCommandEndsWithAnImmediateCancelOrAtOnce) {
    for (const CHostCommand& command : HostCommands()) {
        const CProgramResult result = RunScript(std::string(command.m_pName) + "\ncancel\nSETVAR PLOTDPI\n");
        // SAVECHARTS asks nothing, and is refused where no project runs.
        const int nStatus = std::string_view(command.m_pName) == "SAVECHARTS" ? 5 : 0;
        EXPECT_EQ(result.m_nStatus, nStatus) << command.m_pName << ": " << result.m_strErr;
    }
}
