#include "commands/sheet_layout.h"

#include <gtest/gtest.h>

namespace {
struct CLayout {
    int m_nWidth = -1, m_nHeight = -1, m_nPerRow = -1, m_nPerSheet = -1;
    bool operator==(const CLayout&) const = default;
};

CLayout Layout(Adesk::Int32 nGCBZ, int nPaper) {
    CLayout layout;
    GetSheetLayout(nGCBZ, nPaper, layout.m_nWidth, layout.m_nHeight, layout.m_nPerRow, layout.m_nPerSheet);
    return layout;
}
} // namespace

TEST(SheetLayout, KnowsFivePapers) {
    EXPECT_EQ(Layout(0, 0), (CLayout{841, 1189, 4, 16}));
    EXPECT_EQ(Layout(0, 1), (CLayout{841, 594, 4, 8}));
    EXPECT_EQ(Layout(-1, 2), (CLayout{420, 594, 2, 4}));
    EXPECT_EQ(Layout(1, 3), (CLayout{420, 297, 2, 2}));
    EXPECT_EQ(Layout(3, 4), (CLayout{210, 297, 1, 1}));
}

TEST(SheetLayout, OfStandardTwoAsksNoPaper) {
    for (const int nPaper : {-1, 0, 4, 99})
        EXPECT_EQ(Layout(2, nPaper), (CLayout{420, 297, 2, 2}));
}

TEST(SheetLayout, LeavesTheResultsForAPaperItDoesNotKnow) {
    for (const int nPaper : {-1, 5})
        EXPECT_EQ(Layout(0, nPaper), CLayout{});
}

TEST(SheetLayout, StandsSheetsTwoHundredAndTwentyApart) {
    const AcGePoint3d ptSecond = SheetCorner({5, 7, 1}, 2);
    EXPECT_EQ(ptSecond.x, 225.0);
    EXPECT_EQ(ptSecond.y, 304.0);
    EXPECT_EQ(ptSecond.z, 1.0);
}

TEST(SheetLayout, InsertsASheetsBlockAtItsLowerLeftCorner) {
    EXPECT_TRUE(SheetBlockPoint(SheetCorner({5, 7, 1}, 2)) == AcGePoint3d(225, 7, 1));
}

TEST(SheetLayout, StandsTheFirstChartByTheStandardCode) {
    const AcGePoint3d ptPlain = FirstChartPoint(SheetCorner({0, 0, 0}, 1), 0);
    EXPECT_EQ(ptPlain.x, 25.0);
    EXPECT_EQ(ptPlain.y, 262.0);
    const AcGePoint3d ptStrip = FirstChartPoint(SheetCorner({0, 0, 9}, 1), 2);
    EXPECT_EQ(ptStrip.x, 13.0);
    EXPECT_EQ(ptStrip.y, 267.0);
    EXPECT_EQ(ptStrip.z, 0.0);
}
