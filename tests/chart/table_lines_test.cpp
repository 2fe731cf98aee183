#include "chart/table_lines.h"

#include "drawing/explode_sink.h"
#include "platform/acad/db_polyline.h"
#include "tests/support/drawing.h"

#include <gtest/gtest.h>

namespace {
/// The one line drawn.
template <class F>
std::vector<CPolylineVertex> Line(F draw) {
    AcDbVoidPtrArray entitySet;
    CExplodeSink sink(entitySet, 3, AcDbObjectId::kNull);
    draw(sink);
    const CEntities entities = TakeOver(entitySet);
    const auto lines = Parts<AcDbPolyline>(entities);
    return lines.size() == 1 ? lines[0]->Vertices() : std::vector<CPolylineVertex>(2);
}
} // namespace

TEST(TableLines, OfTheFrameCloseItsCorners) {
    const auto row = Line([](CPictureSink& sink) { DrawTableRow(sink, {10, 20, 0}, 70, true); });
    EXPECT_EQ(row[0].m_pt.x, 9.75);
    EXPECT_EQ(row[1].m_pt.x, 70.25);
    EXPECT_EQ(row[1].m_pt.y, 20.0);
    EXPECT_EQ(row[0].m_dStartWidth, 0.5);
    EXPECT_EQ(row[1].m_dEndWidth, 0.5);
    const auto column = Line([](CPictureSink& sink) { DrawTableColumn(sink, {10, 20, 0}, 52, true); });
    EXPECT_EQ(column[0].m_pt.y, 20.0);
    EXPECT_EQ(column[1].m_pt.y, -32.0);
    EXPECT_EQ(column[1].m_pt.x, 10.0);
    EXPECT_EQ(column[0].m_dEndWidth, 0.5);
}

TEST(TableLines, WithinTheFrameAreThinAndEndAtIt) {
    const auto row = Line([](CPictureSink& sink) { DrawTableRow(sink, {10, 20, 0}, 70, false); });
    EXPECT_EQ(row[0].m_pt.x, 10.0);
    EXPECT_EQ(row[1].m_pt.x, 70.0);
    EXPECT_EQ(row[0].m_dStartWidth, 0.0);
    const auto column = Line([](CPictureSink& sink) { DrawTableColumn(sink, {10, 20, 0}, 52, false); });
    EXPECT_EQ(column[1].m_dEndWidth, 0.0);
}
