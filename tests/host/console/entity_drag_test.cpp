#include "host/console/entity_drag.h"

#include "host/console/redraw.h"
#include "platform/acad/db_line.h"

#include <gtest/gtest.h>

namespace {

class EntityDrag : public testing::Test {
protected:
    EntityDrag() {
        auto* const pLine = new AcDbLine(AcGePoint3d(0.0, 0.0, 0.0), AcGePoint3d(10.0, 0.0, 0.0));
        EXPECT_EQ(CDbOpen<AcDbBlockTableRecord>(m_drawing.ModelSpaceId(), AcDb::kForWrite)
                      ->appendAcDbEntity(m_move.m_id, pLine),
                  Acad::eOk);
        pLine->close();
        DrawChanged(m_drawing);
        m_drawing.SetModified(false);
        m_move.m_indices.append(1);
        m_move.m_vecOffset = {5.0, 7.0, 0.0};
    }
    AcDbDatabase m_drawing;
    CGripMove m_move;
    CDisplayList m_picture;
};

} // namespace

TEST_F(EntityDrag, GivesWhatIsDrawnWithTheGripMoved) {
    ASSERT_EQ(DragGrips(m_drawing, m_move, &m_picture), Acad::eOk);
    ASSERT_EQ(m_picture.size(), 1U);
    EXPECT_EQ(ExtentsOf(m_picture).maxPoint(), AcGePoint3d(15.0, 7.0, 0.0));
}

TEST_F(EntityDrag, LeavesTheDrawingAsItIs) {
    const auto pBefore = CDbOpen<AcDbEntity>(m_move.m_id)->Picture();
    DragGrips(m_drawing, m_move, &m_picture);
    EXPECT_FALSE(m_drawing.IsModified());
    EXPECT_EQ(CDbOpen<AcDbEntity>(m_move.m_id)->Picture(), pBefore);
    EXPECT_EQ(CDbOpen<AcDbLine>(m_move.m_id)->endPoint(), AcGePoint3d(10.0, 0.0, 0.0));
}

TEST_F(EntityDrag, AnErasedEntityIsRefused) {
    CDbOpen<AcDbEntity>(m_move.m_id, AcDb::kForWrite)->erase();
    EXPECT_NE(DragGrips(m_drawing, m_move, &m_picture), Acad::eOk);
    EXPECT_TRUE(m_picture.empty());
}
