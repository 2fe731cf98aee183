#include "platform/windows/profile.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <string>

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

TEST(GetPrivateProfileStringA, GivesTheDefaultForAnEmptyList) {
    const CTempFolder folder;
    const std::string file = folder.Write("a.ini", "[S]\nno key\n; k=1\n");
    std::array<char, 16> buffer = {};
    EXPECT_EQ(GetPrivateProfileStringA("S", nullptr, "d ", buffer.data(), 16, file.c_str()), 1U);
    EXPECT_STREQ(buffer.data(), "d");
    EXPECT_EQ(GetPrivateProfileStringA("none", nullptr, "", buffer.data(), 16, file.c_str()), 0U);
    EXPECT_EQ(std::string(buffer.data(), 2), std::string(2, '\0'));
    EXPECT_EQ(GetPrivateProfileStringA(nullptr, nullptr, "", buffer.data(), 16, folder.Path("b.ini").c_str()),
              0U);
    EXPECT_EQ(GetPrivateProfileStringA(nullptr, "k", "", buffer.data(), 16, file.c_str()), 2U); // sections
    EXPECT_STREQ(buffer.data(), "S");
    buffer.fill('#');
    EXPECT_EQ(GetPrivateProfileStringA("S", nullptr, "", buffer.data(), 0, file.c_str()), 0U);
    EXPECT_EQ(buffer[0], '#');
    EXPECT_EQ(GetPrivateProfileStringA(nullptr, nullptr, "", buffer.data(), 1, file.c_str()), 0U);
    EXPECT_EQ(buffer[0], '\0');
    EXPECT_EQ(GetPrivateProfileStringA("S", "k", "d", nullptr, 16, file.c_str()), 0U);
}

TEST(GetPrivateProfileStringA, ComparesNamesWithoutCaseBeyondAsciiToo) {
    const CTempFolder folder;
    const std::string file = folder.Write("a.ini", "[工程Σ]\n钻孔a=1\n钻孔A=2\n=3\n[工程σ]\n钻孔b=4\n");
    EXPECT_EQ(Value(file, "工程σ", "钻孔A"), "1"); // the first of equal ones
    EXPECT_EQ(Value(file, "工程Σ", "钻孔b"), "none");
    EXPECT_EQ(Value(file, "工程Σ", ""), "none"); // an empty name is no key
}

TEST(GetPrivateProfileStringA, TakesTheLineAsItStandsButForBlanksAndQuotes) {
    const CTempFolder folder;
    const std::string file = folder.Write(
        "a.ini", "[S]\n\tk \t=\t v ; w = x \t\r\n;k2=c\n  ;k3=c\nk4\nk5=\nk6='\"q\"'\nk7=\"q'\n");
    EXPECT_EQ(Value(file, "S", "k"), "v ; w = x");
    EXPECT_EQ(Value(file, "S", ";k2"), "none");
    EXPECT_EQ(Value(file, "S", "k3"), "none");
    EXPECT_EQ(Value(file, "S", "k4"), "none");
    EXPECT_EQ(Value(file, "S", "k5"), "");
    EXPECT_EQ(Value(file, "S", "k6"), "\"q\"");
    EXPECT_EQ(Value(file, "S", "k7"), "\"q'");
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
                              "h=\"8\"\ni=-\nj=1.9\nk=-2147483648\nl=4294967296\nm=-0x1F\nn=0o17\n"
                              "o=0b101\np=0xfg\nq=\t 5\nr=0X10\ns=1 000\n");
    const auto number = [&](const char* key) {
        return static_cast<int>(GetPrivateProfileIntA("S", key, 99, file.c_str()));
    };
    EXPECT_EQ(number("a"), 12);
    EXPECT_EQ(number("b"), -7);
    EXPECT_EQ(number("c"), 3);
    EXPECT_EQ(number("d"), 0);
    EXPECT_EQ(number("e"), 99);
    EXPECT_EQ(number("f"), 16);
    EXPECT_EQ(number("g"), 1);
    EXPECT_EQ(number("h"), 8);
    EXPECT_EQ(number("i"), 0);
    EXPECT_EQ(number("j"), 1);
    EXPECT_EQ(number("k"), -2147483647 - 1);
    EXPECT_EQ(number("l"), 0);
    EXPECT_EQ(number("m"), -31);
    EXPECT_EQ(number("n"), 15);
    EXPECT_EQ(number("o"), 5);
    EXPECT_EQ(number("p"), 15);
    EXPECT_EQ(number("q"), 5);
    EXPECT_EQ(number("r"), 0);
    EXPECT_EQ(number("s"), 1);
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

TEST(WritePrivateProfileStringA, WritesBlanksAndQuotesAsTheyStand) {
    const CTempFolder folder;
    const std::string file = folder.Write("a.ini", "[S]\r\n\r\n; end\r\n");
    EXPECT_TRUE(WritePrivateProfileStringA("S", "a", "  x ", file.c_str()));
    EXPECT_TRUE(WritePrivateProfileStringA("S", "b", "\" y \"", file.c_str()));
    EXPECT_TRUE(WritePrivateProfileStringA("S", "c", "", file.c_str()));
    EXPECT_EQ(Bytes(file), "[S]\r\n\r\n; end\r\na=  x \r\nb=\" y \"\r\nc=\r\n");
    EXPECT_EQ(Value(file, "S", "a"), "x");
    EXPECT_EQ(Value(file, "S", "b"), " y ");
    EXPECT_EQ(Value(file, "S", "c"), "");
}

TEST(WritePrivateProfileStringA, ANullKeyRemovesTheSectionWhateverTheText) {
    const CTempFolder folder;
    const std::string file = folder.Write("a.ini", "[S]\na=1\n[T]\nb=2\n");
    EXPECT_TRUE(WritePrivateProfileStringA("s", nullptr, "text", file.c_str()));
    EXPECT_EQ(Bytes(file), "[T]\nb=2\n");
    EXPECT_FALSE(WritePrivateProfileStringA(nullptr, nullptr, nullptr, file.c_str())); // nothing is kept back
    EXPECT_EQ(Bytes(file), "[T]\nb=2\n");
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
