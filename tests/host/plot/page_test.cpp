#include "host/plot/page.h"

#include <gtest/gtest.h>

namespace {

AcDbExtents Extents(double x0, double y0, double x1, double y1) {
    AcDbExtents extents;
    extents.addPoint(AcGePoint3d(x0, y0, 0.0));
    extents.addPoint(AcGePoint3d(x1, y1, 0.0));
    return extents;
}

} // namespace

TEST(PageOf, IsTheExtents) {
    const CPageBox page = PageOf(Extents(10.0, 20.0, 186.0, 277.0));
    EXPECT_EQ(page.m_dLeft, 10.0);
    EXPECT_EQ(page.m_dBottom, 20.0);
    EXPECT_EQ(page.Width(), 176.0);
    EXPECT_EQ(page.Height(), 257.0);
}

struct CSheetCase {
    const char* m_szName;
    double m_dWidth, m_dHeight, m_dSheetWidth, m_dSheetHeight;
};

class SheetForTest : public testing::TestWithParam<CSheetCase> {};

TEST_P(SheetForTest, HoldsTheExtentsInItsMiddle) {
    const CSheetCase& row = GetParam();
    const CPageBox page = SheetFor(Extents(1000.0, -50.0, 1000.0 + row.m_dWidth, -50.0 + row.m_dHeight));
    EXPECT_NEAR(page.Width(), row.m_dSheetWidth, 1e-9);
    EXPECT_NEAR(page.Height(), row.m_dSheetHeight, 1e-9);
    EXPECT_NEAR((page.m_dLeft + page.m_dRight) / 2.0, 1000.0 + row.m_dWidth / 2.0, 1e-9);
    EXPECT_NEAR((page.m_dBottom + page.m_dTop) / 2.0, -50.0 + row.m_dHeight / 2.0, 1e-9);
}

INSTANTIATE_TEST_SUITE_P(
    Sheets, SheetForTest,
    testing::Values(CSheetCase{"Small", 10, 10, 210, 297}, CSheetCase{"FullA4", 210, 297, 210, 297},
                    CSheetCase{"LyingA4", 297, 210, 297, 210}, CSheetCase{"WideForA4", 210.1, 297, 297, 420},
                    CSheetCase{"SquareA3", 290, 290, 297, 420}, CSheetCase{"LyingA2", 594, 400, 594, 420},
                    CSheetCase{"A1", 500, 700, 594, 841}, CSheetCase{"LyingA0", 1189, 841, 1189, 841},
                    CSheetCase{"BeyondA0", 1190, 100, 1190, 100}),
    [](const auto& row) { return std::string(row.param.m_szName); });

TEST(SheetFor, GivesNoExtentsAnEmptyA4) {
    const CPageBox page = SheetFor(AcDbExtents());
    EXPECT_EQ(page.Width(), 210.0);
    EXPECT_EQ(page.Height(), 297.0);
}
