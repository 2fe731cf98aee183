#include "host/files/code_page.h"

#include <gtest/gtest.h>

TEST(CodePageOfDwg, IsTheSystemsPageOrTheWesternOne) {
    EXPECT_EQ(CodePageOfDwg(g_nDwgAnsi936), 936);
    EXPECT_EQ(CodePageOfDwg(g_nDwgAnsi1252), 1252);
    EXPECT_EQ(CodePageOfDwg(42), 1361);
    EXPECT_EQ(CodePageOfDwg(0), 1252);
    EXPECT_EQ(CodePageOfDwg(0xFFFF), 1252);
}

TEST(CodePageOfDxf, IsTheOneThatTheFileNames) {
    EXPECT_EQ(CodePageOfDxf("ANSI_936"), 936);
    EXPECT_EQ(CodePageOfDxf("gb2312"), 936);
    EXPECT_EQ(CodePageOfDxf("Big5"), 950);
    EXPECT_EQ(CodePageOfDxf("dos850"), 850);
}

TEST(CodePageOfDxf, IsTheWesternOneForANameWithoutANumber) {
    EXPECT_EQ(CodePageOfDxf("mac-roman"), 1252);
    EXPECT_EQ(CodePageOfDxf(""), 1252);
    EXPECT_EQ(CodePageOfDxf("ANSI_99999999999"), 1252);
}
