#include "platform/windows/file_bytes.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>

#include "tests/other_user.h"

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

TEST(WriteFileWhole, RefusesLinksThatGoRound) {
    const CTempFolder folder;
    std::filesystem::create_symlink("b", folder.Path("a"));
    std::filesystem::create_symlink("a", folder.Path("b"));
    EXPECT_FALSE(WriteFileWhole(folder.Path("a"), "x"));
    EXPECT_EQ(errno, ELOOP);
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Path("a")));
}

TEST(WriteFileWithBackup, KeepsEachTimeTheFileThatWasReplaced) {
    const CTempFolder folder;
    const std::string path = folder.Path("a.dwg");
    ASSERT_TRUE(WriteFileWithBackup(path, "first"));
    EXPECT_FALSE(std::filesystem::exists(folder.Path("a.bak")));
    chmod(path.c_str(), 0640);
    ASSERT_TRUE(WriteFileWithBackup(path, "second"));
    EXPECT_EQ(folder.Read("a.bak"), "first");
    ASSERT_TRUE(WriteFileWithBackup(path, "third"));
    EXPECT_EQ(folder.Read("a.dwg"), "third");
    EXPECT_EQ(folder.Read("a.bak"), "second");
    struct stat status = {};
    ASSERT_EQ(stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0640U);
    const std::filesystem::directory_iterator entries(folder.Path());
    EXPECT_EQ(std::distance(begin(entries), end(entries)), 2) << "nothing else is left beside";
}

TEST(WriteFileWithBackup, GoesOnAfterOneThatEndedBeforeItsLastStep) {
    const CTempFolder folder;
    const std::string path = folder.Write("a.dwg", "old");
    std::filesystem::create_hard_link(path, folder.Path("a.bak")); // the file under both its names
    ASSERT_TRUE(WriteFileWithBackup(path, "new"));
    EXPECT_EQ(folder.Read("a.dwg"), "new");
    EXPECT_EQ(folder.Read("a.bak"), "old");
    const std::filesystem::directory_iterator entries(folder.Path());
    EXPECT_EQ(std::distance(begin(entries), end(entries)), 2);
}

TEST(WriteFileWithBackup, ReplacesALinkOfTheBackupsNameAndNotWhatItLeadsTo) {
    const CTempFolder folder;
    const std::string path = folder.Write("a.dwg", "old"), other = folder.Write("precious", "kept");
    std::filesystem::create_symlink(other, folder.Path("a.bak"));
    ASSERT_TRUE(WriteFileWithBackup(path, "new"));
    EXPECT_EQ(folder.Read("precious"), "kept");
    EXPECT_FALSE(std::filesystem::is_symlink(folder.Path("a.bak")));
    EXPECT_EQ(folder.Read("a.bak"), "old");
}

TEST(WriteFileWithBackup, NeverNamesTheBackupLikeTheFile) {
    const CTempFolder folder;
    const std::string path = folder.Write("a.bak", "old");
    ASSERT_TRUE(WriteFileWithBackup(path, "new"));
    EXPECT_EQ(folder.Read("a.bak"), "new");
    EXPECT_EQ(folder.Read("a.bak.bak"), "old");
}

TEST(WriteFileWithBackup, CopiesWhatMayNotHaveASecondName) {
    const CTempFolder folder;
    const std::string path = folder.Write("a.dwg", "old"), link = folder.Write("precious", "kept");
    std::filesystem::create_symlink(link, folder.Path("a.bak"));
    std::ifstream guard("/proc/sys/fs/protected_hardlinks");
    int nGuarded = 0;
    guard >> nGuarded;
    if (geteuid() != 0 || nGuarded == 0) GTEST_SKIP() << "no file here is kept from having a second name";
    ASSERT_EQ(chown(folder.Path().c_str(), g_nPlainUser, g_nPlainUser), 0);
    // A user may give no second name to a file of another that he cannot write.
    EXPECT_EQ(AsPlainUser([&] { return WriteFileWithBackup(path, "new") ? 0 : 1; }), 0);
    EXPECT_EQ(folder.Read("a.dwg"), "new");
    EXPECT_EQ(folder.Read("a.bak"), "old");
    EXPECT_EQ(folder.Read("precious"), "kept");
}
