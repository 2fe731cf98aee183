#include "drawing/curve_strokes.h"

#include "platform/acad/db_polyline.h"
#include "platform/acad/db_spline.h"
#include "tests/support/drawing.h"

#include <gtest/gtest.h>

namespace {
AcGePoint3dArray ThreePoints() {
    AcGePoint3dArray points;
    for (const double d : {0.0, 1.0, 3.0})
        points.append({d, 2.0 * d, 0.0});
    return points;
}

template <class F>
CDisplayList Drawn(F draw) {
    const AcDbPolyline entity;
    CDisplayRecorder recorder(entity);
    draw(&recorder);
    return recorder.Take();
}

const auto& Vertices(const CPrimitive& primitive) {
    return std::get<CPlinePrimitive>(primitive.m_shape).m_arVertices;
}
} // namespace

TEST(CurveStrokes, AreInTheGivenColourWhereSolid) {
    const CTestDrawing drawing;
    const CDisplayList list = Drawn([](AcGiWorldDraw* pMode) { DrawSolidCurve(pMode, ThreePoints(), 5); });
    ASSERT_EQ(list.size(), 1U);
    EXPECT_EQ(list[0].m_nColor, 5);
    EXPECT_EQ(list[0].m_nMarker, 1);
    const auto& spline = std::get<CSplinePrimitive>(list[0].m_shape);
    EXPECT_EQ(spline.m_arFitPoints.size(), 3U);
    EXPECT_EQ(spline.m_nOrder, 4);
    EXPECT_EQ(spline.m_dFitTolerance, 0.0);
}

TEST(CurveStrokes, LeaveTheGivenColourAfterADashedOne) {
    const CTestDrawing drawing;
    const CDisplayList list = Drawn([](AcGiWorldDraw* pMode) {
        DrawDashedCurve(pMode, ThreePoints(), 5);
        DrawDashedCurve(pMode, ThreePoints(), 5);
        AcDbSpline(ThreePoints()).worldDraw(pMode);
    });
    ASSERT_EQ(list.size(), 3U);
    EXPECT_EQ(list[1].m_nColor, 2);
    EXPECT_EQ(list[1].m_strLinetype, "Dashed2");
    EXPECT_EQ(list[2].m_nColor, 5);
    EXPECT_EQ(list[2].m_strLinetype, "Continuous");
}

TEST(CurveStrokes, SetADotAtEachPoint) {
    const CTestDrawing drawing;
    const CDisplayList list = Drawn([](AcGiWorldDraw* pMode) { DrawCurveDots(ThreePoints(), 0, pMode, 5); });
    ASSERT_EQ(list.size(), 3U);
    for (const CPrimitive& dot : list)
        EXPECT_EQ(dot.m_nColor, 1);
    ASSERT_EQ(Vertices(list[2]).size(), 3U);
    EXPECT_EQ(Vertices(list[2])[0].m_pt.x, 3.0);
    EXPECT_EQ(Vertices(list[2])[0].m_pt.y, 6.25);
    EXPECT_EQ(Vertices(list[2])[1].m_pt.y, 5.75);
    EXPECT_EQ(Vertices(list[2])[2].m_pt.y, 6.25);
    for (const CPolylineVertex& vertex : Vertices(list[2])) {
        EXPECT_EQ(vertex.m_dBulge, 1.0);
        EXPECT_EQ(vertex.m_dStartWidth, 0.5);
        EXPECT_EQ(vertex.m_dEndWidth, 0.5);
    }
}

TEST(CurveStrokes, LeaveTheGivenColourAfterDots) {
    const CTestDrawing drawing;
    const CDisplayList list = Drawn([](AcGiWorldDraw* pMode) {
        DrawCurveDots(ThreePoints(), 0, pMode, 5);
        AcDbSpline(ThreePoints()).worldDraw(pMode);
    });
    ASSERT_EQ(list.size(), 4U);
    EXPECT_EQ(list[3].m_nColor, 5);
}

TEST(CurveStrokes, AreDashedInATemporaryDrawingWhereNoneIsOpen) {
    const CTestDrawing drawing;
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    const CDisplayList list = Drawn([](AcGiWorldDraw* pMode) {
        DrawDashedCurve(pMode, ThreePoints(), 5);
        DrawDashedCurve(pMode, ThreePoints(), 5);
        AcDbSpline(ThreePoints()).worldDraw(pMode);
    });
    ASSERT_EQ(list.size(), 3U);
    EXPECT_EQ(list[1].m_nColor, 2);
    EXPECT_EQ(list[1].m_strLinetype, ""); // a drawing of its own again, which has to load it first
    EXPECT_EQ(list[2].m_nColor, 5);
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), nullptr);
}

TEST(CurveStrokes, SetDotsOfBareLinesForAFile) {
    const CTestDrawing drawing;
    const CDisplayList list = Drawn([](AcGiWorldDraw* pMode) { DrawCurveDots(ThreePoints(), 1, pMode, 5); });
    ASSERT_EQ(Shapes<CPolylinePrimitive>(list).size(), 3U);
    EXPECT_EQ(Shapes<CPolylinePrimitive>(list)[0].m_arPoints.size(), 3U);
}

TEST(CurveStrokes, BecomeEntities) {
    const CTestDrawing drawing;
    AcDbVoidPtrArray entitySet;
    AddSolidCurve(entitySet, ThreePoints(), 5);
    AddDashedCurve(entitySet, ThreePoints()); // loads the line type and gets no id yet
    AddDashedCurve(entitySet, ThreePoints());
    AddCurveDots(ThreePoints(), entitySet);
    const CEntities entities = TakeOver(entitySet);
    const auto curves = Parts<AcDbSpline>(entities);
    ASSERT_EQ(curves.size(), 3U);
    EXPECT_EQ(curves[0]->colorIndex(), 5);
    EXPECT_EQ(curves[0]->LinetypeName(), "ByLayer");
    EXPECT_EQ(curves[1]->colorIndex(), 2);
    EXPECT_EQ(curves[1]->LinetypeName(), "ByLayer");
    EXPECT_EQ(curves[2]->LinetypeName(), "Dashed2");
    EXPECT_EQ(curves[2]->numFitPoints(), 3);
    const auto dots = Parts<AcDbPolyline>(entities);
    ASSERT_EQ(dots.size(), 3U);
    EXPECT_EQ(dots[2]->colorIndex(), 1);
    EXPECT_EQ(dots[2]->Vertices()[0].m_pt.y, 6.25);
    EXPECT_EQ(dots[2]->Vertices()[2].m_dEndWidth, 0.5);
    EXPECT_FALSE(dots[2]->isClosed());
}
