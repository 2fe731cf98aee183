#include "chart/axes.h"

#include "chart/chart_entity.h"
#include "drawing/explode_sink.h"
#include "drawing/styles.h"
#include "drawing/world_sink.h"
#include "platform/acad/db_polyline.h"
#include "platform/acad/db_text.h"
#include "tests/support/drawing.h"

#include <gtest/gtest.h>

#include <limits>

namespace {
CAxes Frame() {
    return {{100, 50, 0}, 4, 6, 1.0, 20.0, 10, 10, "XX", "YY", false, 0.5, AcDbObjectId::kNull};
}

CDisplayList Draw(const CAxes& axes) {
    CBRENChart chart;
    CDisplayRecorder recorder(chart);
    SetupChartTextStyle(g_ChartTextStyle);
    CWorldSink sink(&recorder, 0, 3);
    DescribeChartAxes(sink, axes, g_axesWorldForm);
    return recorder.Take();
}

CEntities ExplodedAxes(const CAxes& axes) {
    SetupChartTextStyle(g_ChartTextStyle);
    AcDbVoidPtrArray entitySet;
    CExplodeSink sink(entitySet, 3, AcDbObjectId::kNull);
    DescribeChartAxes(sink, axes, g_axesExplodeForm);
    return TakeOver(entitySet);
}

std::vector<std::string> Texts(const CDisplayList& list) {
    std::vector<std::string> texts;
    for (const CTextPrimitive& text : Shapes<CTextPrimitive>(list))
        texts.push_back(text.m_strText);
    return texts;
}
} // namespace

TEST(ChartAxes, OverrunTheGridByAThirdOfACell) {
    const CTestDrawing drawing;
    const auto lines = Shapes<CPlinePrimitive>(Draw(Frame()));
    ASSERT_EQ(lines.size(), 4U + 4U + 6U);
    EXPECT_EQ(lines[0].m_arVertices[0].m_pt.x, 100.0);
    EXPECT_EQ(lines[0].m_arVertices[1].m_pt.x, 100.0 + (6 + 0.3333333333333333) * 10);
    EXPECT_EQ(lines[0].m_arVertices[0].m_dStartWidth, -1.0);
    EXPECT_EQ(lines[2].m_arVertices[1].m_pt.y, 50.0 + (4 + 0.3333333333333333) * 10);
}

TEST(ChartAxes, EndInArrowsThatTaper) {
    const CTestDrawing drawing;
    const auto lines = Shapes<CPlinePrimitive>(Draw(Frame()));
    const CPolylineVertex& from = lines[1].m_arVertices[0];
    const CPolylineVertex& to = lines[1].m_arVertices[1];
    EXPECT_EQ(from.m_dStartWidth, 1.0);
    EXPECT_EQ(from.m_dEndWidth, 0.0);
    EXPECT_EQ(to.m_pt.x - from.m_pt.x, 3.0);
    EXPECT_EQ(lines[3].m_arVertices[1].m_pt.y - lines[3].m_arVertices[0].m_pt.y, 3.0);
}

TEST(ChartAxes, DrawNoGridLineWhereTheAxisStands) {
    const CTestDrawing drawing;
    const auto lines = Shapes<CPlinePrimitive>(Draw(Frame()));
    EXPECT_EQ(lines[4].m_arVertices[0].m_pt.y, 60.0);
    EXPECT_EQ(lines[7].m_arVertices[1].m_pt.y, 90.0);
    EXPECT_EQ(lines[7].m_arVertices[1].m_pt.x, 160.0);
    EXPECT_EQ(lines[8].m_arVertices[0].m_pt.x, 110.0);
    EXPECT_EQ(lines[13].m_arVertices[1].m_pt.x, 160.0);
}

TEST(ChartAxes, WithoutRowsAndColumnsKeepAxesAndOneZero) {
    const CTestDrawing drawing;
    CAxes axes = Frame();
    axes.m_nRows = axes.m_nCols = 0;
    const CDisplayList list = Draw(axes);
    EXPECT_EQ(Shapes<CPlinePrimitive>(list).size(), 4U);
    EXPECT_EQ(Texts(list), (std::vector<std::string>{"0", "XX", "YY"}));
    EXPECT_EQ(Shapes<CPlinePrimitive>(list)[0].m_arVertices[1].m_pt.x, 100.0 + 0.3333333333333333 * 10);
}

TEST(ChartAxes, WithSevenColumnsLabelOneCellPastTheGrid) {
    const CTestDrawing drawing;
    CAxes axes = Frame();
    axes.m_nRows = 0;
    axes.m_nCols = 7;
    const CDisplayList list = Draw(axes);
    EXPECT_EQ(Texts(list), (std::vector<std::string>{"2", "4", "6", "8", "0", "XX", "YY"}));
    const double dWidth = 0.8 * 2.5 * 0.7;
    EXPECT_DOUBLE_EQ(Shapes<CTextPrimitive>(list)[3].m_ptPosition.x, 100.0 + 80.0 - dWidth / 2);
    EXPECT_EQ(Shapes<CTextPrimitive>(list)[3].m_ptPosition.y, 45.0);
}

TEST(ChartAxes, WithSevenRowsLabelNotTheTopLine) {
    const CTestDrawing drawing;
    CAxes axes = Frame();
    axes.m_nRows = 7;
    axes.m_nCols = 0;
    const CDisplayList list = Draw(axes);
    EXPECT_EQ(Texts(list), (std::vector<std::string>{"0", "40", "80", "120", "XX", "YY"}));
    const auto texts = Shapes<CTextPrimitive>(list);
    for (int i = 0; i < 4; i++)
        EXPECT_EQ(texts[static_cast<std::size_t>(i)].m_ptPosition.y, 50.0 + 20.0 * i);
    EXPECT_DOUBLE_EQ(texts[1].m_ptPosition.x, 100.0 - 2.0 - 2 * 0.8 * 2.5 * 0.7);
}

TEST(ChartAxes, WriteUpToTwoDecimalsAndLeaveOtherLabelsEmpty) {
    const CTestDrawing drawing;
    CAxes axes = Frame();
    axes.m_nRows = 0;
    axes.m_nCols = 8;
    axes.m_dStepX = 0.25;
    EXPECT_EQ(Texts(Draw(axes)), (std::vector<std::string>{"0.5", "1", "1.5", "2", "0", "XX", "YY"}));
    axes.m_dStepX = 0.1; // the sum of three steps is 0.6000000000000001
    const CDisplayList list = Draw(axes);
    EXPECT_EQ(Texts(list), (std::vector<std::string>{"0.2", "0.4", "", "0.8", "0", "XX", "YY"}));
    EXPECT_EQ(Shapes<CTextPrimitive>(list)[2].m_ptPosition.x, 160.0); // the empty label has its place
}

TEST(ChartAxes, CentreTheirTitles) {
    const CTestDrawing drawing;
    const auto texts = Shapes<CTextPrimitive>(Draw(Frame()));
    const CTextPrimitive& x = texts[texts.size() - 2];
    const CTextPrimitive& y = texts.back();
    const double dWidth = 2 * 0.8 * 2.5 * 0.7;
    EXPECT_DOUBLE_EQ(x.m_ptPosition.x, 100.0 + 30.0 - dWidth / 2);
    EXPECT_EQ(x.m_ptPosition.y, 40.0);
    EXPECT_EQ(x.m_vecDirection.x, 1.0);
    EXPECT_EQ(y.m_ptPosition.x, 90.0);
    EXPECT_DOUBLE_EQ(y.m_ptPosition.y, 50.0 + 20.0 - dWidth / 2);
    EXPECT_EQ(y.m_vecDirection.y, 1.0);
    EXPECT_EQ(y.m_dHeight, 2.5);
    EXPECT_EQ(y.m_dTracking, 80.0);
    EXPECT_EQ(y.m_nLength, -1);
}

TEST(ChartAxes, SetSubscriptsAlongTheVerticalTitle) {
    const CTestDrawing drawing;
    CAxes axes = Frame();
    axes.m_bSubscripts = true;
    const auto texts = Shapes<CTextPrimitive>(Draw(axes));
    const CTextPrimitive& title = texts[texts.size() - 3];
    const CTextPrimitive& one = texts[texts.size() - 2];
    const CTextPrimitive& three = texts.back();
    EXPECT_EQ(one.m_strText, "1");
    EXPECT_EQ(three.m_strText, "3");
    EXPECT_DOUBLE_EQ(one.m_ptPosition.y - title.m_ptPosition.y, 16.1);
    EXPECT_DOUBLE_EQ(three.m_ptPosition.y - one.m_ptPosition.y, 5.3);
    EXPECT_EQ(one.m_dHeight, 1.0);
    EXPECT_EQ(one.m_vecDirection.y, 1.0);
    EXPECT_EQ(g_ChartTextStyle.textSize(), 1.0); // every later user sets its own
}

TEST(ChartAxes, ExplodeIntoTheSameLinesAndTexts) {
    const CTestDrawing drawing;
    const CEntities entities = ExplodedAxes(Frame());
    const auto lines = Parts<AcDbPolyline>(entities);
    const CDisplayList world = Draw(Frame());
    const auto drawn = Shapes<CPlinePrimitive>(world);
    ASSERT_EQ(lines.size(), drawn.size());
    for (std::size_t i = 0; i < lines.size(); i++) {
        for (std::size_t k = 0; k < 2; k++) {
            const CPolylineVertex& made = lines[i]->Vertices().at(k);
            const CPolylineVertex& shown = drawn[i].m_arVertices.at(k);
            EXPECT_EQ(made.m_pt.x, shown.m_pt.x);
            EXPECT_EQ(made.m_pt.y, shown.m_pt.y);
            EXPECT_EQ(made.m_dStartWidth, shown.m_dStartWidth);
            EXPECT_EQ(made.m_dEndWidth, shown.m_dEndWidth);
        }
    }
    const auto texts = Parts<AcDbText>(entities);
    ASSERT_EQ(texts.size(), Texts(world).size());
    EXPECT_STREQ(texts[0]->textString(), L"2");
    EXPECT_TRUE(texts[0]->position() == Shapes<CTextPrimitive>(world)[0].m_ptPosition);
}

TEST(ChartAxes, ExplodeWithTitlesMeasuredHigherThanTheyAre) {
    const CTestDrawing drawing;
    const CEntities entities = ExplodedAxes(Frame());
    const auto texts = Parts<AcDbText>(entities);
    const AcDbText& x = *texts[texts.size() - 2];
    const AcDbText& y = *texts.back();
    const double dWidth = 2 * 0.8 * 3.0 * 0.7;
    EXPECT_DOUBLE_EQ(x.position().x, 100.0 + 30.0 - dWidth / 2);
    EXPECT_EQ(x.height(), 2.5);
    EXPECT_EQ(x.rotation(), 0.0);
    EXPECT_DOUBLE_EQ(y.position().y, 50.0 + 20.0 - dWidth / 2);
    EXPECT_EQ(y.height(), 2.5);
    EXPECT_EQ(y.rotation(), 1.5707963);
}

TEST(ChartAxes, ExplodeWithSubscriptsFurtherApart) {
    const CTestDrawing drawing;
    CAxes axes = Frame();
    axes.m_bSubscripts = true;
    const CEntities entities = ExplodedAxes(axes);
    const auto texts = Parts<AcDbText>(entities);
    const AcDbText& title = *texts[texts.size() - 3];
    const AcDbText& one = *texts[texts.size() - 2];
    const AcDbText& three = *texts.back();
    EXPECT_DOUBLE_EQ(one.position().y - title.position().y, 19.8);
    EXPECT_DOUBLE_EQ(three.position().y - one.position().y, 6.5);
    EXPECT_EQ(one.height(), 1.0);
    EXPECT_STREQ(three.textString(), L"3");
}

TEST(ChartAxes, KeepAnEmptyLabelAsAnEmptyText) {
    const CTestDrawing drawing;
    CAxes axes = Frame();
    axes.m_nRows = 0;
    axes.m_nCols = 8;
    axes.m_dStepX = 0.1;
    const CEntities entities = ExplodedAxes(axes);
    EXPECT_STREQ(Parts<AcDbText>(entities).at(2)->textString(), L"");
}

TEST(ChartAxes, WithoutAPlaceAreLeftOut) {
    const CTestDrawing drawing;
    CAxes axes = Frame();
    axes.m_ptOrigin.y = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(Draw(axes).empty());
    EXPECT_TRUE(ExplodedAxes(axes).empty());
}

TEST(ChartAxes, WithAGridThatNoSheetHoldsAreLeftOut) {
    const CTestDrawing drawing;
    for (Adesk::Int32 CAxes::*const pCount : {&CAxes::m_nRows, &CAxes::m_nCols}) {
        CAxes axes = Frame();
        axes.*pCount = 2'147'483'647;
        EXPECT_TRUE(Draw(axes).empty());
        EXPECT_TRUE(ExplodedAxes(axes).empty());
        axes.*pCount = -1;
        EXPECT_FALSE(Draw(axes).empty());
    }
}

TEST(AxisLabel, IsEmptyForWhatIsNoNumberOrTooLarge) {
    EXPECT_TRUE(AxisLabel(1e10).IsEmpty());
    EXPECT_TRUE(AxisLabel(std::numeric_limits<double>::quiet_NaN()).IsEmpty());
    EXPECT_TRUE(AxisLabel(std::numeric_limits<double>::infinity()).IsEmpty());
    EXPECT_TRUE(AxisLabel(0.125).IsEmpty());
    EXPECT_TRUE(AxisLabel(-0.25) == "-0.25");
}
