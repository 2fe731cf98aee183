#include "platform/acad/bezier_chain.h"

#include "platform/acad/spline_curve.h"

#include <gtest/gtest.h>

namespace {

CBezierChain Wave() {
    return CBezierChain(NaturalSpline({{0, 0, 0}, {1, 2, 0}, {3, -1, 0}, {4, 1, 0}, {6, 0, 0}, {7, 3, 0}}));
}

} // namespace

TEST(CBezierChain, RunsThroughItsPiecesByOneParameter) {
    const CBezierChain chain = Wave();
    EXPECT_EQ(chain.End(), 5.0);
    EXPECT_EQ(chain.At(0.0).distanceTo({0, 0}), 0.0);
    EXPECT_EQ(chain.At(2.0).distanceTo({3, -1}), 0.0);
    EXPECT_EQ(chain.At(5.0).distanceTo({7, 3}), 0.0);
}

TEST(CBezierChain, DerivativeAgreesWithDifferences) {
    const CBezierChain chain = Wave();
    for (const double u : {0.25, 1.5, 2.75, 4.9}) {
        const double d = 1e-6;
        EXPECT_NEAR(chain.Derivative(u).x, (chain.At(u + d).x - chain.At(u - d).x) / (2 * d), 1e-7);
        EXPECT_NEAR(chain.Derivative(u).y, (chain.At(u + d).y - chain.At(u - d).y) / (2 * d), 1e-7);
    }
}

TEST(CBezierChain, ProjectsAPointOnTheCurveAcrossJoints) {
    const CBezierChain chain = Wave();
    EXPECT_NEAR(chain.Project(1.9, chain.At(2.2)), 2.2, 1e-10);
    EXPECT_EQ(chain.Project(4.8, {20, 20}), 5.0);
    EXPECT_EQ(chain.Project(0.1, {-5, -10}), 0.0);
}

TEST(CBezierChain, BoxesHoldWhatIsBelowThem) {
    const CBezierChain chain = Wave();
    for (int i = 0; i <= 500; ++i) {
        const AcGePoint2d point = chain.At(i / 100.0);
        EXPECT_FALSE(chain.Box().IsApartFrom({point.x, point.y, point.x, point.y}, 1e-12));
    }
    EXPECT_TRUE(chain.Exists(chain.Leaves() + 4));
    EXPECT_FALSE(chain.Exists(chain.Leaves() + 5));
    EXPECT_EQ(chain.PieceOf(chain.Leaves() + 4), 4u);
}
