#include "platform/acad/plane_transform.h"

#include <gtest/gtest.h>

#include <limits>
#include <numbers>

TEST(PlaneTransform, TellsScaleTurnAndMirroring) {
    const AcGeMatrix3d turn = AcGeMatrix3d::rotation(0.5, AcGeVector3d::kZAxis, {3, 4, 0});
    const auto both = PlaneTransform(AcGeMatrix3d::scaling(2.0, {1, 1, 0}) * turn);
    ASSERT_TRUE(both);
    EXPECT_NEAR(both->m_dScale, 2.0, 1e-12);
    EXPECT_NEAR(both->m_dTurn, 0.5, 1e-12);
    EXPECT_FALSE(both->m_bMirrored);
    const auto mirror = PlaneTransform(AcGeMatrix3d::mirroring({1, 1, 0}, AcGeVector3d::kXAxis));
    ASSERT_TRUE(mirror);
    EXPECT_TRUE(mirror->m_bMirrored);
    EXPECT_NEAR(mirror->m_dTurn, std::numbers::pi, 1e-12);
    EXPECT_TRUE(PlaneTransform(AcGeMatrix3d::translation({1, 2, 3})));
}

TEST(PlaneTransform, IsNoneForWhatFlatFiguresCannotFollow) {
    AcGeMatrix3d uneven;
    uneven.entry[0][0] = 2.0;
    AcGeMatrix3d sheared;
    sheared.entry[0][1] = 1.0;
    AcGeMatrix3d broken;
    broken.entry[1][3] = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE(PlaneTransform(uneven));
    EXPECT_FALSE(PlaneTransform(sheared));
    EXPECT_FALSE(PlaneTransform(broken));
    EXPECT_FALSE(PlaneTransform(AcGeMatrix3d::scaling(0.0, {1, 1, 0})));
    EXPECT_FALSE(PlaneTransform(AcGeMatrix3d::rotation(0.3, AcGeVector3d::kYAxis, AcGePoint3d::kOrigin)));
}
