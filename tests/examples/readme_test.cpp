// The commands that examples/README.md tells, as they stand there.

#include "tests/support/programs.h"

#include <filesystem>
#include <gtest/gtest.h>

TEST(ExamplesReadme, TellsCommandsThatRunWithTheProgramsOnThePath) {
    const CProgram program;
    const std::string strFolder = program.Folder().Path("copy");
    std::filesystem::copy(TERVO_EXAMPLES, strFolder, std::filesystem::copy_options::recursive);
    const CRun run =
        program.Shell("cd '" + strFolder +
                      "' && export HOME=\"$PWD\" PATH=\"" TERVO_BIN
                      ":$PATH\" && unset TERVO_BIN && awk '/^```/ { inside = !inside; next } inside' "
                      "README.md >commands && bash -eu commands; status=$?; $T close --root tervo-demo; "
                      "exit $status");
    EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
    EXPECT_EQ(run.m_strErrors, "");
    EXPECT_NE(run.m_strOut.find("58   15.5  "), std::string::npos) << run.m_strOut;
    for (const char* pFile : {"ZK1.pdf", "ZK1.dwg", "ZK1-adopted.pdf", "all.pdf"})
        EXPECT_TRUE(std::filesystem::exists(strFolder + "/" + pFile)) << pFile;
}
