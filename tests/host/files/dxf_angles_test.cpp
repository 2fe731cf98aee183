#include "host/files/dxf_angles.h"

#include <gtest/gtest.h>

#include <numbers>

TEST(DxfRadians, TurnsDegreesIntoRadians) {
    EXPECT_EQ(DxfRadians(180.0), std::numbers::pi);
    EXPECT_EQ(DxfRadians(-90.0), -std::numbers::pi / 2.0);
}

TEST(DxfDegrees, ReadsBackExactlyWhatCameFromDegrees) {
    for (int i = -7200; i <= 7200; ++i) {
        const double dRadians = DxfRadians(i / 20.0);
        EXPECT_EQ(DxfRadians(DxfDegrees(dRadians)), dRadians) << i;
    }
}

TEST(DxfDegrees, IsAsNearAsItCanBeElse) {
    EXPECT_DOUBLE_EQ(DxfDegrees(0.3), 17.188733853924696);
    EXPECT_EQ(DxfDegrees(0.0), 0.0);
}
