#include "host/datamanager/window/run_window.h"

#include <gtest/gtest.h>

#include "tests/support/programs.h"

// What the program does without arguments.

namespace {
const std::string g_strNowhere = "env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM ";
/// Runs the program until its window's worker is at work, and stops it then.
const std::string g_strUntilStopped =
    "$T & for TRY in $(seq 600); do grep -qs QThread /proc/$!/task/*/comm && break; sleep 0.1; done; "
    "kill -TERM $! && wait $!";
} // namespace

TEST(RunWindow, PrintsTheUsageWhereThereIsNoDisplay) {
    const CProgram program;
    for (const char* pszEnvironment :
         {"", "DISPLAY=:4321 ", "QT_QPA_PLATFORM=nonsense ", "WAYLAND_DISPLAY=none "}) {
        const CRun run = program.Shell(g_strNowhere + pszEnvironment + "$T");
        EXPECT_EQ(run.m_nStatus, 2) << pszEnvironment;
        EXPECT_NE(run.m_strOut.find("Usage: tvdata"), std::string::npos) << pszEnvironment;
        EXPECT_EQ(run.m_strErrors, "") << pszEnvironment;
    }
}

TEST(RunWindow, StaysWithItsWindowWhereThereIsADisplay) {
    const CProgram program;
    const CRun run = program.Shell(g_strNowhere + "QT_QPA_PLATFORM=offscreen " + g_strUntilStopped);
    EXPECT_EQ(run.m_nStatus, 128 + 15); // it ran until it was stopped
    EXPECT_EQ(run.m_strOut, "");
}

TEST(RunWindow, LeavesCallsWithArgumentsAlone) {
    const CProgram program;
    EXPECT_TRUE(program.Shell(g_strNowhere + "QT_QPA_PLATFORM=offscreen $T --version")
                    .m_strOut.starts_with("tvdata "));
}
