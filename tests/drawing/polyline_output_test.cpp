#include "drawing/polyline_output.h"

#include "platform/acad/display_recorder.h"
#include "tests/support/drawing.h"

#include <gtest/gtest.h>

namespace {
CPrimitive Draw(const AcDbPolyline& polyline, Adesk::Int16 nMode) {
    CDisplayRecorder recorder(polyline);
    DrawPolylineByMode(nMode, &recorder, polyline);
    CDisplayList list = recorder.Take();
    EXPECT_EQ(list.size(), 1U);
    return list.at(0);
}

void Fill(AcDbPolyline& polyline, unsigned int nVertices) {
    for (unsigned int i = 0; i < nVertices; i++)
        polyline.addVertexAt(i, {1.0 * i, 2.0 * i}, 0.5, 0.25, 0.75);
}
} // namespace

TEST(DrawPolylineByMode, InModeOneSendsBarePoints) {
    AcDbPolyline polyline;
    Fill(polyline, 3);
    const CPrimitive primitive = Draw(polyline, 1);
    const auto& points = std::get<CPolylinePrimitive>(primitive.m_shape).m_arPoints;
    ASSERT_EQ(points.size(), 3U);
    EXPECT_EQ(points[2].y, 4.0);
    EXPECT_EQ(primitive.m_nMarker, 1);
}

TEST(DrawPolylineByMode, InModeOneRepeatsTheFirstPointOfAClosedPolyline) {
    AcDbPolyline polyline;
    Fill(polyline, 3);
    polyline.setClosed(Adesk::kTrue);
    const CPrimitive primitive = Draw(polyline, 1);
    const auto& points = std::get<CPolylinePrimitive>(primitive.m_shape).m_arPoints;
    ASSERT_EQ(points.size(), 4U);
    EXPECT_EQ(points[3].x, points[0].x);
}

TEST(DrawPolylineByMode, InModeOneSendsAListOfOnePoint) {
    AcDbPolyline polyline;
    Fill(polyline, 1);
    const CPrimitive primitive = Draw(polyline, 1);
    EXPECT_EQ(std::get<CPolylinePrimitive>(primitive.m_shape).m_arPoints.size(), 1U);
}

TEST(DrawPolylineByMode, InAnyOtherModeKeepsWidthsAndBulges) {
    for (const int nMode : {0, 2, -1}) {
        AcDbPolyline polyline;
        Fill(polyline, 2);
        const CPrimitive primitive = Draw(polyline, static_cast<Adesk::Int16>(nMode));
        const auto& pline = std::get<CPlinePrimitive>(primitive.m_shape);
        ASSERT_EQ(pline.m_arVertices.size(), 2U);
        EXPECT_EQ(pline.m_arVertices[1].m_dBulge, 0.5);
        EXPECT_EQ(pline.m_arVertices[0].m_dStartWidth, 0.25);
        EXPECT_EQ(pline.m_arVertices[0].m_dEndWidth, 0.75);
        EXPECT_EQ(primitive.m_nMarker, 1);
    }
}
