#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/windows/descriptor.h"
#include "platform/windows/file_bytes.h"
#include "platform/windows/profile.h"
#include "tests/other_user.h"
#include "tests/temp_folder.h"

// Ini files that several processes write, that lie behind links, and that may not be written.

namespace {

/// Writes count keys of its own one after the other; the exit status tells of a write that failed.
[[noreturn]] void WriteKeys(const std::string& file, const std::string& prefix, int count) {
    for (int i = 0; i < count; ++i)
        if (!WritePrivateProfileStringA("S", (prefix + std::to_string(i)).c_str(), "值", file.c_str()))
            _exit(1);
    _exit(0);
}

/// Number of keys that list by name and have the value; -1 when one lacks it.
int KeysWithValue(const std::string& file) {
    std::vector<char> names(1 << 16);
    std::array<char, 16> value = {};
    GetPrivateProfileStringA("S", nullptr, "", names.data(), static_cast<DWORD>(names.size()), file.c_str());
    int count = 0;
    for (const char* name = names.data(); *name; name += std::string_view(name).size() + 1, ++count) {
        GetPrivateProfileStringA("S", name, "", value.data(), value.size(), file.c_str());
        if (std::string(value.data()) != "值") return -1;
    }
    return count;
}

/// Reads the file until it has the end key. The exit status is 1 for a torn file or one with fewer keys than
/// before.
[[noreturn]] void ReadUntilEnd(const std::string& file) {
    std::size_t keys = 0;
    for (;;) {
        std::string bytes;
        if (!ReadFileWhole(file, &bytes) || bytes.empty()) continue;
        if (!bytes.starts_with("[S]\n") || !bytes.ends_with("值\n")) _exit(1);
        const auto lines = static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\n'));
        if (lines < keys) _exit(1);
        keys = lines;
        if (bytes.find("\nend=") != std::string::npos) _exit(0);
    }
}

int StatusOf(pid_t process) {
    int status = 0;
    return waitpid(process, &status, 0) == process && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace

TEST(WritePrivateProfileStringA, LosesNoKeyOfTwoProcessesThatWriteAtOnceAndShowsNoTornFile) {
    constexpr int COUNT = 500;
    const CTempFolder folder;
    const std::string file = folder.Path("a.ini");
    const pid_t reader = fork();
    if (reader == 0) ReadUntilEnd(file);
    std::array<pid_t, 2> writers = {};
    for (std::size_t i = 0; i < writers.size(); ++i) {
        writers[i] = fork();
        if (writers[i] == 0) WriteKeys(file, i == 0 ? "a" : "b", COUNT);
    }
    for (const pid_t writer : writers)
        EXPECT_EQ(StatusOf(writer), 0);
    EXPECT_EQ(KeysWithValue(file), 2 * COUNT);
    EXPECT_TRUE(WritePrivateProfileStringA("S", "end", "值", file.c_str()));
    EXPECT_EQ(StatusOf(reader), 0);
    const std::filesystem::directory_iterator entries(folder.Path());
    EXPECT_EQ(std::distance(begin(entries), end(entries)), 1);
}

TEST(WritePrivateProfileStringA, WaitsForAnotherWritersLock) {
    const CTempFolder folder;
    const std::string file = folder.Write("a.ini", "[S]\na=1\n");
    CDescriptor lock(open(file.c_str(), O_RDWR | O_CLOEXEC));
    ASSERT_EQ(flock(lock.Get(), LOCK_EX), 0);
    const pid_t writer = fork();
    ASSERT_GE(writer, 0);
    if (writer == 0) _exit(WritePrivateProfileStringA("S", "b", "2", file.c_str()) ? 0 : 1);
    usleep(50000); // the writer may have come to the lock or not: the outcome is the same
    EXPECT_EQ(folder.Read("a.ini"), "[S]\na=1\n");
    flock(lock.Get(), LOCK_UN); // the child's copy of the descriptor does not hold it any longer either
    EXPECT_EQ(StatusOf(writer), 0);
    EXPECT_EQ(folder.Read("a.ini"), "[S]\na=1\nb=2\n");
}

TEST(WritePrivateProfileStringA, ALockOfAKilledWriterHoldsNobody) {
    const CTempFolder folder;
    const std::string file = folder.Write("a.ini", "[S]\na=1\n");
    std::array<int, 2> held = {};
    ASSERT_EQ(pipe(held.data()), 0);
    const pid_t other = fork();
    if (other == 0) {
        const int descriptor = open(file.c_str(), O_RDWR);
        const bool locked = flock(descriptor, LOCK_EX) == 0 && write(held[1], "x", 1) == 1;
        if (locked) pause();
        _exit(1);
    }
    char sign = 0;
    ASSERT_EQ(read(held[0], &sign, 1), 1);
    kill(other, SIGKILL);
    waitpid(other, nullptr, 0);
    EXPECT_TRUE(WritePrivateProfileStringA("S", "b", "2", file.c_str()));
    EXPECT_EQ(folder.Read("a.ini"), "[S]\na=1\nb=2\n");
    close(held[0]);
    close(held[1]);
}

TEST(WritePrivateProfileStringA, WritesBehindALinkThatStaysOne) {
    const CTempFolder folder;
    std::filesystem::create_directory(folder.Path("there"));
    folder.Write("there/a.ini", "[S]\na=1\n");
    std::filesystem::create_symlink("there/a.ini", folder.Path("link.ini"));
    EXPECT_TRUE(WritePrivateProfileStringA("S", "a", "2", folder.Path("link.ini").c_str()));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Path("link.ini")));
    EXPECT_EQ(folder.Read("there/a.ini"), "[S]\na=2\n");
    std::filesystem::create_symlink("there/new.ini", folder.Path("first.ini")); // leads to nothing yet
    EXPECT_TRUE(WritePrivateProfileStringA("S", "a", "3", folder.Path("first.ini").c_str()));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Path("first.ini")));
    EXPECT_EQ(folder.Read("there/new.ini"), "[S]\na=3\n");
}

TEST(WritePrivateProfileStringA, KeepsAReadOnlyFile) {
    const CTempFolder folder;
    const std::string file = folder.Write("a.ini", "[S]\na=1\n");
    chmod(file.c_str(), 0444);
    EXPECT_EQ(AsPlainUser(folder, [&] { return WritePrivateProfileStringA("S", "a", "2", file.c_str()); }),
              0);
    EXPECT_EQ(
        AsPlainUser(folder, [&] { return WritePrivateProfileStringA("S", "a", nullptr, file.c_str()); }), 0);
    EXPECT_EQ(folder.Read("a.ini"), "[S]\na=1\n");
    chmod(file.c_str(), 0644);
    EXPECT_EQ(AsPlainUser(folder, [&] { return WritePrivateProfileStringA("S", "a", "2", file.c_str()); }),
              1);
    EXPECT_EQ(folder.Read("a.ini"), "[S]\na=2\n");
}

TEST(WritePrivateProfileStringA, KeepsAFileInAReadOnlyFolder) {
    const CTempFolder folder;
    const std::string file = folder.Write("a.ini", "[S]\na=1\n");
    EXPECT_EQ(AsPlainUser(folder,
                          [&] {
                              chmod(folder.Path().c_str(), 0555);
                              return WritePrivateProfileStringA("S", "a", "2", file.c_str()) ||
                                     WritePrivateProfileStringA("S", "a", "2",
                                                                folder.Path("new.ini").c_str());
                          }),
              0);
    chmod(folder.Path().c_str(), 0755);
    EXPECT_EQ(folder.Read("a.ini"), "[S]\na=1\n");
    EXPECT_FALSE(std::filesystem::exists(folder.Path("new.ini")));
}

TEST(GetPrivateProfileStringA, GivesTheDefaultForAFileThatMayNotBeRead) {
    const CTempFolder folder;
    const std::string file = folder.Write("a.ini", "[S]\na=1\n");
    chmod(file.c_str(), 0);
    EXPECT_EQ(AsPlainUser(folder,
                          [&] {
                              std::array<char, 8> buffer = {};
                              GetPrivateProfileStringA("S", "a", "d", buffer.data(), 8, file.c_str());
                              return std::string(buffer.data()) == "d" &&
                                     GetPrivateProfileIntA("S", "a", 7, file.c_str()) == 7;
                          }),
              1);
}
