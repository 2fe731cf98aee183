#include "platform/acad/geometry.h"

#include <gtest/gtest.h>

#include <limits>
#include <numbers>

namespace {

const double g_dNan = std::numeric_limits<double>::quiet_NaN();
const double g_dInf = std::numeric_limits<double>::infinity();

void ExpectNear(const AcGePoint3d& actual, const AcGePoint3d& expected) {
    EXPECT_NEAR(actual.x, expected.x, 1e-12);
    EXPECT_NEAR(actual.y, expected.y, 1e-12);
    EXPECT_NEAR(actual.z, expected.z, 1e-12);
}

} // namespace

TEST(AcGeVector3d, IsEqualWithinTheVectorTolerance) {
    EXPECT_TRUE(AcGeVector3d::kXAxis == AcGeVector3d(1.0, 5e-11, 0.0));
    EXPECT_TRUE(AcGeVector3d::kXAxis != AcGeVector3d(1.0, 2e-10, 0.0));
    EXPECT_TRUE(AcGeVector3d::kXAxis != AcGeVector3d(g_dNan, 0.0, 0.0));
}

TEST(AcGeVector3d, OfLengthZeroHasNoDirection) {
    EXPECT_TRUE(AcGeVector3d::kIdentity.isZeroLength());
    EXPECT_EQ(AcGeVector3d::kIdentity.normal().length(), 0.0);
}

TEST(AcGeMatrix3d, TranslationMovesPointsAndLeavesVectors) {
    const AcGeMatrix3d move = AcGeMatrix3d::translation({10.0, -20.0, 3.0});
    AcGePoint3d point(1.0, 2.0, 3.0);
    AcGeVector3d vector(1.0, 2.0, 3.0);
    ExpectNear(point.transformBy(move), {11.0, -18.0, 6.0});
    EXPECT_EQ(vector.transformBy(move), AcGeVector3d(1.0, 2.0, 3.0));
}

TEST(AcGeMatrix3d, RotationTurnsCounterClockwiseAboutItsCenter) {
    const AcGeMatrix3d turn =
        AcGeMatrix3d::rotation(std::numbers::pi / 2, AcGeVector3d::kZAxis, {10.0, 10.0, 0.0});
    ExpectNear(AcGePoint3d(12.0, 10.0, 5.0).transformBy(turn), {10.0, 12.0, 5.0});
    ExpectNear(AcGePoint3d(10.0, 10.0, 0.0).transformBy(turn), {10.0, 10.0, 0.0});
}

TEST(AcGeMatrix3d, RotationAboutASlantedAxisKeepsTheAxis) {
    const AcGeMatrix3d turn =
        AcGeMatrix3d::rotation(2.0 * std::numbers::pi / 3, {3.0, 3.0, 3.0}, AcGePoint3d::kOrigin);
    ExpectNear(AcGePoint3d(1.0, 0.0, 0.0).transformBy(turn), {0.0, 1.0, 0.0});
    ExpectNear(AcGePoint3d(2.0, 2.0, 2.0).transformBy(turn), {2.0, 2.0, 2.0});
}

TEST(AcGeMatrix3d, ScalingKeepsItsCenter) {
    const AcGeMatrix3d scale = AcGeMatrix3d::scaling(2.0, {1.0, 1.0, 1.0});
    ExpectNear(AcGePoint3d(1.0, 1.0, 1.0).transformBy(scale), {1.0, 1.0, 1.0});
    ExpectNear(AcGePoint3d(2.0, 3.0, 1.0).transformBy(scale), {3.0, 5.0, 1.0});
}

TEST(AcGeMatrix3d, MirroringTwiceIsNoChange) {
    const AcGeMatrix3d mirror = AcGeMatrix3d::mirroring({5.0, 0.0, 0.0}, {2.0, 0.0, 0.0});
    ExpectNear(AcGePoint3d(7.0, 4.0, 1.0).transformBy(mirror), {3.0, 4.0, 1.0});
    ExpectNear(AcGePoint3d(7.0, 4.0, 1.0).transformBy(mirror * mirror), {7.0, 4.0, 1.0});
}

TEST(AcGeMatrix3d, ProductAppliesTheRightFactorFirst) {
    const AcGeMatrix3d product =
        AcGeMatrix3d::translation({1.0, 0.0, 0.0}) * AcGeMatrix3d::scaling(2.0, AcGePoint3d::kOrigin);
    ExpectNear(AcGePoint3d(3.0, 0.0, 0.0).transformBy(product), {7.0, 0.0, 0.0});
}

TEST(AcDbExtents, GrowsToTheFinitePointsOnly) {
    AcDbExtents extents;
    extents.addPoint({g_dNan, 0.0, 0.0});
    extents.addPoint({0.0, g_dInf, 0.0});
    EXPECT_TRUE(extents.isEmpty());
    extents.addPoint({3.0, -1.0, 0.0});
    extents.addPoint({-2.0, 4.0, 1.0});
    extents.addPoint({100.0, 100.0, -g_dInf});
    ExpectNear(extents.minPoint(), {-2.0, -1.0, 0.0});
    ExpectNear(extents.maxPoint(), {3.0, 4.0, 1.0});
}

TEST(AcDbExtents, TakesOverAnotherBoxButNothingOfAnEmptyOne) {
    AcDbExtents extents, empty, other;
    extents.addPoint({1.0, 1.0, 0.0});
    extents.addExt(empty);
    ExpectNear(extents.minPoint(), {1.0, 1.0, 0.0});
    other.addPoint({-1.0, 5.0, 0.0});
    extents.addExt(other);
    ExpectNear(extents.minPoint(), {-1.0, 1.0, 0.0});
    ExpectNear(extents.maxPoint(), {1.0, 5.0, 0.0});
}

TEST(AcGeMatrix3d, ScalesEachAxisByItsOwnFactor) {
    const AcGeMatrix3d scaling = AcGeMatrix3d::scaling(AcGeScale3d(2.0, -3.0, 1.0), {1.0, 1.0, 5.0});
    ExpectNear(AcGePoint3d(2.0, 2.0, 7.0).transformBy(scaling), {3.0, -2.0, 7.0});
    EXPECT_EQ(AcGeScale3d(2.0), AcGeScale3d(2.0, 2.0, 2.0));
    EXPECT_EQ(AcGeScale3d(), AcGeScale3d(1.0));
}
