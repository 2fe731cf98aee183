#include "platform/windows/profile.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <string>

#include "platform/windows/descriptor.h"
#include "platform/windows/file_bytes.h"
#include "tests/platform/utf8_text.h"
#include "tests/temp_folder.h"

namespace {

std::string Value(const std::string& file, const char* section, const char* key,
                  const char* defaultText = "none") {
    std::array<char, 256> buffer = {};
    GetPrivateProfileStringA(section, key, defaultText, buffer.data(), buffer.size(), file.c_str());
    return buffer.data();
}

std::string Bytes(const std::string& file) {
    std::string bytes = "unreadable";
    ReadFileWhole(file, &bytes);
    return bytes;
}

/// Writes count keys of its own one after the other; the exit status tells of a write that failed.
[[noreturn]] void WriteKeys(const std::string& file, const std::string& prefix, int count) {
    for (int i = 0; i < count; ++i)
        if (!WritePrivateProfileStringA("S", (prefix + std::to_string(i)).c_str(), "值", file.c_str()))
            _exit(1);
    _exit(0);
}

} // namespace

TEST(GetPrivateProfileStringA, GivesTheDefaultWithoutItsTrailingBlanks) {
    const CTempFolder folder;
    const std::string file = folder.Write("a.ini", "[S]\nk=v\n");
    EXPECT_EQ(Value(file, "S", "x", " d \t"), " d");
    EXPECT_EQ(Value(folder.Path("missing.ini"), "S", "k"), "none");
    EXPECT_EQ(Value(file, "S", "x", nullptr), "");
    EXPECT_EQ(Value(file, "s", "K"), "v");
}

TEST(GetPrivateProfileStringA, CutsAtACharacterAndReturnsTheSizeLessOne) {
    const CTempFolder folder;
    const std::string file = folder.Write("a.ini", "[S]\nk=中国地质大学工程勘察院\n");
    std::array<char, 16> buffer = {};
    buffer.fill('#');
    EXPECT_EQ(GetPrivateProfileStringA("S", "k", "", buffer.data(), 15, file.c_str()), 14U);
    EXPECT_STREQ(buffer.data(), "中国地质大学工");
    EXPECT_EQ(GetPrivateProfileStringA("S", "k", "", buffer.data(), 14, file.c_str()), 13U);
    EXPECT_STREQ(buffer.data(), "中国地质大学");
    EXPECT_EQ(GetPrivateProfileStringA("S", "k", "", buffer.data(), 1, file.c_str()), 0U);
    EXPECT_STREQ(buffer.data(), "");
    EXPECT_EQ(GetPrivateProfileStringA("S", "k", "", buffer.data(), 0, file.c_str()), 0U);
    EXPECT_EQ(buffer[15], '#');
    std::array<char, 23> whole = {};
    EXPECT_EQ(GetPrivateProfileStringA("S", "k", "", whole.data(), 23, file.c_str()), 22U);
    EXPECT_STREQ(whole.data(), "中国地质大学工程勘察院");
}

TEST(GetPrivateProfileStringA, ListsKeysAndSectionsWithTwoZeros) {
    const CTempFolder folder;
    const std::string file = folder.Write("a.ini", "[One]\nab=1\ncd=2\n[二]\n");
    std::array<char, 32> buffer = {};
    buffer.fill('#');
    EXPECT_EQ(GetPrivateProfileStringA("One", nullptr, "", buffer.data(), 32, file.c_str()), 6U);
    EXPECT_EQ(std::string(buffer.data(), 7), std::string("ab\0cd\0\0", 7));
    EXPECT_EQ(GetPrivateProfileStringA(nullptr, nullptr, "", buffer.data(), 32, file.c_str()), 7U);
    EXPECT_EQ(std::string(buffer.data(), 8), std::string("One\0二\0\0", 8));
}

TEST(GetPrivateProfileStringA, ListThatIsTooLongGivesTheSizeLessTwo) {
    const CTempFolder folder;
    const std::string file = folder.Write("a.ini", "[S]\nab=1\ncd=2\n工程=3\n");
    std::array<char, 16> buffer = {};
    for (DWORD size = 2; size <= 11; ++size) {
        buffer.fill('#');
        EXPECT_EQ(GetPrivateProfileStringA("S", nullptr, "", buffer.data(), size, file.c_str()), size - 2)
            << size;
        EXPECT_EQ(buffer[size - 1], '\0') << size;
        EXPECT_EQ(buffer[size - 2], '\0') << size;
        EXPECT_EQ(buffer[size], '#') << size;
    }
    EXPECT_EQ(std::string(buffer.data(), 11), std::string("ab\0cd\0工\0\0\0", 11)); // no half character
    EXPECT_EQ(GetPrivateProfileStringA("S", nullptr, "", buffer.data(), 12, file.c_str()), 11U);
}

TEST(GetPrivateProfileStringA, FindsTheFileInAnyCaseWithEitherSlash) {
    const CTempFolder folder;
    folder.Write("Settings.ini", "[S]\nk=v\n");
    EXPECT_EQ(Value(folder.Path() + "\\SETTINGS.INI", "S", "k"), "v");
}

TEST(GetPrivateProfileStringA, TellsACharacterThatTheCodePageLacks) {
    const CTempFolder folder;
    const std::string file = folder.Write("a.ini", "\xEF\xBB\xBF" + Utf8(u8"[S]\nk=😀\n"));
    testing::internal::CaptureStderr();
    EXPECT_EQ(Value(file, "S", "k"), "none");
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              file + ": [S] k: the system code page has no character " + Utf8(u8"😀") + "\n");
}

TEST(GetPrivateProfileIntA, TakesASignAndDigitsUpToOtherText) {
    const CTempFolder folder;
    const std::string file =
        folder.Write("a.ini", "[S]\na=12\nb=-7x\nc=+3\nd=text\ne=\nf=0x10\ng= 4294967297\n"
                              "h=\"8\"\ni=-\nj=1.9\n");
    const auto number = [&](const char* key) {
        return static_cast<int>(GetPrivateProfileIntA("S", key, 99, file.c_str()));
    };
    EXPECT_EQ(number("a"), 12);
    EXPECT_EQ(number("b"), -7);
    EXPECT_EQ(number("c"), 3);
    EXPECT_EQ(number("d"), 0);
    EXPECT_EQ(number("e"), 99);
    EXPECT_EQ(number("f"), 0);
    EXPECT_EQ(number("g"), 1);
    EXPECT_EQ(number("h"), 8);
    EXPECT_EQ(number("i"), 0);
    EXPECT_EQ(number("j"), 1);
    EXPECT_EQ(number("missing"), 99);
    EXPECT_EQ(static_cast<int>(GetPrivateProfileIntA("S", "missing", -1, file.c_str())), -1);
}

TEST(WritePrivateProfileStringA, MakesAFileInTheCodePage) {
    const CTempFolder folder;
    const std::string file = folder.Path("Marks.ini");
    EXPECT_TRUE(WritePrivateProfileStringA("CBRENDlg", "SYQX工程1ZK一", "|1|2|", file.c_str()));
    EXPECT_EQ(Bytes(file), "[CBRENDlg]\nSYQX工程1ZK一=|1|2|\n");
    EXPECT_EQ(Value(file, "cbrendlg", "syqx工程1zk一"), "|1|2|");
}

TEST(WritePrivateProfileStringA, ReplacesAndRemoves) {
    const CTempFolder folder;
    const std::string file = folder.Write("a.ini", "; head\n[S]\na=1\nb=2\n[T]\nc=3\n");
    EXPECT_TRUE(WritePrivateProfileStringA("S", "A", "9", file.c_str()));
    EXPECT_TRUE(WritePrivateProfileStringA("S", "b", nullptr, file.c_str()));
    EXPECT_TRUE(WritePrivateProfileStringA("S", "missing", nullptr, file.c_str()));
    EXPECT_EQ(Bytes(file), "; head\n[S]\na=9\n[T]\nc=3\n");
    EXPECT_TRUE(WritePrivateProfileStringA("T", nullptr, nullptr, file.c_str()));
    EXPECT_EQ(Bytes(file), "; head\n[S]\na=9\n");
}

TEST(WritePrivateProfileStringA, LeavesNothingBesideTheFile) {
    const CTempFolder folder;
    const std::string file = folder.Path("a.ini");
    EXPECT_TRUE(WritePrivateProfileStringA("S", "a", "1", file.c_str()));
    EXPECT_TRUE(WritePrivateProfileStringA("S", "a", "2", file.c_str()));
    const std::filesystem::directory_iterator entries(folder.Path());
    EXPECT_EQ(std::distance(begin(entries), end(entries)), 1);
}

TEST(WritePrivateProfileStringA, RefusesWithoutTouchingAnything) {
    const CTempFolder folder;
    const std::string file = folder.Path("a.ini");
    EXPECT_FALSE(WritePrivateProfileStringA(nullptr, nullptr, nullptr, file.c_str()));
    EXPECT_FALSE(WritePrivateProfileStringA("S", "a=b", "1", file.c_str()));
    EXPECT_FALSE(WritePrivateProfileStringA("S", "a", "1\r\nb=2", file.c_str()));
    EXPECT_FALSE(WritePrivateProfileStringA("S", "a", "1", folder.Path("missing/a.ini").c_str()));
    EXPECT_TRUE(WritePrivateProfileStringA("S", "a", nullptr, file.c_str()));
    EXPECT_FALSE(std::filesystem::exists(file));
}

TEST(WritePrivateProfileStringA, LosesNoKeyOfTwoProcessesThatWriteAtOnce) {
    constexpr int COUNT = 60;
    const CTempFolder folder;
    const std::string file = folder.Path("a.ini");
    std::array<pid_t, 2> writers = {};
    for (std::size_t i = 0; i < writers.size(); ++i) {
        writers[i] = fork();
        ASSERT_GE(writers[i], 0);
        if (writers[i] == 0) WriteKeys(file, i == 0 ? "a" : "b", COUNT);
    }
    int ended = 0;
    std::size_t read = 0;
    while (ended < 2) { // a reader sees whole files only: it has all keys up to the last, and no torn line
        int status = 0;
        if (waitpid(-1, &status, WNOHANG) > 0) {
            EXPECT_EQ(status, 0);
            ++ended;
        }
        std::string bytes;
        if (!ReadFileWhole(file, &bytes) || bytes.empty()) continue;
        EXPECT_TRUE(bytes.starts_with("[S]\n") && bytes.ends_with("=值\n")) << bytes;
        EXPECT_GE(bytes.size(), read);
        read = bytes.size();
    }
    for (int i = 0; i < COUNT; ++i) {
        EXPECT_EQ(Value(file, "S", ("a" + std::to_string(i)).c_str()), "值");
        EXPECT_EQ(Value(file, "S", ("b" + std::to_string(i)).c_str()), "值");
    }
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
    EXPECT_EQ(Bytes(file), "[S]\na=1\n");
    flock(lock.Get(), LOCK_UN); // the child's copy of the descriptor does not hold it any longer either
    int status = 0;
    ASSERT_EQ(waitpid(writer, &status, 0), writer);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(Bytes(file), "[S]\na=1\nb=2\n");
}
