#include "host/datamanager/command_line.h"

#include <gtest/gtest.h>

#include "tests/support/programs.h"

TEST(CommandLine, PrintsItsUsageWithoutArgumentsAndDisplay) {
    const CProgram program;
    const CRun run = program.Shell("env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM $T");
    EXPECT_NE(run.m_strOut.find("Usage: tvdata"), std::string::npos);
    EXPECT_NE(run.m_strOut.find("import"), std::string::npos);
}

TEST(CommandLine, TellsVersionAndHelp) {
    const CProgram program;
    EXPECT_TRUE(program.Do("--version").starts_with("tvdata "));
    EXPECT_NE(program.Do("import --help").find("--replace"), std::string::npos);
}

TEST(CommandLine, EndsWithTwoForBadUsage) {
    const CProgram program;
    for (const char* pszArguments : {"nothing", "init", "new --number A", "import --number A", "list --wrong",
                                     "new --number A --name x --standard 99999", "list open"})
        EXPECT_EQ(program.Tvdata(pszArguments).m_nStatus, 2) << pszArguments;
}

TEST(CommandLine, EndsWithFourWithoutAnInstallation) {
    const CProgram program;
    for (const char* pszArguments : {"list", "close", "new --number A --name x", "open --number A",
                                     "import --number A x.csv", "results --number A"})
        EXPECT_EQ(program.Tvdata(std::string(pszArguments) + " --root /nonexistent").m_nStatus, 4)
            << pszArguments;
}

TEST(CommandLine, ImportsFilesAndTellsHowManyRowsCameIn) {
    const CProgram program;
    program.Do("init \"$ROOT\"");
    program.Do("new --root \"$ROOT\" --number A --name x");
    const std::string strLayers =
        program.Folder().Write("l.csv", "ZKBH,TCCDSD,TCHD,TCMC\nZK1,4,4,clay\nZK1,8,4,sand\n");
    const std::string strSamples = program.Folder().Write("s.csv", "ZKBH,QYBH,SYFF\nZK1,1-1,\n");
    const std::string strCall = "import --root \"$ROOT\" --number A '" + strLayers + "' '" + strSamples + "'";
    EXPECT_EQ(program.Do(strCall), "readings: 0\nsamples: 1\nlayers: 2\n");
    const CRun run = program.Tvdata(strCall);
    EXPECT_EQ(run.m_nStatus, 1);
    EXPECT_EQ(run.m_strOut, "");
    EXPECT_EQ(run.m_strErrors, strLayers + ":2: TCCDSD: a row of this key is stored already\n" + strLayers +
                                   ":3: TCCDSD: a row of this key is stored already\n" + strSamples +
                                   ":2: QYBH: a row of this key is stored already\n");
    EXPECT_EQ(program.Tvdata("import --root \"$ROOT\" --number B '" + strLayers + "'").m_nStatus, 1);
    EXPECT_EQ(program.Tvdata("import --root \"$ROOT\" --number A /nonexistent.csv").m_nStatus, 4);
}
