#include "platform/windows/find_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "tests/platform/utf8_text.h"
#include "tests/temp_folder.h"

namespace {

std::vector<std::string> Found(const std::string& pattern) {
    std::vector<std::string> names;
    WIN32_FIND_DATAA data = {};
    const HANDLE search = FindFirstFileA(pattern.c_str(), &data);
    if (search == INVALID_HANDLE_VALUE) return names;
    do
        names.emplace_back(data.cFileName);
    while (FindNextFileA(search, &data));
    EXPECT_TRUE(FindClose(search));
    EXPECT_FALSE(FindClose(search));
    return names;
}

using CNames = std::vector<std::string>;

} // namespace

TEST(FindFirstFileA, FindsOneFileInAnyCaseAndTellsItsKind) {
    const CTempFolder folder;
    folder.Write("Br1.DWG", "12345");
    std::filesystem::create_directory(folder.Path(Utf8(u8"室内曲线")));
    WIN32_FIND_DATAA data = {};
    HANDLE search = FindFirstFileA((folder.Path() + "\\bR1.dwg").c_str(), &data);
    ASSERT_NE(search, INVALID_HANDLE_VALUE);
    EXPECT_STREQ(data.cFileName, "Br1.DWG");
    EXPECT_EQ(data.nFileSizeLow, 5U);
    EXPECT_EQ(data.nFileSizeHigh, 0U);
    EXPECT_EQ(data.dwFileAttributes, FILE_ATTRIBUTE_NORMAL);
    EXPECT_FALSE(FindNextFileA(search, &data));
    FindClose(search);
    search = FindFirstFileA((folder.Path() + "\\室内曲线").c_str(), &data);
    ASSERT_NE(search, INVALID_HANDLE_VALUE);
    EXPECT_TRUE(data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY);
    FindClose(search);
}

TEST(FindFirstFileA, FindsByWildcardsInTheOrderOfCapitals) {
    const CTempFolder folder;
    for (const char8_t* name :
         {u8"BRzk2-1.dwg", u8"br全部.dwg", u8"BRZK1-1~2.DWG", u8"x.dwg", u8"BRa.dxf", u8"none"})
        folder.Write(Utf8(name), "");
    EXPECT_EQ(Found(folder.Path("br*.dwg")), (CNames{"BRZK1-1~2.DWG", "BRzk2-1.dwg", "br全部.dwg"}));
    EXPECT_EQ(Found(folder.Path("br??.dwg")), CNames{"br全部.dwg"}); // one character each
    EXPECT_EQ(Found(folder.Path("*zk*-*.d?g")).size(), 2U);
    EXPECT_EQ(Found(folder.Path("*.*")).size(), 8U); // with "." and "..", and the name without a dot
    EXPECT_TRUE(Found(folder.Path("*.pdf")).empty());
}

TEST(FindFirstFileA, FindsNothingWhereThereIsNothing) {
    const CTempFolder folder;
    EXPECT_TRUE(Found(folder.Path("a.dwg")).empty());
    EXPECT_TRUE(Found(folder.Path("missing/*.*")).empty());
    EXPECT_TRUE(Found("").empty());
    WIN32_FIND_DATAA data = {};
    EXPECT_EQ(FindFirstFileA(nullptr, &data), INVALID_HANDLE_VALUE);
    EXPECT_FALSE(FindNextFileA(INVALID_HANDLE_VALUE, &data));
}

TEST(FindFirstFileA, RefusesANameThatIsNone) {
    const CTempFolder folder;
    folder.Write("a|b", "");
    EXPECT_TRUE(Found(folder.Path("a|b")).empty());
    EXPECT_TRUE(Found(folder.Path("a<*")).empty());
    folder.Write(Utf8(u8"亅"), ""); // its second byte in the code page is the bar
    EXPECT_EQ(Found(folder.Path("亅")), CNames{"亅"});
}

TEST(FindFirstFileA, FindsAFolderByItsNameButNotWithASlashAtItsEnd) {
    const CTempFolder folder;
    std::filesystem::create_directories(folder.Path("Output/GC1"));
    EXPECT_EQ(Found(folder.Path() + "\\output"), CNames{"Output"});
    EXPECT_TRUE(Found(folder.Path() + "\\output\\").empty());
    EXPECT_EQ(Found(folder.Path() + "\\output\\*"), (CNames{".", "..", "GC1"}));
    EXPECT_EQ(Found(folder.Path() + "\\output\\.."), CNames{".."});
}

TEST(FindFirstFileA, PassesOverNamesThatTheCodePageLacks) {
    const CTempFolder folder;
    for (const char8_t* name : {u8"BR가.dwg", u8"BR图.dwg"})
        folder.Write(Utf8(name), "");
    EXPECT_EQ(Found(folder.Path("BR*.dwg")), CNames{"BR图.dwg"});
}

TEST(FindFirstFileA, LeavesOutWhatWasRemovedMeanwhile) {
    const CTempFolder folder;
    for (const char* name : {"a.dwg", "b.dwg", "c.dwg"})
        folder.Write(name, "");
    WIN32_FIND_DATAA data = {};
    const HANDLE search = FindFirstFileA(folder.Path("*.dwg").c_str(), &data);
    ASSERT_NE(search, INVALID_HANDLE_VALUE);
    std::filesystem::remove(folder.Path("b.dwg"));
    folder.Write("d.dwg", "");
    EXPECT_TRUE(FindNextFileA(search, &data));
    EXPECT_STREQ(data.cFileName, "c.dwg");
    EXPECT_FALSE(FindNextFileA(search, &data));
    FindClose(search);
    EXPECT_FALSE(FindNextFileA(search, &data));
}

TEST(FindFirstFileA, FindsInTheCurrentFolder) {
    const CTempFolder folder;
    folder.Write("A.dwg", "");
    std::filesystem::current_path(folder.Path());
    EXPECT_EQ(Found("*.dwg"), CNames{"A.dwg"});
    EXPECT_EQ(Found("a.DWG"), CNames{"A.dwg"});
    std::filesystem::current_path("/");
}
