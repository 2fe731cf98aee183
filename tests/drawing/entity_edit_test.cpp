#include "drawing/entity_edit.h"

#include "drawing/model_space.h"
#include "platform/acad/db_polyline.h"
#include "platform/acad/db_text.h"
#include "tests/support/drawing.h"

#include <gtest/gtest.h>

namespace {
class EntityEdit : public testing::Test {
protected:
    CTestDrawing m_drawing;

    static AcDbObjectId Add(AcDbEntity* pEntity) {
        AcDbObjectId id;
        AddToModelSpace(pEntity, id);
        return id;
    }
    /// From (10,0) over (6,0) to (0,4); the first segment is an arc that tapers.
    static AcDbPolyline* Leftward() {
        auto* const pPolyline = new AcDbPolyline;
        pPolyline->addVertexAt(0, {10.0, 0.0}, 0.5, 2.0, 1.0);
        pPolyline->addVertexAt(1, {6.0, 0.0}, -0.25);
        pPolyline->addVertexAt(2, {0.0, 4.0}, 0.75, 3.0, 4.0);
        return pPolyline;
    }
};
} // namespace

TEST_F(EntityEdit, ErasesWhatCanBeOpened) {
    AcDbObjectIdArray ids;
    ids.append(Add(new AcDbText));
    ids.append(AcDbObjectId::kNull);
    ids.append(Add(new AcDbText));
    EXPECT_EQ(EraseEntities(ids), 2);
    EXPECT_TRUE(ids[0].isErased() && ids[2].isErased());
    EXPECT_EQ(EraseEntities(ids), 0) << "erased already";
}

TEST_F(EntityEdit, TellsTheLayerOfAnEntity) {
    EXPECT_STREQ(LayerOfEntity(Add(new AcDbText)), "0");
    EXPECT_TRUE(LayerOfEntity(AcDbObjectId::kNull).IsEmpty());
}

TEST_F(EntityEdit, TurnsAPolylineRoundThatEndsLeftOfItsStart) {
    const AcDbObjectId id = Add(Leftward());
    EXPECT_EQ(ReverseIfLeftward(id), 1);
    {
        const CDbOpen<AcDbPolyline> pPolyline(id);
        const std::vector<CPolylineVertex>& vertices = pPolyline->Vertices();
        ASSERT_EQ(vertices.size(), 3U);
        EXPECT_EQ(vertices[0].m_pt.x, 0.0);
        EXPECT_EQ(vertices[0].m_dBulge, 0.25);
        EXPECT_EQ(vertices[1].m_pt.x, 6.0);
        EXPECT_EQ(vertices[1].m_dBulge, -0.5);
        EXPECT_EQ(vertices[1].m_dStartWidth, 1.0);
        EXPECT_EQ(vertices[1].m_dEndWidth, 2.0);
        EXPECT_EQ(vertices[2].m_pt.x, 10.0);
        EXPECT_EQ(vertices[2].m_dBulge, -0.75) << "the closing segment's";
    }
    EXPECT_EQ(ReverseIfLeftward(id), 0) << "now it ends at the right";
}

TEST_F(EntityEdit, LeavesWhatIsNoPolylineOrHasNoLength) {
    EXPECT_EQ(ReverseIfLeftward(Add(new AcDbText)), 0);
    EXPECT_EQ(ReverseIfLeftward(Add(new AcDbPolyline)), 0);
}

TEST_F(EntityEdit, FindsAVertexStrictlyInsideTheShrunkenRectangle) {
    AcDbPolyline polyline;
    polyline.addVertexAt(0, {5.0, 5.0});
    EXPECT_TRUE(HasVertexInside(polyline, {0.0, 0.0, 0.0}, {10.0, 10.0, 0.0}));
    EXPECT_TRUE(HasVertexInside(polyline, {10.0, 0.0, 0.0}, {0.0, 10.0, 0.0}));
    EXPECT_TRUE(HasVertexInside(polyline, {4.75, 0.0, 0.0}, {10.0, 10.0, 0.0}));
    EXPECT_FALSE(HasVertexInside(polyline, {4.95, 0.0, 0.0}, {10.0, 10.0, 0.0}));
    EXPECT_FALSE(HasVertexInside(polyline, {0.0, 0.0, 0.0}, {10.0, 5.0, 0.0}));
    EXPECT_FALSE(HasVertexInside(AcDbPolyline(), {0.0, 0.0, 0.0}, {10.0, 10.0, 0.0}));
}
