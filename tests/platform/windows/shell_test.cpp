#include "platform/windows/shell.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <bit>
#include <cstdlib>
#include <filesystem>

#include "tests/platform/utf8_text.h"
#include "tests/platform/windows/waited_file.h"
#include "tests/temp_folder.h"

namespace {

/// A folder with programs that write their name and arguments to the file out in it, and a desktop of its
/// own.
class ShellExecute : public testing::Test {
protected:
    void SetUp() override {
        std::filesystem::create_directory(m_folder.Path("bin"));
        setenv("PATH", (m_folder.Path("bin") + ":/usr/bin:/bin").c_str(), 1);
        setenv("OUT", m_folder.Path("out").c_str(), 1);
    }
    void TearDown() override {
        setenv("PATH", m_path.c_str(), 1);
        unsetenv("OUT");
    }

    /// UTF-8 name below the folder.
    void Program(const std::string& name) const {
        const std::string path = m_folder.Write(
            name, "#!/bin/sh\n{ basename \"$0\"; pwd; printf '[%s]' \"$@\"; } > \"$OUT.part\"\n"
                  "mv \"$OUT.part\" \"$OUT\"\n");
        chmod(path.c_str(), 0755);
    }
    /// Operation "open" on a file of the folder.
    INT_PTR Open(const std::string& file, const char* parameters = nullptr,
                 const char* directory = nullptr) const {
        return Code("open", m_folder.Path() + "\\" + file, parameters, directory);
    }
    static INT_PTR Code(const char* operation, const std::string& file, const char* parameters = nullptr,
                        const char* directory = nullptr) {
        return std::bit_cast<INT_PTR>(
            ShellExecuteA(nullptr, operation, file.c_str(), parameters, directory, SW_SHOW));
    }
    /// What the program that was started wrote.
    std::string Out() const {
        std::string out = WaitedFile(m_folder, "out");
        std::filesystem::remove(m_folder.Path("out"));
        return out;
    }
    std::string Here() const { return std::filesystem::current_path().string() + "\n"; }

    const CTempFolder m_folder;
    const std::string m_path = std::getenv("PATH");
};

} // namespace

TEST_F(ShellExecute, StartsAProgramWithItsArguments) {
    Program("TervoConfig.exe");
    EXPECT_GT(Open("TervoConfig.exe", "/s \"成果图-室内试验"), 32);
    EXPECT_EQ(Out(), "TervoConfig.exe\n" + Here() + Utf8(u8"[/s][成果图-室内试验]"));
}

TEST_F(ShellExecute, FindsAProgramInAnyCaseWithEitherSlashAndWithoutItsEnding) {
    std::filesystem::create_directory(m_folder.Path("Suite"));
    Program("Suite/TervoConfig");
    EXPECT_GT(Open("SUITE/tervoconfig.EXE"), 32);
    EXPECT_EQ(Out(), "TervoConfig\n" + Here() + "[]");
    Program("Suite/other.exe");
    EXPECT_GT(Open("suite\\OTHER"), 32);
    EXPECT_EQ(Out(), "other.exe\n" + Here() + "[]");
}

TEST_F(ShellExecute, PrefersTheNameAsGiven) {
    Program("a");
    Program("a.exe");
    EXPECT_GT(Open("a.exe"), 32);
    EXPECT_EQ(Out(), "a.exe\n" + Here() + "[]");
    EXPECT_GT(Open("a"), 32);
    EXPECT_EQ(Out(), "a\n" + Here() + "[]");
    std::filesystem::create_directory(m_folder.Path("b")); // a folder is no program
    Program("b.exe");
    EXPECT_GT(Open("b"), 32);
    EXPECT_EQ(Out(), "b.exe\n" + Here() + "[]");
}

TEST_F(ShellExecute, StartsInTheFolderGivenAndSeeksBelowIt) {
    std::filesystem::create_directory(m_folder.Path(Utf8(u8"工作")));
    Program(Utf8(u8"工作/a.exe"));
    const std::string below = m_folder.Path() + "\\工作";
    EXPECT_GT(Code("open", "A.EXE", "x", below.c_str()), 32);
    EXPECT_EQ(Out(), "a.exe\n" + m_folder.Path(Utf8(u8"工作")) + "\n[x]");
    std::filesystem::current_path(m_folder.Path());
    EXPECT_GT(Code("open", "a", "y", "工作"), 32);
    EXPECT_EQ(Out(), "a.exe\n" + m_folder.Path(Utf8(u8"工作")) + "\n[y]");
    std::filesystem::current_path("/");
    EXPECT_EQ(Code("open", "a.exe", "x", (m_folder.Path() + "/missing").c_str()), SE_ERR_PNF);
}

TEST_F(ShellExecute, SeeksAPlainNameInThePath) {
    Program("bin/ToolOfTheSuite");
    EXPECT_GT(Code(nullptr, "toolofthesuite.exe", "1 2"), 32);
    EXPECT_EQ(Out(), "ToolOfTheSuite\n" + Here() + "[1][2]");
}

TEST_F(ShellExecute, LeavesDocumentsFoldersAndAddressesToTheDesktop) {
    Program("bin/xdg-open");
    m_folder.Write(Utf8(u8"说明.TXT"), "text");
    EXPECT_GT(Open("说明.txt"), 32);
    EXPECT_EQ(Out(), "xdg-open\n" + Here() + "[" + m_folder.Path(Utf8(u8"说明.TXT")) + "]");
    EXPECT_GT(Open("BIN\\"), 32);
    EXPECT_EQ(Out(), "xdg-open\n" + Here() + "[" + m_folder.Path("bin") + "]");
    EXPECT_GT(Code("", "https://example.org/a?b=c&d"), 32);
    EXPECT_EQ(Out(), "xdg-open\n" + Here() + "[https://example.org/a?b=c&d]");
    chmod(m_folder.Write("data.bin", "no program").c_str(), 0755);
    EXPECT_GT(Open("data.bin"), 32);
    EXPECT_EQ(Out(), "xdg-open\n" + Here() + "[" + m_folder.Path("data.bin") + "]");
    chmod(m_folder.Write("foreign.exe", "MZ of another system").c_str(), 0755);
    EXPECT_GT(Open("foreign.exe"), 32);
    EXPECT_EQ(Out(), "xdg-open\n" + Here() + "[" + m_folder.Path("foreign.exe") + "]");
}

TEST_F(ShellExecute, TellsWhyNothingWasOpened) {
    setenv("PATH", m_folder.Path("bin").c_str(), 1); // no desktop
    m_folder.Write("a.txt", "text");
    m_folder.Write("plain.exe", "#!/bin/sh\n");
    EXPECT_EQ(Open("missing.exe"), SE_ERR_FNF);
    EXPECT_EQ(Code("open", "missing.exe"), SE_ERR_FNF);
    EXPECT_EQ(Open("missing\\a.exe"), SE_ERR_PNF);
    EXPECT_EQ(Open("plain.exe"), SE_ERR_ACCESSDENIED);
    EXPECT_EQ(Open("a.txt"), SE_ERR_NOASSOC);
    EXPECT_EQ(Code("open", "https://example.org"), SE_ERR_NOASSOC);
    EXPECT_EQ(Code("print", m_folder.Path("a.txt")), SE_ERR_NOASSOC);
    EXPECT_EQ(Code("open", ""), SE_ERR_FNF);
    EXPECT_EQ(Code("open", "\xB9"), SE_ERR_FNF);
    EXPECT_EQ(std::bit_cast<INT_PTR>(ShellExecuteA(nullptr, nullptr, nullptr, nullptr, nullptr, SW_SHOW)),
              SE_ERR_FNF);
}
