#include "drawing/line_entities.h"

#include "platform/acad/db_polyline.h"

#include <gtest/gtest.h>
#include <memory>

namespace {
/// The one polyline that was appended.
std::unique_ptr<AcDbPolyline> Only(const AcDbVoidPtrArray& entitySet) {
    EXPECT_EQ(entitySet.length(), 1);
    return std::unique_ptr<AcDbPolyline>(AcDbPolyline::cast(static_cast<AcDbEntity*>(entitySet[0])));
}

std::vector<double> Widths(const AcDbPolyline& line) {
    std::vector<double> arWidths;
    for (const CPolylineVertex& vertex : line.Vertices()) {
        arWidths.push_back(vertex.m_dStartWidth);
        arWidths.push_back(vertex.m_dEndWidth);
    }
    return arWidths;
}
} // namespace

TEST(LineEntity, LeadsFromPointToPointWithoutWidth) {
    AcDbVoidPtrArray entitySet;
    AddLineEntity(entitySet, {1.0, 2.0, 9.0}, {3.0, 4.0, 9.0});
    const auto pLine = Only(entitySet);
    ASSERT_EQ(pLine->numVerts(), 2U);
    EXPECT_EQ(pLine->Vertices()[0].m_pt.y, 2.0);
    EXPECT_EQ(pLine->Vertices()[1].m_pt.x, 3.0);
    EXPECT_EQ(Widths(*pLine), (std::vector<double>{-1.0, -1.0, -1.0, -1.0}));
}

TEST(LineEntity, OfAWidthHasItAtBothEnds) {
    AcDbVoidPtrArray entitySet;
    AddWideLineEntity(entitySet, {0.0, 0.0, 0.0}, {3.0, 4.0, 0.0}, 0.5);
    EXPECT_EQ(Widths(*Only(entitySet)), (std::vector<double>{0.5, 0.5, 0.5, 0.5}));
}

TEST(LineEntity, ThatIsAnArrowTapersToAPoint) {
    AcDbVoidPtrArray entitySet;
    AddArrowEntity(entitySet, {0.0, 0.0, 0.0}, {3.0, 4.0, 0.0}, 1.0);
    EXPECT_EQ(Widths(*Only(entitySet)), (std::vector<double>{1.0, 0.0, -1.0, -1.0}));
}
