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
