#include "analysis/test_method.h"

#include <gtest/gtest.h>

TEST(TestMethodOf, KnowsTheThreeTexts) {
    EXPECT_EQ(TestMethodOf("不固结不排水剪"), CTestMethod::UU);
    EXPECT_EQ(TestMethodOf("固结不排水剪"), CTestMethod::CU);
    EXPECT_EQ(TestMethodOf("固结排水剪"), CTestMethod::CD);
}

TEST(TestMethodOf, ComparesExactly) {
    for (const char* pText : {"", " 固结不排水剪", "固结不排水剪 ", "固结不排水", "CU"})
        EXPECT_EQ(TestMethodOf(pText), CTestMethod::None) << pText;
}
