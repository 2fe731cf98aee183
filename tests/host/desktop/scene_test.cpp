#include "host/desktop/scene.h"

#include "host/console/redraw.h"
#include "platform/acad/db_line.h"
#include "tests/host/desktop/desktop_user.h"

#include <gtest/gtest.h>

namespace {

class Scene : public CWindowedTest {
protected:
    AcDbObjectId AddLine(double y) {
        auto* const pLine = new AcDbLine(AcGePoint3d(0.0, y, 0.0), AcGePoint3d(100.0, y, 0.0));
        const CDbOpen<AcDbBlockTableRecord> space(m_drawing.ModelSpaceId(), AcDb::kForWrite);
        AcDbObjectId id;
        EXPECT_EQ(space->appendAcDbEntity(id, pLine), Acad::eOk);
        pLine->close();
        return id;
    }
    bool Sync() {
        DrawChanged(m_drawing);
        return m_scene.Sync(m_drawing);
    }
    AcDbDatabase m_drawing;
    CFonts m_fonts{{}};
    CScene m_scene{m_fonts};
};

} // namespace

TEST_F(Scene, FollowsWhatIsAppendedChangedAndErased) {
    EXPECT_FALSE(Sync());
    const AcDbObjectId first = AddLine(0.0), second = AddLine(10.0);
    EXPECT_TRUE(Sync());
    EXPECT_FALSE(Sync());
    ASSERT_EQ(m_scene.Items().size(), 2U);
    EXPECT_EQ(m_scene.Items()[0].m_id, first);
    CDbOpen<AcDbEntity>(second, AcDb::kForWrite)
        ->transformBy(AcGeMatrix3d::translation(AcGeVector3d(0.0, 5.0, 0.0)));
    EXPECT_TRUE(Sync());
    EXPECT_EQ(m_scene.Find(second)->m_extents.minPoint().y, 15.0);
    CDbOpen<AcDbEntity>(first, AcDb::kForWrite)->erase();
    EXPECT_TRUE(Sync());
    EXPECT_EQ(m_scene.Find(first), nullptr);
    EXPECT_EQ(m_scene.Items().size(), 1U);
}

TEST_F(Scene, TheLayersColourIsTheEntitysOwn) {
    const AcDbObjectId id = AddLine(0.0);
    Sync();
    const AcDbObjectId idLayer = CDbOpen<AcDbEntity>(id)->layerId();
    ASSERT_EQ(CDbOpen<AcDbLayerTableRecord>(idLayer, AcDb::kForWrite)->SetColorIndex(1), Acad::eOk);
    EXPECT_TRUE(Sync());
    const auto& line = std::get<CScreenLine>(m_scene.Items()[0].m_arShapes[0].m_what);
    EXPECT_EQ(line.m_stroke.m_color, QColor(255, 0, 0));
}

TEST_F(Scene, APickTakesTheLastEntityWithinItsReach) {
    const AcDbObjectId first = AddLine(0.0), second = AddLine(1.0);
    Sync();
    EXPECT_EQ(m_scene.ItemAt({50.0, 0.4}, 1.0)->m_id, second);
    EXPECT_EQ(m_scene.ItemAt({50.0, -0.4}, 0.5)->m_id, first);
    EXPECT_EQ(m_scene.ItemAt({50.0, 5.0}, 1.0), nullptr);
    EXPECT_EQ(m_scene.ItemAt({102.0, 0.0}, 1.0), nullptr);
}

TEST_F(Scene, ABoxTakesWhatLiesInItAndACrossingOneWhatItMeets) {
    const AcDbObjectId first = AddLine(0.0), second = AddLine(10.0);
    Sync();
    EXPECT_EQ(m_scene.ItemsIn({-1.0, -1.0, 101.0, 5.0}, false), std::vector{first});
    EXPECT_TRUE(m_scene.ItemsIn({50.0, -1.0, 101.0, 50.0}, false).empty());
    EXPECT_EQ(m_scene.ItemsIn({50.0, -1.0, 101.0, 50.0}, true), (std::vector{first, second}));
}

TEST_F(Scene, FarFromTheOriginShapesKeepTheirDigits) {
    AddLine(4.5e6 + 0.125);
    Sync();
    const CSceneItem& item = m_scene.Items()[0];
    EXPECT_EQ(item.m_ptOrigin.y(), 4.5e6 + 0.125);
    ASSERT_EQ(item.m_arShapes.size(), 1U);
    EXPECT_EQ(item.m_arShapes[0].m_box, QRectF(0.0, 0.0, 100.0, 0.0));
}
