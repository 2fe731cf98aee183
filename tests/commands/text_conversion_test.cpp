#include "commands/text_conversion.h"

#include <cstring>
#include <gtest/gtest.h>
#include <string>

TEST(TextConversion, GoesThereAndBack) {
    EXPECT_STREQ(ToWide("轴向应变ε"), L"轴向应变ε");
    EXPECT_STREQ(ToNarrow(L"轴向应变ε"), "轴向应变ε");
}

TEST(TextConversion, KeepsItsResultUntilTheNextCallOnly) {
    const ACHAR* pFirst = ToWide("a");
    EXPECT_EQ(ToWide("b"), pFirst);
    EXPECT_STREQ(pFirst, L"b");
}

TEST(TextConversion, IsCutAtItsBufferBetweenCharacters) {
    std::string strLong = "x";
    for (int i = 0; i < 2000; i++)
        strLong += "剪";
    EXPECT_EQ(std::wcslen(ToWide(strLong.c_str())), 1023U);
    const std::string strCut = ToNarrow((L"x" + std::wstring(2000, L'剪')).c_str());
    EXPECT_EQ(strCut.size(), 1023U);
    EXPECT_EQ(strCut.substr(1021), "剪");
}
