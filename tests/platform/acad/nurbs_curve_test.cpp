#include "platform/acad/nurbs_curve.h"

#include "platform/acad/spline_curve.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

void ExpectAt(const AcGePoint2d& point, double x, double y) {
    EXPECT_NEAR(point.x, x, 1e-12);
    EXPECT_NEAR(point.y, y, 1e-12);
}

/// A clamped curve of one piece.
CNurbs OnePiece(int nDegree, std::vector<AcGePoint3d> arControlPoints) {
    CNurbs nurbs;
    nurbs.m_nDegree = nDegree;
    nurbs.m_arControlPoints = std::move(arControlPoints);
    nurbs.m_arKnots.assign(nurbs.m_arControlPoints.size(), 0.0);
    nurbs.m_arKnots.insert(nurbs.m_arKnots.end(), nurbs.m_arControlPoints.size(), 2.0);
    return nurbs;
}

} // namespace

TEST(NurbsThrough, IsTheNaturalSpline) {
    const std::vector<AcGePoint3d> points = {{0, 0, 7}, {3, 4, 0},  {4, 4, 0},
                                             {4, 4, 0}, {9, -1, 0}, {8, 2, 0}};
    const CNurbs nurbs = NurbsThrough(points);
    EXPECT_EQ(nurbs.m_nDegree, 3);
    ASSERT_EQ(nurbs.m_arControlPoints.size(), 7U); // four pieces and three
    EXPECT_EQ(nurbs.m_arControlPoints.front(), AcGePoint3d(0, 0, 7));
    EXPECT_EQ(nurbs.m_arControlPoints.back(), AcGePoint3d(8, 2, 7));
    ASSERT_EQ(nurbs.m_arKnots.size(), 11U);
    EXPECT_EQ(nurbs.m_arKnots[3], 0.0);
    EXPECT_EQ(nurbs.m_arKnots[4], 5.0); // by chord lengths
    EXPECT_EQ(nurbs.m_arKnots[5], 6.0);
    EXPECT_EQ(nurbs.m_arKnots[7], nurbs.m_arKnots[10]);
    const std::vector<CBezier> natural = NaturalSpline(points), pieces = PiecesOf(nurbs);
    ASSERT_EQ(pieces.size(), natural.size());
    for (std::size_t i = 0; i < pieces.size(); ++i)
        for (std::size_t j = 0; j < 4; ++j)
            ExpectAt(pieces[i].m_arPoints[j], natural[i].m_arPoints[j].x, natural[i].m_arPoints[j].y);
}

TEST(NurbsThrough, TwoPointsHasOneStraightPieceAndThroughFewerNothing) {
    const CNurbs straight = NurbsThrough({{0, 0, 0}, {3, 0, 0}});
    ASSERT_EQ(straight.m_arControlPoints.size(), 4U);
    EXPECT_EQ(straight.m_arControlPoints[1], AcGePoint3d(1, 0, 0));
    EXPECT_EQ(straight.m_arKnots, (std::vector<double>{0, 0, 0, 0, 3, 3, 3, 3}));
    EXPECT_TRUE(NurbsThrough({{1, 1, 0}, {1, 1, 0}}).m_arControlPoints.empty());
    EXPECT_TRUE(NurbsThrough({}).m_arKnots.empty());
}

TEST(PiecesOf, ACubicOfOnePieceHasItsControlPoints) {
    const std::vector<CBezier> pieces = PiecesOf(OnePiece(3, {{0, 0, 0}, {1, 2, 0}, {3, 2, 0}, {4, 0, 0}}));
    ASSERT_EQ(pieces.size(), 1U);
    ExpectAt(pieces[0].m_arPoints[1], 1, 2);
    ExpectAt(pieces[0].m_arPoints[3], 4, 0);
}

TEST(PiecesOf, AnUnclampedCubicHasTheUniformPiece) {
    CNurbs nurbs;
    nurbs.m_arControlPoints = {{0, 0, 0}, {6, 6, 0}, {12, 0, 0}, {18, 6, 0}};
    nurbs.m_arKnots = {0, 1, 2, 3, 4, 5, 6, 7};
    const std::vector<CBezier> pieces = PiecesOf(nurbs);
    ASSERT_EQ(pieces.size(), 1U);
    ExpectAt(pieces[0].m_arPoints[0], 6, 4); // (1, 4, 1) / 6
    ExpectAt(pieces[0].m_arPoints[1], 8, 4);
    ExpectAt(pieces[0].m_arPoints[2], 10, 2);
    ExpectAt(pieces[0].m_arPoints[3], 12, 2);
}

TEST(PiecesOf, OtherDegreesAndWeightsAreChordsOfTheCurve) {
    const double half = std::sqrt(0.5);
    CNurbs quarter = OnePiece(2, {{1, 0, 0}, {1, 1, 0}, {0, 1, 0}}); // of a circle
    quarter.m_arWeights = {1.0, half, 1.0};
    const std::vector<CBezier> pieces = PiecesOf(quarter);
    ASSERT_EQ(pieces.size(), 32U);
    ExpectAt(pieces.front().m_arPoints[0], 1, 0);
    ExpectAt(pieces.back().m_arPoints[3], 0, 1);
    for (const CBezier& piece : pieces)
        EXPECT_NEAR(std::hypot(piece.m_arPoints[3].x, piece.m_arPoints[3].y), 1.0, 1e-12);
    const std::vector<CBezier> line = PiecesOf(OnePiece(1, {{0, 0, 0}, {32, 0, 0}}));
    ASSERT_EQ(line.size(), 32U);
    ExpectAt(line[5].m_arPoints[0], 5, 0);
}

TEST(PiecesOf, WhatIsNoCurveAreNone) {
    const CNurbs good = OnePiece(3, {{0, 0, 0}, {1, 2, 0}, {3, 2, 0}, {4, 0, 0}});
    CNurbs bad = good;
    bad.m_arKnots.pop_back();
    EXPECT_TRUE(PiecesOf(bad).empty());
    bad = good;
    bad.m_arKnots[2] = 1.0; // falls
    EXPECT_TRUE(PiecesOf(bad).empty());
    bad = good;
    bad.m_arWeights = {1.0};
    EXPECT_TRUE(PiecesOf(bad).empty());
    bad.m_arWeights = {1.0, 0.0, 1.0, 1.0};
    EXPECT_TRUE(PiecesOf(bad).empty());
    bad = good;
    bad.m_arControlPoints[1].x = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(PiecesOf(bad).empty());
    bad = good;
    bad.m_nDegree = 0;
    EXPECT_TRUE(PiecesOf(bad).empty());
    EXPECT_TRUE(PiecesOf(CNurbs()).empty());
}
