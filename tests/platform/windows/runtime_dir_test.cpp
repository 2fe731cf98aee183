#include "platform/windows/runtime_dir.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "tests/temp_folder.h"

namespace {

class RuntimeDirTest : public testing::Test {
protected:
    void SetUp() override {
        unsetenv("XDG_RUNTIME_DIR");
        setenv("TMPDIR", m_folder.Path().c_str(), 1);
    }
    void TearDown() override {
        unsetenv("XDG_RUNTIME_DIR");
        unsetenv("TMPDIR");
    }
    std::string OfUser() const { return m_folder.Path("tervo-runtime-" + std::to_string(geteuid())); }

    const CTempFolder m_folder;
};

} // namespace

TEST_F(RuntimeDirTest, IsTheOneGivenWhereThatIsOurs) {
    std::filesystem::create_directory(m_folder.Path("run"));
    setenv("XDG_RUNTIME_DIR", m_folder.Path("run").c_str(), 1);
    EXPECT_EQ(RuntimeDir(), m_folder.Path("run"));
    setenv("XDG_RUNTIME_DIR", m_folder.Path("missing").c_str(), 1);
    EXPECT_EQ(RuntimeDir(), OfUser());
}

TEST_F(RuntimeDirTest, IsElseAFolderOfTheUserAlone) {
    EXPECT_EQ(RuntimeDir(), OfUser());
    struct stat status = {};
    ASSERT_EQ(stat(OfUser().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0700U);
    EXPECT_EQ(RuntimeDir(), OfUser());
}

TEST_F(RuntimeDirTest, IsNoneWhereOthersCanEnterOrALinkStandsInItsPlace) {
    std::filesystem::create_directory(OfUser());
    chmod(OfUser().c_str(), 0755);
    EXPECT_EQ(RuntimeDir(), "");
    std::filesystem::remove(OfUser());
    std::filesystem::create_directory(m_folder.Path("other"));
    chmod(m_folder.Path("other").c_str(), 0700);
    std::filesystem::create_directory_symlink(m_folder.Path("other"), OfUser());
    EXPECT_EQ(RuntimeDir(), "");
}

TEST_F(RuntimeDirTest, IsNoneWhereAnotherUserHasTakenThePlace) {
    if (geteuid() != 0) GTEST_SKIP() << "only root can make a folder of another user";
    std::filesystem::create_directory(OfUser());
    chmod(OfUser().c_str(), 0700);
    ASSERT_EQ(chown(OfUser().c_str(), 65534, 65534), 0);
    EXPECT_EQ(RuntimeDir(), "");
    std::filesystem::create_directory(m_folder.Path("given"));
    ASSERT_EQ(chown(m_folder.Path("given").c_str(), 65534, 65534), 0);
    setenv("XDG_RUNTIME_DIR", m_folder.Path("given").c_str(), 1);
    EXPECT_EQ(RuntimeDir(), "");
}

TEST_F(RuntimeDirTest, IsPutIntoTheEnvironmentWhenUnset) {
    EnsureRuntimeDir();
    EXPECT_STREQ(std::getenv("XDG_RUNTIME_DIR"), OfUser().c_str());
    setenv("XDG_RUNTIME_DIR", "/given", 1);
    EnsureRuntimeDir();
    EXPECT_STREQ(std::getenv("XDG_RUNTIME_DIR"), "/given");
}
