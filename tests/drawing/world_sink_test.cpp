#include "drawing/world_sink.h"

#include "platform/acad/display_recorder.h"
#include "tests/support/drawing.h"

#include <gtest/gtest.h>

namespace {
template <class F>
CDisplayList Drawn(F draw) {
    const AcDbPolyline entity;
    CDisplayRecorder recorder(entity);
    CWorldSink sink(&recorder, 0, 5);
    draw(sink);
    return recorder.Take();
}
} // namespace

TEST(WorldSink, RefillsItsPolylineForEveryLine) {
    const CTestDrawing drawing;
    const CDisplayList list = Drawn([](CPictureSink& sink) {
        sink.Arrow({0, 0, 0}, {3, 0, 0}, 1.0);
        sink.Line({1, 1, 0}, {2, 2, 0});
        sink.WideLine({1, 1, 0}, {2, 2, 0}, 0.5);
    });
    const auto lines = Shapes<CPlinePrimitive>(list);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0].m_arVertices[0].m_dStartWidth, 1.0);
    EXPECT_EQ(lines[1].m_arVertices.size(), 2U);
    EXPECT_EQ(lines[1].m_arVertices[0].m_dStartWidth, -1.0);
    EXPECT_EQ(lines[2].m_arVertices[0].m_dEndWidth, 0.5);
    EXPECT_EQ(lines[2].m_arVertices[1].m_dStartWidth, 0.5);
    EXPECT_EQ(list[1].m_nColor, 256);
}

TEST(WorldSink, SetsTheChartsColourWhereItIsAsked) {
    const CTestDrawing drawing;
    const CDisplayList list = Drawn([](CPictureSink& sink) { sink.LineInChartColour({0, 0, 0}, {1, 0, 0}); });
    EXPECT_EQ(list.at(0).m_nColor, 5);
}

TEST(WorldSink, ReturnsToContinuousAndTheChartsColourAfterDashes) {
    const CTestDrawing drawing;
    const CDisplayList list = Drawn([](CPictureSink& sink) {
        sink.DashedLine({0, 0, 0}, {1, 0, 0});
        sink.DashedLine({0, 0, 0}, {1, 0, 0});
        sink.Line({0, 0, 0}, {1, 0, 0});
    });
    ASSERT_EQ(list.size(), 3U);
    EXPECT_EQ(list[0].m_strLinetype, "");
    EXPECT_EQ(list[1].m_strLinetype, "Dashed2");
    EXPECT_EQ(list[1].m_nColor, 2);
    EXPECT_EQ(list[2].m_strLinetype, "Continuous");
    EXPECT_EQ(list[2].m_nColor, 5);
}
