#include "platform/windows/file_bytes.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "tests/temp_folder.h"

TEST(WriteFileWhole, ReplacesTheContentAndLeavesNothingBeside) {
    const CTempFolder folder;
    const std::string path = folder.Path("a.bin");
    ASSERT_TRUE(WriteFileWhole(path, "first"));
    const std::string bytes("sec\0ond", 7);
    ASSERT_TRUE(WriteFileWhole(path, bytes));
    std::string read;
    ASSERT_TRUE(ReadFileWhole(path, &read));
    EXPECT_EQ(read, bytes);
    const std::filesystem::directory_iterator entries(folder.Path());
    EXPECT_EQ(std::distance(begin(entries), end(entries)), 1);
}

TEST(WriteFileWhole, KeepsTheModeOfTheFileItReplaces) {
    const CTempFolder folder;
    const std::string path = folder.Write("a.txt", "x");
    chmod(path.c_str(), 0640);
    ASSERT_TRUE(WriteFileWhole(path, "y"));
    struct stat status = {};
    ASSERT_EQ(stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0640U);
}

TEST(WriteFileWhole, KeepsTheOwnerOfTheFileItReplaces) {
    if (geteuid() != 0) GTEST_SKIP() << "only root may give a file away";
    const CTempFolder folder;
    const std::string path = folder.Write("a.txt", "x");
    ASSERT_EQ(chown(path.c_str(), 65534, 65533), 0);
    ASSERT_TRUE(WriteFileWhole(path, "y"));
    struct stat status = {};
    ASSERT_EQ(stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, 65534U);
    EXPECT_EQ(status.st_gid, 65533U);
}

TEST(WriteFileWhole, WritesBehindALink) {
    const CTempFolder folder;
    const std::string path = folder.Write("a.txt", "x");
    std::filesystem::create_symlink(path, folder.Path("link"));
    ASSERT_TRUE(WriteFileWhole(folder.Path("link"), "y"));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Path("link")));
    std::string read;
    ASSERT_TRUE(ReadFileWhole(path, &read));
    EXPECT_EQ(read, "y");
}

TEST(WriteFileWhole, MakesTheFileThatALinkLeadsTo) {
    const CTempFolder folder;
    std::filesystem::create_directory(folder.Path("there"));
    std::filesystem::create_symlink("there/second", folder.Path("first"));
    std::filesystem::create_symlink("a.txt", folder.Path("there/second"));
    ASSERT_TRUE(WriteFileWhole(folder.Path("first"), "y"));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Path("first")));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Path("there/second")));
    EXPECT_EQ(folder.Read("there/a.txt"), "y");
}

TEST(WriteFileWhole, FailsAndLeavesTheOldWhenTheTargetIsAFolder) {
    const CTempFolder folder;
    std::filesystem::create_directory(folder.Path("sub"));
    EXPECT_FALSE(WriteFileWhole(folder.Path("sub"), "x"));
    EXPECT_FALSE(WriteFileWhole(folder.Path("missing/a.txt"), "x"));
    EXPECT_TRUE(std::filesystem::is_empty(folder.Path("sub")));
    const std::filesystem::directory_iterator entries(folder.Path());
    EXPECT_EQ(std::distance(begin(entries), end(entries)), 1);
}

TEST(ReadFileWhole, LeavesTheOutputWhereThereIsNoFile) {
    const CTempFolder folder;
    std::string bytes = "kept";
    EXPECT_FALSE(ReadFileWhole(folder.Path("missing"), &bytes));
    EXPECT_FALSE(ReadFileWhole(folder.Path(), &bytes));
    EXPECT_EQ(bytes, "kept");
}
