#include "host/files/pline_pieces.h"

#include <gtest/gtest.h>

#include <limits>
#include <numbers>

namespace {

CPolylineVertex Vertex(double x, double y, double dWidth = -1.0, double dBulge = 0.0) {
    return {{x, y}, dBulge, dWidth, dWidth};
}

std::vector<CBandOutline> BandsOf(const CPlinePrimitive& pline) {
    return WideBandsOf(PiecesOf(pline));
}

void ExpectPoint(const AcGePoint2d& point, double x, double y) {
    EXPECT_NEAR(point.x, x, 1e-12);
    EXPECT_NEAR(point.y, y, 1e-12);
}

} // namespace

TEST(PiecesOf, LeavesOutWhatShowsNothing) {
    constexpr double dNone = std::numeric_limits<double>::quiet_NaN();
    const CPlinePrimitive pline{{Vertex(0, 0), Vertex(0, 0), Vertex(1, 0), Vertex(dNone, 0), Vertex(2, 0)},
                                true};
    const std::vector<CPlinePiece> pieces = PiecesOf(pline);
    ASSERT_EQ(pieces.size(), 2u);
    ExpectPoint(pieces[0].m_ptTo, 1, 0);
    ExpectPoint(pieces[1].m_ptFrom, 2, 0); // the one that closes it
    ExpectPoint(pieces[1].m_ptTo, 0, 0);
    EXPECT_FALSE(pieces[1].IsWide());
}

TEST(WideBandsOf, MitresTheCornersOfOneBand) {
    const auto bands = BandsOf({{Vertex(0, 0, 2), Vertex(10, 0, 2), Vertex(10, 10)}, false});
    ASSERT_EQ(bands.size(), 1u);
    ASSERT_EQ(bands[0].size(), 6u);
    ExpectPoint(bands[0][0], 0, 1);
    ExpectPoint(bands[0][1], 9, 1);
    ExpectPoint(bands[0][2], 9, 10);
    ExpectPoint(bands[0][3], 11, 10);
    ExpectPoint(bands[0][4], 11, -1);
    ExpectPoint(bands[0][5], 0, -1);
}

TEST(WideBandsOf, EndWhereTheWidthChangesAtOnceOrTheLineTurnsBack) {
    EXPECT_EQ(BandsOf({{Vertex(0, 0, 2), Vertex(10, 0, 1), Vertex(20, 0)}, false}).size(), 2u);
    EXPECT_EQ(BandsOf({{Vertex(0, 0, 2), Vertex(10, 0, 2), Vertex(0, 0.1)}, false}).size(), 2u);
    EXPECT_EQ(BandsOf({{Vertex(0, 0, 2), Vertex(10, 0), Vertex(10, 5, 2), Vertex(0, 5)}, false}).size(), 2u);
}

TEST(WideBandsOf, RunOverTheFirstVertexOfAClosedLine) {
    const CPlinePrimitive pline{{Vertex(0, 0, 1), Vertex(10, 0), Vertex(10, 10, 1), Vertex(0, 10, 1)}, true};
    const auto bands = BandsOf(pline);
    ASSERT_EQ(bands.size(), 1u);
    EXPECT_EQ(bands[0].size(), 8u);
}

TEST(WideLineOf, GivesALineWithCornersAndATaperBack) {
    const CPlinePrimitive pline{{Vertex(0, 0, 2), Vertex(10, 0, 2), {{10, 10}, 0.0, 2.0, 0.0}, Vertex(0, 20)},
                                false};
    const auto bands = BandsOf(pline);
    ASSERT_EQ(bands.size(), 1u);
    const auto line = WideLineOf(bands[0]);
    ASSERT_TRUE(line);
    ASSERT_EQ(line->m_arVertices.size(), 4u);
    for (std::size_t i = 0; i < 4; ++i)
        ExpectPoint(line->m_arVertices[i].m_pt, pline.m_arVertices[i].m_pt.x, pline.m_arVertices[i].m_pt.y);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_NEAR(line->m_arVertices[i].m_dStartWidth, pline.m_arVertices[i].m_dStartWidth, 1e-12) << i;
        EXPECT_NEAR(line->m_arVertices[i].m_dEndWidth, pline.m_arVertices[i].m_dEndWidth, 1e-12) << i;
    }
    EXPECT_FALSE(line->m_bClosed);
}

TEST(WideLineOf, GivesAFrameBackClosed) {
    const CPlinePrimitive pline{{Vertex(0, 0, 1), Vertex(20, 0, 1), Vertex(20, 10, 1), Vertex(0, 10, 1)},
                                true};
    const auto bands = BandsOf(pline);
    ASSERT_EQ(bands.size(), 1u);
    const auto line = WideLineOf(bands[0]);
    ASSERT_TRUE(line);
    EXPECT_TRUE(line->m_bClosed);
    ASSERT_EQ(line->m_arVertices.size(), 4u);
    ExpectPoint(line->m_arVertices[2].m_pt, 20, 10);
    EXPECT_NEAR(line->m_arVertices[3].m_dEndWidth, 1.0, 1e-12);
}

TEST(WideLineOf, GivesAnArcBackAsChords) {
    const CPlinePrimitive dot{{Vertex(9, 0, 2, 1), Vertex(11, 0, 2, 1)}, true};
    const auto bands = BandsOf(dot);
    ASSERT_EQ(bands.size(), 1u);
    const auto line = WideLineOf(bands[0]);
    ASSERT_TRUE(line);
    EXPECT_TRUE(line->m_bClosed);
    EXPECT_GE(line->m_arVertices.size(), 60u);
    for (const CPolylineVertex& vertex : line->m_arVertices) {
        EXPECT_NEAR(vertex.m_pt.distanceTo({10, 0}), 1.0, 1e-9);
        EXPECT_NEAR(vertex.m_dStartWidth, 2.0, 0.01);
    }
}

TEST(WideLineOf, GivesNothingForOtherShapes) {
    EXPECT_FALSE(WideLineOf({}));
    EXPECT_FALSE(WideLineOf({{0, 0}, {1, 0}, {0, 1}}));
    EXPECT_FALSE(WideLineOf({{0, 0}, {10, 0}, {12, 5}, {0, 1}}));                   // aslant at its end
    EXPECT_FALSE(WideLineOf({{0, 0}, {10, 0}, {0, 1}, {10, 1}}));                   // crosses itself
    EXPECT_FALSE(WideLineOf({{0, 0}, {0, 0}, {0, 0}, {0, 0}}));                     // no length
    EXPECT_FALSE(WideLineOf({{0, 0}, {10, 0}, {20, 0}, {20, 1}, {15, 9}, {0, 1}})); // uneven in the middle
}

TEST(WideLineOf, TakesAnOutlineOfEitherTurn) {
    const auto line = WideLineOf({{0, -1}, {10, -1}, {10, 1}, {0, 1}});
    ASSERT_TRUE(line);
    EXPECT_EQ(line->m_arVertices.size(), 2u);
    EXPECT_NEAR(line->m_arVertices[0].m_dStartWidth, 2.0, 1e-12);
}
