#include "host/files/dwg_types.h"

#include <gtest/gtest.h>

TEST(FindDwgType, TellsNamesAndWhetherItIsAnEntitys) {
    const CDwgType* const pCircle = FindDwgType(0x12);
    ASSERT_TRUE(pCircle);
    EXPECT_TRUE(pCircle->m_bEntity);
    EXPECT_STREQ(pCircle->m_pDxfName, L"CIRCLE");
    EXPECT_STREQ(pCircle->m_pClassName, L"AcDbCircle");
    ASSERT_TRUE(FindDwgType(0x4F));
    EXPECT_FALSE(FindDwgType(0x4F)->m_bEntity);
    EXPECT_STREQ(FindDwgType(0x1F3)->m_pDxfName, L"ACAD_PROXY_OBJECT");
}

TEST(FindDwgType, FindsEveryCodeThatItHasAndNoOther) {
    int nTypes = 0;
    for (std::uint16_t nCode = 0; nCode < 1000; ++nCode) {
        const CDwgType* const pType = FindDwgType(nCode);
        EXPECT_TRUE(!pType || pType->m_nCode == nCode);
        nTypes += pType ? 1 : 0;
    }
    EXPECT_EQ(nTypes, 78);
    EXPECT_FALSE(FindDwgType(0x09));
    EXPECT_FALSE(FindDwgType(500));
}
