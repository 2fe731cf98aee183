#include "platform/windows/path.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/windows/code_page.h"
#include "tests/platform/utf8_text.h"
#include "tests/temp_folder.h"

TEST(ResolvePath, TakesEitherSlashAndAnyCase) {
    const CTempFolder folder;
    std::filesystem::create_directories(folder.Path(Utf8(u8"Output/GC1/室内曲线")));
    folder.Write(Utf8(u8"Output/GC1/室内曲线/BR1.dwg"), "");
    std::string utf8;
    EXPECT_TRUE(ResolvePath("", folder.Path() + "\\output\\gc1\\室内曲线/br1.DWG", &utf8));
    EXPECT_EQ(utf8, folder.Path(Utf8(u8"Output/GC1/室内曲线/BR1.dwg")));
    EXPECT_TRUE(ResolvePath(folder.Path("OUTPUT"), "GC1", &utf8));
    EXPECT_EQ(utf8, folder.Path("Output/GC1"));
}

TEST(ResolvePath, PrefersTheExactSpelling) {
    const CTempFolder folder;
    for (const char* name : {"a.txt", "A.txt", "A.TXT"})
        folder.Write(name, "");
    std::string utf8;
    EXPECT_TRUE(ResolvePath(folder.Path(), "A.txt", &utf8));
    EXPECT_EQ(utf8, folder.Path("A.txt"));
    EXPECT_TRUE(ResolvePath(folder.Path(), "a.TXT", &utf8));
    EXPECT_EQ(utf8, folder.Path("A.TXT"));
}

TEST(ResolvePath, KeepsTheRestOfAPathThatIsNotThereAsGiven) {
    const CTempFolder folder;
    std::filesystem::create_directory(folder.Path("Data"));
    std::string utf8;
    EXPECT_FALSE(ResolvePath(folder.Path(), "DATA\\New\\a.db", &utf8));
    EXPECT_EQ(utf8, folder.Path("Data/New/a.db"));
}

TEST(ResolvePath, DoesNotDivideACharacterWhoseSecondByteIsABackslash) {
    const CTempFolder folder;
    const std::string name = "\x81\x5C"; // one character
    folder.Write(ToUtf8(name), "");
    std::string utf8;
    EXPECT_TRUE(ResolvePath(folder.Path(), name, &utf8));
    EXPECT_EQ(utf8, folder.Path(ToUtf8(name)));
    EXPECT_EQ(LastSlash("a\\" + name), 1U);
    EXPECT_EQ(LastSlash(name), std::string_view::npos);
}

TEST(ResolvePath, GivesNothingForBytesThatAreNoCharacter) {
    std::string utf8 = "x";
    EXPECT_FALSE(ResolvePath("/tmp", "\xB9", &utf8));
    EXPECT_EQ(utf8, "");
}

TEST(ResolvePath, TakesAnAbsolutePathWithoutItsBase) {
    const CTempFolder folder;
    std::string utf8;
    EXPECT_TRUE(ResolvePath("/nowhere", folder.Path(), &utf8));
    EXPECT_TRUE(ResolvePath("", "/", &utf8));
    EXPECT_EQ(utf8, "/");
    EXPECT_FALSE(ResolvePath("", "", &utf8));
    EXPECT_TRUE(IsAbsolutePath("\\x"));
    EXPECT_FALSE(IsAbsolutePath("x\\"));
    EXPECT_FALSE(IsAbsolutePath(""));
}

TEST(ResolvePath, TakesDotsAndSlashesAtTheEnd) {
    const CTempFolder folder;
    std::filesystem::create_directories(folder.Path("Data/Sub"));
    folder.Write("a.txt", "");
    std::string utf8;
    EXPECT_TRUE(ResolvePath(folder.Path(), "data\\sub\\", &utf8));
    EXPECT_EQ(utf8, folder.Path("Data/Sub"));
    EXPECT_TRUE(ResolvePath(folder.Path(), "DATA\\..\\.\\A.TXT", &utf8));
    EXPECT_TRUE(std::filesystem::equivalent(utf8, folder.Path("a.txt")));
}

TEST(ResolvePath, GoesBackOutOfAFolderThatIsNotThere) {
    const CTempFolder folder;
    folder.Write("A.txt", "");
    std::string utf8;
    EXPECT_TRUE(ResolvePath(folder.Path(), "missing\\..\\a.txt", &utf8));
    EXPECT_EQ(utf8, folder.Path("A.txt"));
    EXPECT_TRUE(ResolvePath(folder.Path(), "missing\\more\\.\\..\\..\\a.txt", &utf8));
    EXPECT_EQ(utf8, folder.Path("A.txt"));
    EXPECT_FALSE(ResolvePath(folder.Path(), "missing\\more\\..\\a.txt", &utf8));
    EXPECT_EQ(utf8, folder.Path("missing/a.txt"));
    EXPECT_TRUE(ResolvePath("", "/no-such-folder/../tmp", &utf8));
    EXPECT_EQ(utf8, "/tmp");
    std::filesystem::current_path(folder.Path());
    EXPECT_TRUE(ResolvePath("", "missing/../a.txt", &utf8));
    EXPECT_TRUE(std::filesystem::equivalent(utf8, "A.txt"));
    std::filesystem::current_path("/");
}

TEST(ResolvePath, TakesSeveralSlashesForOne) {
    const CTempFolder folder;
    folder.Write("a.txt", "");
    std::string utf8;
    EXPECT_TRUE(ResolvePath("", "\\\\" + folder.Path() + "\\/a.txt", &utf8)); // as of a network folder
    EXPECT_EQ(utf8, folder.Path("a.txt"));
    EXPECT_FALSE(ResolvePath(folder.Path(), "\\\\host\\share\\a.txt", &utf8));
    EXPECT_EQ(utf8, "/host/share/a.txt");
}

TEST(ResolvePath, PassesOverNamesThatTheCodePageLacks) {
    const CTempFolder folder;
    folder.Write(Utf8(u8"가.txt"), "");
    folder.Write("B.txt", "");
    std::string utf8;
    EXPECT_TRUE(ResolvePath(folder.Path(), "b.TXT", &utf8));
    EXPECT_EQ(utf8, folder.Path("B.txt"));
    EXPECT_FALSE(ResolvePath(folder.Path(), "?.txt", &utf8));
}

TEST(SameFileName, ComparesLettersBeyondAsciiToo) {
    EXPECT_TRUE(SameFileName("Abc", "aBC"));
    EXPECT_TRUE(SameFileName("图Σ", "图σ"));
    EXPECT_FALSE(SameFileName("\xB0\x41", "\xB0\x61")); // two characters, not two letters
    EXPECT_FALSE(SameFileName("a", "ab"));
}

TEST(FileNames, AreInTheOrderOfTheirCapitals) {
    const CTempFolder folder;
    for (const char8_t* name : {u8"b", u8"C", u8"a", u8"图", u8"가"})
        folder.Write(Utf8(name), "");
    EXPECT_EQ(FileNames(folder.Path()), (std::vector<std::string>{"a", "b", "C", "图"}));
    EXPECT_TRUE(FileNames(folder.Path("missing")).empty());
}

TEST(CanStandInFileName, TakesWhatEverySystemTakes) {
    for (const char* const szName : {"1-1", "ZK 1", "a~b", ".", "\xE9\x92\xBB"})
        EXPECT_TRUE(CanStandInFileName(szName)) << szName;
    for (const char* const szName :
         {"", "a/b", "a\\b", "c:", "*", "?", "\"", "<", ">", "a|b", "a\tb", "a\x7F"})
        EXPECT_FALSE(CanStandInFileName(szName)) << szName;
}
