// examples/draw-demo where it is not to draw; the sheets that it draws are a test of tests/packaging.

#include "tests/examples/demo_project.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {
class DrawDemo : public testing::Test, protected CDemoProject {
protected:
    void ExpectRefused(const std::string& strFolder) const {
        const CRun run = Example("draw-demo " + strFolder);
        EXPECT_EQ(run.m_nStatus, 1) << run.m_strOut;
        EXPECT_EQ(run.m_strErrors, "draw-demo: " + Folder().Path(strFolder) +
                                       " holds something else; name a folder that may be replaced\n");
    }
};
} // namespace

TEST_F(DrawDemo, LeavesAnInstallationWithAnotherProjectAlone) {
    m_program.Do("new --root \"$ROOT\" --number GC-2 --name other");
    ExpectRefused("root");
    EXPECT_TRUE(std::filesystem::exists(m_program.Root() + "/Projects/GC-2/project.db"));
}

TEST_F(DrawDemo, LeavesAFolderThatIsNoInstallationAlone) {
    std::filesystem::create_directory(Folder().Path("papers"));
    Folder().Write("papers/one", "kept");
    ExpectRefused("papers");
    EXPECT_EQ(Folder().Read("papers/one"), "kept");
}
