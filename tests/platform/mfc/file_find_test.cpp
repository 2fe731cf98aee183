#include "platform/mfc/file_find.h"

#include <gtest/gtest.h>

#include "tests/temp_folder.h"

TEST(CFileFind, StepsFromFindToFind) {
    const CTempFolder folder;
    for (const char* name : {"BR1.dwg", "BR2.a.dwg", "x.txt"})
        folder.Write(name, "");
    CFileFind find;
    const CString pattern = CString(folder.Path().c_str()) + "\\br*.DWG";
    ASSERT_TRUE(find.FindFile(pattern));
    EXPECT_TRUE(find.FindNextFile());
    EXPECT_EQ(find.GetFileName(), "BR1.dwg");
    EXPECT_EQ(find.GetFilePath(), CString(folder.Path().c_str()) + "\\BR1.dwg");
    EXPECT_EQ(find.GetFileTitle(), "BR1");
    EXPECT_FALSE(find.IsDirectory());
    EXPECT_FALSE(find.FindNextFile()); // stands on the last one now
    EXPECT_EQ(find.GetFileTitle(), "BR2.a");
    EXPECT_FALSE(find.FindNextFile());
    EXPECT_EQ(find.GetFileName(), "BR2.a.dwg");
}

TEST(CFileFind, TellsFoldersAndDots) {
    const CTempFolder folder;
    CFileFind find;
    ASSERT_TRUE(find.FindFile(folder.Path("*").c_str()));
    find.FindNextFile();
    EXPECT_TRUE(find.IsDots());
    EXPECT_TRUE(find.IsDirectory());
}

TEST(CFileFind, FindsNothingAndCanBeUsedAgain) {
    const CTempFolder folder;
    CFileFind find;
    EXPECT_FALSE(find.FindFile(folder.Path("a.dwg").c_str()));
    EXPECT_FALSE(find.FindNextFile());
    folder.Write("a.dwg", "");
    EXPECT_TRUE(find.FindFile(folder.Path("a.dwg").c_str()));
    find.Close();
    EXPECT_FALSE(find.FindNextFile());
}
