#include "chart/chart_entity.h"
#include "platform/acad/db_arc.h"
#include "platform/acad/db_polyline.h"
#include "tests/support/drawing.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {
/// A chart of one total and two effective circles at (10, 20), 25 kPa a cell.
void Prepare(CBRENChart& chart, const char* pMethod) {
    chart.setColorIndex(3);
    chart.m_strSYFF = pMethod;
    chart.m_ptMohrOrigin.set(10.0, 20.0, 0.0);
    chart.m_dMohrStepX = chart.m_dMohrStepY = 25.0;
    chart.m_nMohrRows = 6;
    chart.m_arSigma3.append(100.0);
    chart.m_arDeviator.append(200.0);
    for (const double dSigma3 : {50.0, 70.0}) {
        chart.m_arSigma3Eff.append(dSigma3);
        chart.m_arDeviatorEff.append(100.0);
    }
    chart.m_ptEnvStart.set(10.0, 30.0, 0.0);
    chart.m_ptEnvEnd.set(90.0, 60.0, 0.0);
    chart.m_ptEnvStartEff.set(10.0, 25.0, 0.0);
    chart.m_ptEnvEndEff.set(90.0, 70.0, 0.0);
}

std::vector<CPrimitive> Arcs(const CDisplayList& list) {
    std::vector<CPrimitive> arcs;
    for (const CPrimitive& primitive : list)
        if (std::holds_alternative<CArcPrimitive>(primitive.m_shape)) arcs.push_back(primitive);
    return arcs;
}

/// The lines that end where an envelope ends.
std::vector<CPrimitive> Envelopes(const CDisplayList& list) {
    std::vector<CPrimitive> lines;
    for (const CPrimitive& primitive : list) {
        const auto* pLine = std::get_if<CPlinePrimitive>(&primitive.m_shape);
        if (pLine && pLine->m_arVertices.size() == 2 && pLine->m_arVertices[1].m_pt.x == 90.0 &&
            (pLine->m_arVertices[1].m_pt.y == 60.0 || pLine->m_arVertices[1].m_pt.y == 70.0) &&
            pLine->m_arVertices[0].m_pt.x == 10.0 &&
            pLine->m_arVertices[0].m_pt.y != pLine->m_arVertices[1].m_pt.y)
            lines.push_back(primitive);
    }
    return lines;
}
/// The lines of an explode form that are no axis, grid or table line: they go from x = 10 to x = 90 and rise.
std::vector<const AcDbPolyline*> Envelopes(const CEntities& entities) {
    std::vector<const AcDbPolyline*> lines;
    for (const AcDbPolyline* pLine : Parts<AcDbPolyline>(entities)) {
        const auto& from = pLine->Vertices().front().m_pt;
        const auto& to = pLine->Vertices().back().m_pt;
        if (from.x == 10.0 && to.x == 90.0 && to.y > from.y) lines.push_back(pLine);
    }
    return lines;
}

constexpr double g_dNan = std::numeric_limits<double>::quiet_NaN();
constexpr double g_dInfinite = std::numeric_limits<double>::infinity();
} // namespace

TEST(MohrPanel, PlacesAHalfCircleByTheSigmaScale) {
    const CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodUU);
    const auto arcs = Arcs(DrawEntity(chart));
    ASSERT_EQ(arcs.size(), 1U);
    const auto& arc = std::get<CArcPrimitive>(arcs[0].m_shape);
    EXPECT_EQ(arc.m_ptCenter.x, 10.0 + 80.0);
    EXPECT_EQ(arc.m_ptCenter.y, 20.0);
    EXPECT_EQ(arc.m_dRadius, 40.0);
    EXPECT_EQ(arc.m_dSweep, 3.1415926);
    EXPECT_EQ(arc.m_vecStart.x, 1.0);
    EXPECT_EQ(arc.m_vecNormal.z, 1.0);
    EXPECT_EQ(arcs[0].m_nMarker, 1);
    EXPECT_EQ(arcs[0].m_nColor, 3);
}

TEST(MohrPanel, ShowsNoEffectiveSetForOtherMethods) {
    const CTestDrawing drawing;
    for (const char* pMethod : {g_pMethodUU, g_pMethodCD}) {
        CBRENChart chart;
        Prepare(chart, pMethod);
        const CDisplayList list = DrawEntity(chart);
        EXPECT_EQ(Arcs(list).size(), 1U);
        EXPECT_EQ(Envelopes(list).size(), 1U);
        for (const CPrimitive& primitive : list)
            EXPECT_NE(primitive.m_nColor, 2);
    }
}

TEST(MohrPanel, DashesTheEffectiveSetOnceTheLineTypeIsThere) {
    const CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodCU);
    // The first lookup loads the line type and gives no id yet: that one arc stays continuous.
    const auto first = Arcs(DrawEntity(chart));
    ASSERT_EQ(first.size(), 3U);
    EXPECT_EQ(first[1].m_strLinetype, "");
    EXPECT_EQ(first[1].m_nColor, 2);
    EXPECT_EQ(first[2].m_strLinetype, "Dashed2");
    const CDisplayList list = DrawEntity(chart);
    const auto second = Arcs(list);
    EXPECT_EQ(second[0].m_strLinetype, "ByLayer");
    EXPECT_EQ(second[1].m_strLinetype, "Dashed2");
    const auto envelopes = Envelopes(list);
    ASSERT_EQ(envelopes.size(), 2U);
    EXPECT_EQ(envelopes[0].m_nColor, 3);
    EXPECT_EQ(envelopes[1].m_nColor, 2);
    EXPECT_EQ(envelopes[1].m_strLinetype, "Dashed2");
}

TEST(MohrPanel, GoesOnContinuousInTheChartsColourAfterADashedStroke) {
    const CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodCU);
    const CDisplayList list = DrawEntity(chart);
    EXPECT_EQ(list.back().m_nColor, 3);
    EXPECT_EQ(list.back().m_strLinetype, "Continuous");
}

TEST(MohrPanel, SetsTheLineTypeScaleAtEveryLookup) {
    CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodCU);
    drawing.Database().setLtscale(3.0);
    DrawEntity(chart);
    EXPECT_EQ(drawing.Database().ltscale(), 10.0);
    drawing.Database().setLtscale(3.0);
    chart.m_strSYFF = g_pMethodUU;
    DrawEntity(chart);
    EXPECT_EQ(drawing.Database().ltscale(), 3.0);
}

TEST(MohrPanel, DrawsOnWithoutALineTypeFile) {
    CTestDrawing drawing;
    drawing.m_bHasLinetypeFile = false;
    CBRENChart chart;
    Prepare(chart, g_pMethodCU);
    const auto arcs = Arcs(DrawEntity(chart));
    ASSERT_EQ(arcs.size(), 3U);
    EXPECT_EQ(arcs[2].m_strLinetype, "");
    EXPECT_EQ(drawing.m_strPrinted.substr(0, std::string("未找到线型").size()), "未找到线型");
}

TEST(MohrPanel, LooksLineTypesUpInATemporaryDrawingWhenNoneIsOpen) {
    CTestDrawing drawing;
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    CBRENChart chart;
    Prepare(chart, g_pMethodCU);
    const auto arcs = Arcs(DrawEntity(chart));
    ASSERT_EQ(arcs.size(), 3U);
    EXPECT_EQ(arcs[2].m_strLinetype, ""); // each lookup has a drawing of its own, which lacks the line type
    EXPECT_EQ(arcs[2].m_nColor, 2);
}

TEST(MohrPanel, DrawsCirclesButNoLineWithTooFewOfThem) {
    const CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodUU);
    chart.m_bNoEnvelope = 1;
    const CDisplayList list = DrawEntity(chart);
    EXPECT_EQ(Arcs(list).size(), 1U);
    EXPECT_EQ(Envelopes(list).size(), 0U);
}

TEST(MohrPanel, DrawsACircleOfNoSizeAndOneBeyondThePanel) {
    const CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodUU);
    chart.m_arSigma3.append(100.0);
    chart.m_arDeviator.append(0.0);
    chart.m_arSigma3.append(1000.0);
    chart.m_arDeviator.append(1e5);
    const auto arcs = Arcs(DrawEntity(chart));
    ASSERT_EQ(arcs.size(), 3U);
    EXPECT_EQ(std::get<CArcPrimitive>(arcs[1].m_shape).m_dRadius, 0.0);
    EXPECT_EQ(std::get<CArcPrimitive>(arcs[2].m_shape).m_dRadius, 5e4 / 25.0 * 10);
}

TEST(MohrPanel, ExplodesIntoArcsAndLines) {
    const CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodUU);
    const CEntities entities = Exploded(chart);
    const auto arcs = Parts<AcDbArc>(entities);
    ASSERT_EQ(arcs.size(), 1U) << "the effective set is of consolidated undrained tests only";
    EXPECT_EQ(arcs[0]->center().x, 10.0 + 80.0);
    EXPECT_EQ(arcs[0]->center().y, 20.0);
    EXPECT_EQ(arcs[0]->radius(), 40.0);
    EXPECT_EQ(arcs[0]->startAngle(), 0.0);
    EXPECT_EQ(arcs[0]->endAngle(), 3.1415926);
    EXPECT_TRUE(arcs[0]->normal() == AcGeVector3d::kZAxis);
    EXPECT_EQ(arcs[0]->colorIndex(), 256);
    EXPECT_TRUE(arcs[0]->linetypeId().isNull());
    const auto lines = Envelopes(entities);
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0]->Vertices()[1].m_pt.y, 60.0);
    EXPECT_EQ(lines[0]->colorIndex(), 256);
}

TEST(MohrPanel, ExplodesTheEffectiveSetDashedOnceTheLineTypeIsThere) {
    CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodCU);
    drawing.Database().setLtscale(3.0);
    const CEntities entities = Exploded(chart);
    EXPECT_EQ(drawing.Database().ltscale(), 10.0);
    const auto arcs = Parts<AcDbArc>(entities);
    ASSERT_EQ(arcs.size(), 3U);
    EXPECT_EQ(arcs[1]->LinetypeName(), "ByLayer") << "the first lookup loads the line type only";
    EXPECT_EQ(arcs[1]->colorIndex(), 2);
    EXPECT_EQ(arcs[2]->LinetypeName(), "Dashed2");
    const auto lines = Envelopes(entities);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0]->colorIndex(), 256);
    EXPECT_EQ(lines[1]->colorIndex(), 2);
    EXPECT_EQ(lines[1]->LinetypeName(), "Dashed2");
    EXPECT_EQ(lines[1]->Vertices()[0].m_dStartWidth, -1.0);
}

TEST(MohrPanel, ExplodesWithoutAnOpenDrawing) {
    const CTestDrawing drawing;
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    CBRENChart chart;
    Prepare(chart, g_pMethodCU);
    const CEntities entities = Exploded(chart);
    const auto arcs = Parts<AcDbArc>(entities);
    ASSERT_EQ(arcs.size(), 3U);
    EXPECT_EQ(arcs[2]->LinetypeName(), "ByLayer");
    EXPECT_EQ(arcs[2]->colorIndex(), 2);
}

TEST(MohrPanel, ExplodesCirclesButNoLineWithTooFewOfThem) {
    const CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodCU);
    chart.m_bNoEnvelope = 1;
    const CEntities entities = Exploded(chart);
    EXPECT_EQ(Parts<AcDbArc>(entities).size(), 3U);
    EXPECT_TRUE(Envelopes(entities).empty());
}

TEST(MohrPanel, ExplodesACircleOfNoSizeToo) {
    const CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodUU);
    chart.m_arDeviator[0] = 0.0;
    const CEntities entities = Exploded(chart);
    ASSERT_EQ(Parts<AcDbArc>(entities).size(), 1U);
    EXPECT_EQ(Parts<AcDbArc>(entities)[0]->radius(), 0.0);
}

TEST(MohrPanel, WithEmptyListsHasNoCircle) {
    const CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodCU);
    for (CDoubleList* pList :
         {&chart.m_arSigma3, &chart.m_arDeviator, &chart.m_arSigma3Eff, &chart.m_arDeviatorEff})
        pList->setLogicalLength(0);
    EXPECT_TRUE(Arcs(DrawEntity(chart)).empty());
    const CEntities entities = Exploded(chart);
    EXPECT_TRUE(Parts<AcDbArc>(entities).empty());
}

TEST(MohrPanel, LeavesOutCirclesAndLinesThatLieNowhereAndKeepsTheirValues) {
    const CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodUU);
    for (const double dBad : {g_dNan, g_dInfinite, -g_dInfinite}) {
        chart.m_arSigma3.append(dBad);
        chart.m_arDeviator.append(100.0);
        chart.m_arSigma3.append(100.0);
        chart.m_arDeviator.append(dBad);
    }
    chart.m_ptEnvEnd.x = g_dInfinite; // as of a line without slope that passes above the grid
    const CDisplayList list = DrawEntity(chart);
    EXPECT_EQ(Arcs(list).size(), 1U);
    for (const CPlinePrimitive& line : Shapes<CPlinePrimitive>(list))
        EXPECT_TRUE(std::isfinite(line.m_arVertices[1].m_pt.x));
    const CEntities entities = Exploded(chart);
    EXPECT_EQ(Parts<AcDbArc>(entities).size(), 1U);
    EXPECT_TRUE(Envelopes(entities).empty());
    EXPECT_EQ(chart.m_arSigma3.length(), 7);
    EXPECT_EQ(chart.m_ptEnvEnd.x, g_dInfinite);
}

TEST(MohrPanel, WithoutAScaleHasNoCircle) {
    const CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart, g_pMethodUU);
    chart.m_dMohrStepX = 0.0;
    EXPECT_TRUE(Arcs(DrawEntity(chart)).empty());
}
