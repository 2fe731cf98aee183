#include "platform/windows/installation_root.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "tests/temp_folder.h"

namespace {

/// Tests of the environment; what they set is gone with the process of each test.
class InstallationRootTest : public testing::Test {
protected:
    void SetUp() override {
        SetInstallationRoot("");
        for (const char* name : {"TERVO_ROOT", "XDG_DATA_HOME"})
            unsetenv(name);
        setenv("HOME", "/home/someone", 1);
    }
    void TearDown() override {
        SetInstallationRoot("");
        for (const char* name : {"TERVO_ROOT", "XDG_DATA_HOME"})
            unsetenv(name);
    }
};

} // namespace

TEST_F(InstallationRootTest, IsFoundInOrder) {
    EXPECT_EQ(InstallationRoot(), "/home/someone/.local/share/tervo");
    setenv("XDG_DATA_HOME", "/data", 1);
    EXPECT_EQ(InstallationRoot(), "/data/tervo");
    setenv("TERVO_ROOT", "/suite/", 1);
    EXPECT_EQ(InstallationRoot(), "/suite");
    SetInstallationRoot("/given");
    EXPECT_EQ(InstallationRoot(), "/given");
    SetInstallationRoot("");
    setenv("TERVO_ROOT", "", 1);
    EXPECT_EQ(InstallationRoot(), "/data/tervo");
}

TEST_F(InstallationRootTest, IsAbsoluteFromTheMomentItIsSet) {
    SetInstallationRoot("below/./");
    EXPECT_EQ(InstallationRoot(), (std::filesystem::current_path() / "below").string());
    SetInstallationRoot("/");
    EXPECT_EQ(InstallationRoot(), "/");
}

TEST_F(InstallationRootTest, RealOneFollowsLinks) {
    const CTempFolder folder;
    std::filesystem::create_directory(folder.Path("root"));
    std::filesystem::create_symlink(folder.Path("root"), folder.Path("link"));
    SetInstallationRoot(folder.Path("link"));
    EXPECT_EQ(InstallationRoot(), folder.Path("link"));
    EXPECT_EQ(RealInstallationRoot(), std::filesystem::canonical(folder.Path("root")).string());
    SetInstallationRoot("/no/such/folder");
    EXPECT_EQ(RealInstallationRoot(), "/no/such/folder");
}
