#include "drawing/curves.h"

#include "tests/support/drawing.h"

#include <gtest/gtest.h>

namespace {
AcGePoint3dArray Points(const std::vector<std::pair<double, double>>& pairs) {
    AcGePoint3dArray points;
    for (const auto& [x, y] : pairs)
        points.append({x, y, 0.0});
    return points;
}

/// Notes what is drawn: "solid 3", "dashed 2", with the number of points.
class CNotingSink final : public CPictureSink {
public:
    std::vector<std::string> m_arNotes;
    void Line(const AcGePoint3d&, const AcGePoint3d&) override { m_arNotes.emplace_back("line"); }
    void LineInChartColour(const AcGePoint3d&, const AcGePoint3d&) override {
        m_arNotes.emplace_back("line");
    }
    void DashedLine(const AcGePoint3d&, const AcGePoint3d&) override { m_arNotes.emplace_back("line"); }
    void WideLine(const AcGePoint3d&, const AcGePoint3d&, double) override { m_arNotes.emplace_back("line"); }
    void Arrow(const AcGePoint3d&, const AcGePoint3d&, double) override { m_arNotes.emplace_back("arrow"); }
    void Text(const AcGePoint3d&, const CString&, CTextDirection) override { m_arNotes.emplace_back("text"); }
    void SolidCurve(const AcGePoint3dArray& p) override {
        m_arNotes.push_back("solid " + std::to_string(p.length()));
    }
    void DashedCurve(const AcGePoint3dArray& p) override {
        m_arNotes.push_back("dashed " + std::to_string(p.length()));
    }
    void Dots(const AcGePoint3dArray&) override { m_arNotes.emplace_back("dots"); }
    void HalfCircle(const AcGePoint3d&, double) override { m_arNotes.emplace_back("arc"); }
    void DashedHalfCircle(const AcGePoint3d&, double) override { m_arNotes.emplace_back("arc"); }
};

using CNotes = std::vector<std::string>;
} // namespace

TEST(SplitAtFirstDrop, OfARisingListHasNoTail) {
    AcGePoint3dArray head, tail;
    EXPECT_EQ(SplitAtFirstDrop(Points({{0, 0}, {1, 1}, {2, 2}}), head, tail), 1);
    EXPECT_EQ(head.length(), 3);
    EXPECT_TRUE(tail.isEmpty());
}

TEST(SplitAtFirstDrop, TakesEqualHeightsAsRising) {
    AcGePoint3dArray head, tail;
    EXPECT_EQ(SplitAtFirstDrop(Points({{0, 1}, {1, 1}, {2, 1}}), head, tail), 1);
    EXPECT_EQ(head.length(), 3);
}

TEST(SplitAtFirstDrop, PutsThePeakIntoBothParts) {
    AcGePoint3dArray head, tail;
    EXPECT_EQ(SplitAtFirstDrop(Points({{0, 0}, {1, 5}, {2, 3}, {3, 9}}), head, tail), 2);
    ASSERT_EQ(head.length(), 2);
    ASSERT_EQ(tail.length(), 3);
    EXPECT_EQ(head[1].y, 5.0);
    EXPECT_EQ(tail[0].y, 5.0);
    EXPECT_EQ(tail[2].y, 9.0);
}

TEST(SplitAtFirstDrop, OfTwoFallingPointsHasOnePointInItsHead) {
    AcGePoint3dArray head, tail;
    EXPECT_EQ(SplitAtFirstDrop(Points({{0, 2}, {1, 1}}), head, tail), 2);
    EXPECT_EQ(head.length(), 1);
    EXPECT_EQ(tail.length(), 2);
}

TEST(SplitAtFirstDrop, OfOnePointIsThatPointWithoutATail) {
    AcGePoint3dArray head, tail;
    EXPECT_EQ(SplitAtFirstDrop(Points({{3, 4}}), head, tail), 1);
    ASSERT_EQ(head.length(), 1);
    EXPECT_EQ(head[0].y, 4.0);
    EXPECT_TRUE(tail.isEmpty());
}

TEST(SplitAtFirstDrop, OfAnEmptyListIsTwoWithNothing) {
    AcGePoint3dArray head, tail;
    EXPECT_EQ(SplitAtFirstDrop(AcGePoint3dArray(), head, tail), 2);
    EXPECT_TRUE(head.isEmpty());
    EXPECT_TRUE(tail.isEmpty());
}

TEST(SplitAtPoint, BelowTheFirstPointLeavesThePointAlone) {
    AcGePoint3dArray first, second;
    SplitAtPoint({0, -1, 0}, Points({{0, 0}, {1, 1}}), true, first, second);
    EXPECT_EQ(first.length(), 1);
    ASSERT_EQ(second.length(), 3);
    EXPECT_EQ(second[0].y, -1.0);
}

TEST(SplitAtPoint, CountsPointsJustBelowToTheSecondPart) {
    AcGePoint3dArray first, second;
    SplitAtPoint({2, 0, 0}, Points({{1, 0}, {1.9995, 0}, {3, 0}}), false, first, second);
    EXPECT_EQ(first.length(), 2);
    EXPECT_EQ(second.length(), 3);
}

TEST(SplitAtPoint, BeyondTheLastPointLeavesThePointAloneBehind) {
    AcGePoint3dArray first, second;
    SplitAtPoint({0, 9, 0}, Points({{0, 0}, {1, 1}}), true, first, second);
    EXPECT_EQ(first.length(), 3);
    ASSERT_EQ(second.length(), 1);
    EXPECT_EQ(second[0].y, 9.0);
}

TEST(SplitAtPoint, GoesNoFurtherThanTheFirstPointThatIsNotBelow) {
    AcGePoint3dArray first, second;
    SplitAtPoint({0, 5, 0}, Points({{0, 1}, {1, 6}, {2, 2}}), true, first, second);
    EXPECT_EQ(first.length(), 2);
    ASSERT_EQ(second.length(), 3);
    EXPECT_EQ(second[2].y, 2.0); // lower, but behind a higher one
}

TEST(SplitAtPoint, OfAnEmptyListIsThePointTwice) {
    AcGePoint3dArray first, second;
    SplitAtPoint({2, 3, 0}, AcGePoint3dArray(), true, first, second);
    EXPECT_EQ(first.length(), 1);
    EXPECT_EQ(second.length(), 1);
}

TEST(SplitAtPoint, AsksTheCoordinateItIsTold) {
    AcGePoint3dArray byX, byXRest, byY, byYRest;
    const AcGePoint3dArray points = Points({{0, 9}, {1, 8}, {2, 7}});
    SplitAtPoint({1.5, 7.5, 0}, points, false, byX, byXRest);
    SplitAtPoint({1.5, 7.5, 0}, points, true, byY, byYRest);
    EXPECT_EQ(byX.length(), 3);
    EXPECT_EQ(byY.length(), 1); // the very first point is higher already
    EXPECT_EQ(byYRest.length(), 4);
}

TEST(DrawCrossHead, DrawsSolidAndCarriesTheNextCurveWhereNothingCrosses) {
    CNotingSink sink;
    AcGePoint3dArray carry = Points({{9, 9}});
    EXPECT_EQ(DrawCrossHead(sink, Points({{0, 0}, {1, 1}}), Points({{5, 0}, {6, 1}, {7, 3}}), carry), 0);
    EXPECT_EQ(sink.m_arNotes, (CNotes{"solid 2"}));
    EXPECT_EQ(carry.length(), 3);
}

TEST(DrawCrossHead, CutsBothCurvesAtTheirFirstCrossing) {
    CNotingSink sink;
    AcGePoint3dArray carry;
    EXPECT_EQ(DrawCrossHead(sink, Points({{0, 0}, {10, 10}}), Points({{4, 0}, {6, 10}}), carry), 1);
    EXPECT_EQ(sink.m_arNotes, (CNotes{"solid 2", "dashed 2", "dashed 2"}));
    ASSERT_EQ(carry.length(), 2);
    EXPECT_NEAR(carry[0].x, 5.0, 1e-9);
    EXPECT_NEAR(carry[0].y, 5.0, 1e-9);
}

TEST(DrawCrossHead, SplitsTheFirstCurveAlongX) {
    CNotingSink sink;
    AcGePoint3dArray carry;
    EXPECT_EQ(DrawCrossHead(sink, Points({{0, 10}, {10, 0}}), Points({{4, 0}, {6, 10}}), carry), 1);
    // Along y the first part would be the crossing alone.
    EXPECT_EQ(sink.m_arNotes, (CNotes{"solid 2", "dashed 2", "dashed 2"}));
}

TEST(DrawCrossHead, TakesTheCrossingThatComesFirstOnTheFirstCurve) {
    const AcGePoint3dArray level = Points({{0, 5}, {20, 5}});
    for (const auto& next : {Points({{2, 0}, {6, 10}, {12, 0}}), Points({{12, 0}, {6, 10}, {2, 0}})}) {
        CNotingSink sink;
        AcGePoint3dArray carry;
        EXPECT_EQ(DrawCrossHead(sink, level, next, carry), 1);
        EXPECT_LT(carry.first().x, 6.0);
        EXPECT_NEAR(carry.first().y, 5.0, 1e-9);
    }
}

TEST(DrawCrossHead, DrawsWhatHasTwoPointsSolidWhenTheSearchFails) {
    CNotingSink sink;
    AcGePoint3dArray carry;
    EXPECT_EQ(DrawCrossHead(sink, Points({{0, 0}, {1, 1}, {2, 2}}), AcGePoint3dArray(), carry), 0);
    EXPECT_EQ(sink.m_arNotes, (CNotes{"solid 3"}));
    EXPECT_TRUE(carry.isEmpty());
}

TEST(DrawCrossHead, LeavesTheCarryAsItWasWhenTheSearchFails) {
    CNotingSink sink;
    AcGePoint3dArray carry = Points({{9, 9}});
    EXPECT_EQ(DrawCrossHead(sink, Points({{0, 0}}), Points({{4, 0}, {6, 10}}), carry), 0);
    EXPECT_EQ(sink.m_arNotes, (CNotes{"solid 2"}));
    EXPECT_EQ(carry.length(), 1);
}

TEST(DrawCrossTail, DashesTheFirstCurveWhereNothingCrosses) {
    CNotingSink sink;
    AcGePoint3dArray carry;
    EXPECT_EQ(DrawCrossTail(sink, Points({{0, 2}, {1, 1}}), Points({{5, 0}, {6, 1}}), carry), 0);
    EXPECT_EQ(sink.m_arNotes, (CNotes{"dashed 2"}));
    EXPECT_EQ(carry.length(), 2);
}

TEST(DrawCrossTail, SplitsTheFirstCurveByHeight) {
    CNotingSink sink;
    AcGePoint3dArray carry;
    EXPECT_EQ(DrawCrossTail(sink, Points({{0, 10}, {10, 0}}), Points({{4, 0}, {6, 10}}), carry), 1);
    // The falling curve's first point is above the crossing: the dashed part is the crossing alone.
    EXPECT_EQ(sink.m_arNotes, (CNotes{"dashed 1", "solid 3", "dashed 2"}));
    EXPECT_EQ(carry.length(), 2);
}

TEST(DrawCrossTail, EmptiesTheCarryWhenTheSearchFails) {
    CNotingSink sink;
    AcGePoint3dArray carry = Points({{9, 9}});
    EXPECT_EQ(DrawCrossTail(sink, Points({{0, 0}}), Points({{4, 0}}), carry), 0);
    EXPECT_TRUE(sink.m_arNotes.empty());
    EXPECT_TRUE(carry.isEmpty());
}

TEST(DrawCrossTail, DrawsWhatHasTwoPointsSolidWhenTheSearchFails) {
    CNotingSink sink;
    AcGePoint3dArray carry = Points({{9, 9}});
    EXPECT_EQ(DrawCrossTail(sink, Points({{0, 0}}), Points({{4, 0}, {6, 10}}), carry), 0);
    EXPECT_EQ(sink.m_arNotes, (CNotes{"solid 2"}));
    EXPECT_TRUE(carry.isEmpty());
}

TEST(DrawCrossTail, LosesWhatWasCarriedWhereNothingCrosses) {
    CNotingSink sink;
    AcGePoint3dArray carry = Points({{9, 9}, {8, 8}, {7, 7}});
    EXPECT_EQ(DrawCrossTail(sink, Points({{0, 2}, {1, 1}}), Points({{5, 0}, {6, 1}}), carry), 0);
    EXPECT_EQ(carry.length(), 2);
}
