#include "host/files/dxf_codes.h"

#include <gtest/gtest.h>

TEST(DxfKindOf, TellsTheKindAtBothEndsOfARange) {
    EXPECT_EQ(DxfKindOf(0), CDxfKind::Text);
    EXPECT_EQ(DxfKindOf(9), CDxfKind::Text);
    EXPECT_EQ(DxfKindOf(10), CDxfKind::Real);
    EXPECT_EQ(DxfKindOf(59), CDxfKind::Real);
    EXPECT_EQ(DxfKindOf(60), CDxfKind::Short);
    EXPECT_EQ(DxfKindOf(99), CDxfKind::Long);
    EXPECT_EQ(DxfKindOf(160), CDxfKind::LongLong);
    EXPECT_EQ(DxfKindOf(290), CDxfKind::Flag);
    EXPECT_EQ(DxfKindOf(310), CDxfKind::Bytes);
    EXPECT_EQ(DxfKindOf(1004), CDxfKind::Bytes);
    EXPECT_EQ(DxfKindOf(1005), CDxfKind::Text);
    EXPECT_EQ(DxfKindOf(1071), CDxfKind::Long);
}

TEST(DxfKindOf, KnowsNoneBetweenTheRanges) {
    for (const int nCode : {-1, 80, 106, 150, 180, 240, 490, 998, 1072})
        EXPECT_EQ(DxfKindOf(nCode), CDxfKind::None) << nCode;
}
