#include "platform/acad/wide_names.h"

#include <gtest/gtest.h>

TEST(WideNames, CompareWithoutCaseBeyondAsciiToo) {
    EXPECT_TRUE(SameName(L"Dashed2", L"DASHED2"));
    EXPECT_TRUE(SameName(L"σ线", L"Σ线"));
    EXPECT_TRUE(SameName(L"ｂｒ", L"ＢＲ"));
    EXPECT_FALSE(SameName(L"Dashed2", L"Dashed"));
    EXPECT_FALSE(SameName(L"虚线", L"实线"));
    EXPECT_TRUE(SameName(L"", L""));
}

TEST(WideNames, UpperCaseLeavesWhatHasNone) {
    EXPECT_EQ(UpperName(L"bren_2图"), L"BREN_2图");
}
