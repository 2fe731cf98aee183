#include "chart/chart_entity.h"
#include "platform/acad/db_polyline.h"
#include "platform/acad/db_spline.h"
#include "tests/support/drawing.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {
using CSeries = std::vector<std::pair<double, double>>; // strain as a fraction, stress in kPa

/// Curves in a panel at (0, 0): 1 percent and 10 kPa a cell, so that x = 1000 ε and y = q.
struct CCurves {
    CTestDrawing m_drawing;
    CBRENChart m_chart;

    explicit CCurves(const std::vector<CSeries>& series, int bSingleSpecimen) {
        m_chart.setColorIndex(3);
        m_chart.m_strSYFF = g_pMethodUU;
        m_chart.m_bNoEnvelope = 1;
        m_chart.m_dMohrStepX = m_chart.m_dMohrStepY = 25.0;
        m_chart.m_bSingleSpecimen = bSingleSpecimen;
        for (const CSeries& points : series) {
            CDoubleList strains, stresses;
            for (const auto& [dStrain, dStress] : points) {
                strains.append(dStrain);
                stresses.append(dStress);
            }
            m_chart.m_arStrainSeries.Add(strains);
            m_chart.m_arStressSeries.Add(stresses);
        }
    }

    /// Splines of the second drawing, when the dashed line type is there.
    std::vector<CPrimitive> Splines() {
        DrawEntity(m_chart);
        std::vector<CPrimitive> splines;
        for (const CPrimitive& primitive : DrawEntity(m_chart))
            if (std::holds_alternative<CSplinePrimitive>(primitive.m_shape)) splines.push_back(primitive);
        return splines;
    }
    int Dots() {
        int nDots = 0;
        for (const CPrimitive& primitive : DrawEntity(m_chart))
            nDots += primitive.m_nColor == 1;
        return nDots;
    }
};

std::size_t Points(const CPrimitive& primitive) {
    return std::get<CSplinePrimitive>(primitive.m_shape).m_arFitPoints.size();
}

const CSeries g_rising = {{0.001, 5}, {0.02, 40}, {0.04, 60}};
} // namespace

TEST(StrainCurves, PlotPercentAndKilopascalsByTheScales) {
    CCurves curves({g_rising}, 1);
    curves.m_chart.m_ptCurveOrigin.set(100, 200, 0);
    curves.m_chart.m_dCurveStepX = 2.0;
    const auto splines = curves.Splines();
    ASSERT_EQ(splines.size(), 1U);
    const auto& spline = std::get<CSplinePrimitive>(splines[0].m_shape);
    EXPECT_EQ(spline.m_arFitPoints[1].x, 100 + 100.0 * 0.02 * 10 / 2.0);
    EXPECT_EQ(spline.m_arFitPoints[1].y, 200 + 40.0 * 10 / 10.0);
    EXPECT_EQ(spline.m_nOrder, 4);
    EXPECT_EQ(spline.m_dFitTolerance, 0.0);
    EXPECT_EQ(splines[0].m_nColor, 3);
    EXPECT_EQ(splines[0].m_nMarker, 1);
}

TEST(StrainCurves, MarkEachPointWithAFullDot) {
    CCurves curves({g_rising}, 1);
    EXPECT_EQ(curves.Dots(), 3);
    for (const CPrimitive& primitive : DrawEntity(curves.m_chart)) {
        if (primitive.m_nColor != 1) continue;
        const auto& dot = std::get<CPlinePrimitive>(primitive.m_shape);
        ASSERT_EQ(dot.m_arVertices.size(), 3U);
        EXPECT_EQ(dot.m_arVertices[0].m_dBulge, 1.0);
        EXPECT_EQ(dot.m_arVertices[0].m_dStartWidth, 0.5);
        EXPECT_DOUBLE_EQ(dot.m_arVertices[0].m_pt.y - dot.m_arVertices[1].m_pt.y, 0.5);
        EXPECT_FALSE(dot.m_bClosed);
    }
}

TEST(StrainCurves, DrawNothingWithoutASeries) {
    CCurves curves({}, 1);
    EXPECT_TRUE(curves.Splines().empty());
    EXPECT_EQ(curves.Dots(), 0);
}

TEST(StrainCurves, BeginAtTheOriginWhenTheirFirstReadingIsWellOffIt) {
    CCurves far({{{0.02, 5}, {0.03, 10}}}, 0);
    ASSERT_EQ(far.Splines().size(), 1U);
    EXPECT_EQ(Points(far.Splines()[0]), 3U);
    EXPECT_EQ(far.Dots(), 3); // the origin has its dot too
    CCurves near({{{0.005, 5}, {0.03, 10}}}, 0);
    EXPECT_EQ(Points(near.Splines()[0]), 2U);
    CCurves unstressed({{{0.02, 0.01}, {0.03, 10}}}, 0);
    EXPECT_EQ(Points(unstressed.Splines()[0]), 2U);
}

TEST(StrainCurves, OfOneSpecimenWithOneSeriesHaveNoOriginVertex) {
    CCurves curves({{{0.02, 5}, {0.03, 10}}}, 1);
    EXPECT_EQ(Points(curves.Splines()[0]), 2U);
    EXPECT_EQ(curves.Dots(), 2);
}

TEST(StrainCurves, OfSeveralSpecimensStandByThemselves) {
    CCurves curves({g_rising, g_rising}, 0);
    const auto splines = curves.Splines();
    ASSERT_EQ(splines.size(), 2U);
    for (const CPrimitive& spline : splines)
        EXPECT_EQ(spline.m_strLinetype, "ByLayer");
    EXPECT_EQ(curves.Dots(), 6);
}

TEST(StrainCurves, OfStagesAreCutWhereTheNextOneCrosses) {
    // The first stage rises along a line, the second crosses it from below at x = 25, y = 50.
    CCurves curves(
        {{{0.0, 0}, {0.02, 40}, {0.03, 60}, {0.04, 80}}, {{0.02, 30}, {0.025, 50}, {0.03, 75}, {0.05, 140}}},
        1);
    const auto splines = curves.Splines();
    // Stage 1 solid then dashed, stage 2 dashed up to the crossing, its rest solid.
    ASSERT_EQ(splines.size(), 4U);
    EXPECT_EQ(splines[0].m_strLinetype, "ByLayer");
    EXPECT_EQ(splines[0].m_nColor, 3);
    EXPECT_EQ(splines[1].m_strLinetype, "Dashed2");
    EXPECT_EQ(splines[1].m_nColor, 2);
    EXPECT_EQ(splines[2].m_strLinetype, "Dashed2");
    EXPECT_EQ(splines[3].m_strLinetype, "Continuous");
    EXPECT_EQ(splines[3].m_nColor, 3);
    const auto& head = std::get<CSplinePrimitive>(splines[0].m_shape).m_arFitPoints;
    const auto& rest = std::get<CSplinePrimitive>(splines[3].m_shape).m_arFitPoints;
    EXPECT_NEAR(head.back().x, 25.0, 0.5);
    EXPECT_EQ(rest.front().x, head.back().x);
    EXPECT_EQ(rest.front().y, head.back().y);
    EXPECT_EQ(curves.Dots(), 4 + 4 + 4); // the last stage's dots stand twice
}

TEST(StrainCurves, OfStagesThatDoNotMeetAreDrawnWhole) {
    CCurves curves({{{0.0, 0}, {0.01, 20}}, {{0.02, 30}, {0.03, 50}}}, 1);
    const auto splines = curves.Splines();
    ASSERT_EQ(splines.size(), 2U);
    EXPECT_EQ(splines[0].m_strLinetype, "ByLayer");
    EXPECT_EQ(splines[1].m_strLinetype, "ByLayer");
}

TEST(StrainCurves, OfAFallingStageAreDashedAfterTheirPeakWhenNothingCrosses) {
    CCurves curves({{{0.0, 0}, {0.02, 40}, {0.03, 30}}, {{0.05, 30}, {0.06, 50}}}, 1);
    const auto splines = curves.Splines();
    ASSERT_EQ(splines.size(), 3U);
    EXPECT_EQ(Points(splines[0]), 2U);
    EXPECT_EQ(splines[1].m_strLinetype, "Dashed2");
    EXPECT_EQ(Points(splines[1]), 2U);
    EXPECT_EQ(splines[2].m_nColor, 3);
}

TEST(StrainCurves, OfAFallingStageAreCutOnTheirWayDown) {
    CCurves curves({{{0.0, 0}, {0.02, 40}, {0.04, 20}}, {{0.02, 0}, {0.03, 30}, {0.04, 60}}}, 1);
    const auto splines = curves.Splines();
    // Head solid; tail: by height its first part is the crossing alone, the rest solid; stage 2 dashed, then
    // solid.
    ASSERT_EQ(splines.size(), 5U);
    EXPECT_EQ(splines[0].m_strLinetype, "ByLayer");
    EXPECT_EQ(splines[1].m_strLinetype, "Dashed2");
    EXPECT_EQ(splines[2].m_nColor, 3);
    EXPECT_EQ(splines[3].m_strLinetype, "Dashed2");
    EXPECT_EQ(splines[4].m_nColor, 3);
}

TEST(StrainCurves, SurviveListsOfUnequalLength) {
    CCurves curves({g_rising, g_rising}, 0);
    curves.m_chart.m_arStressSeries[1].setLogicalLength(1);
    curves.m_chart.m_arStressSeries.SetSize(2);
    const auto splines = curves.Splines();
    ASSERT_EQ(splines.size(), 2U);
    EXPECT_EQ(Points(splines[1]), 1U);
}

TEST(StrainCurves, GoOnWithAnEmptyListAfterAFailedSearch) {
    // A stage of one point can't be crossed: what is longer is drawn solid, and nothing is carried on.
    CCurves curves({{{0.0, 0}, {0.02, 40}}, {{0.03, 30}}, {{0.04, 10}, {0.05, 30}}}, 1);
    const auto splines = curves.Splines();
    ASSERT_GE(splines.size(), 2U);
    EXPECT_EQ(Points(splines[0]), 2U);
    EXPECT_EQ(Points(splines.back()), 0U);
}

TEST(StrainCurves, ExplodeIntoSplinesAndDots) {
    CCurves curves({g_rising}, 1);
    const CEntities entities = Exploded(curves.m_chart);
    const auto splines = Parts<AcDbSpline>(entities);
    ASSERT_EQ(splines.size(), 1U);
    EXPECT_EQ(splines[0]->numFitPoints(), 3);
    EXPECT_EQ(splines[0]->FitPoints()[1].y, 40.0);
    EXPECT_EQ(splines[0]->Order(), 4);
    EXPECT_EQ(splines[0]->FitTolerance(), 0.0);
    EXPECT_EQ(splines[0]->colorIndex(), 3);
    const auto* const pDot = AcDbPolyline::cast(entities.at(1).get());
    ASSERT_NE(pDot, nullptr);
    EXPECT_EQ(pDot->colorIndex(), 1);
    EXPECT_EQ(pDot->numVerts(), 3U);
    EXPECT_EQ(pDot->Vertices()[0].m_dBulge, 1.0);
}

TEST(StrainCurves, ExplodeWithoutAWayFromTheOrigin) {
    for (const int bSingleSpecimen : {0, 1}) {
        CCurves curves({{{0.02, 5}, {0.03, 10}}, {{0.05, 5}, {0.06, 10}}}, bSingleSpecimen);
        const CEntities entities = Exploded(curves.m_chart);
        const auto splines = Parts<AcDbSpline>(entities);
        ASSERT_EQ(splines.size(), 2U);
        EXPECT_EQ(splines[0]->numFitPoints(), 2);
        EXPECT_EQ(splines[1]->numFitPoints(), 2);
    }
}

TEST(StrainCurves, OfStagesExplodeIntoTheSamePieces) {
    CCurves curves(
        {{{0.0, 0}, {0.02, 40}, {0.03, 60}, {0.04, 80}}, {{0.02, 30}, {0.025, 50}, {0.03, 75}, {0.05, 140}}},
        1);
    const auto drawn = curves.Splines();
    const CEntities entities = Exploded(curves.m_chart);
    const auto splines = Parts<AcDbSpline>(entities);
    ASSERT_EQ(splines.size(), drawn.size());
    const char* const linetypes[] = {"ByLayer", "Dashed2", "Dashed2", "ByLayer"};
    for (std::size_t i = 0; i < splines.size(); i++) {
        const auto& points = std::get<CSplinePrimitive>(drawn[i].m_shape).m_arFitPoints;
        EXPECT_EQ(splines[i]->FitPoints(), points);
        EXPECT_EQ(splines[i]->colorIndex(), drawn[i].m_nColor);
        EXPECT_EQ(splines[i]->LinetypeName(), linetypes[i]);
    }
}

TEST(StrainCurves, ExplodeIntoNothingWithoutASeries) {
    CCurves curves({}, 1);
    const CEntities entities = Exploded(curves.m_chart);
    EXPECT_TRUE(Parts<AcDbSpline>(entities).empty());
    for (const AcDbPolyline* pLine : Parts<AcDbPolyline>(entities))
        EXPECT_NE(pLine->colorIndex(), 1);
}

TEST(StrainCurves, LeaveOutReadingsThatLieNowhereAndKeepTheirValues) {
    constexpr double dNan = std::numeric_limits<double>::quiet_NaN();
    constexpr double dInfinite = std::numeric_limits<double>::infinity();
    for (const int bSingleSpecimen : {0, 1}) {
        CCurves curves({{{0.0, 0}, {dNan, 20}, {0.02, dNan}, {0.03, 60}, {dInfinite, 70}, {1e308, 80}},
                        {{dNan, dNan}, {0.02, 30}, {0.025, -dInfinite}, {0.05, 140}},
                        {{dNan, 1}, {1, dNan}}},
                       bSingleSpecimen);
        for (const CPrimitive& spline : curves.Splines())
            for (const AcGePoint3d& point : std::get<CSplinePrimitive>(spline.m_shape).m_arFitPoints)
                EXPECT_TRUE(std::isfinite(point.x) && std::isfinite(point.y));
        EXPECT_EQ(curves.Dots(), 2 + 2);
        const CEntities entities = Exploded(curves.m_chart);
        EXPECT_FALSE(Parts<AcDbSpline>(entities).empty());
        EXPECT_EQ(curves.m_chart.m_arStrainSeries[0].length(), 6);
        EXPECT_TRUE(std::isnan(curves.m_chart.m_arStrainSeries[0][1]));
    }
}

TEST(StrainCurves, WithoutAScaleLeaveOutEveryReading) {
    CCurves curves({g_rising}, 0);
    curves.m_chart.m_dCurveStepX = 0.0;
    curves.m_chart.m_dCurveStepY = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(curves.Dots(), 0);
}
