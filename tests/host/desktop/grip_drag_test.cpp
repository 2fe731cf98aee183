#include "host/desktop/grip_drag.h"

#include "host/console/redraw.h"
#include "platform/acad/db_line.h"

#include <gtest/gtest.h>

namespace {

class GripDrag : public testing::Test {
protected:
    GripDrag() { m_grips.Take({m_first, m_second}); }
    AcDbObjectId AddLine(double y) {
        auto* const pLine = new AcDbLine({0.0, y, 0.0}, {100.0, y, 0.0});
        AcDbObjectId id;
        EXPECT_EQ(CDbOpen<AcDbBlockTableRecord>(m_drawing.ModelSpaceId(), AcDb::kForWrite)
                      ->appendAcDbEntity(id, pLine),
                  Acad::eOk);
        pLine->close();
        DrawChanged(m_drawing);
        return id;
    }
    const CGrip& At(const QPointF& point) const {
        const CGrip* const pGrip = m_grips.At(point, 1.0);
        EXPECT_TRUE(pGrip);
        return pGrip ? *pGrip : m_grips.All().front();
    }

    AcDbDatabase m_drawing;
    AcDbObjectId m_first = AddLine(0.0), m_second = AddLine(10.0);
    CGrips m_grips;
};

} // namespace

TEST_F(GripDrag, TheNearestGripWithinReachIsTaken) {
    EXPECT_EQ(At({0.4, 0.4}).m_pt, QPointF(0.0, 0.0));
    EXPECT_EQ(m_grips.At({0.0, 6.0}, 7.0)->m_pt, QPointF(0.0, 10.0));
    EXPECT_EQ(m_grips.At({0.0, 4.0}, 3.0), nullptr);
    EXPECT_NE(m_grips.At({3.0, 3.0}, 3.0), nullptr) << "grips are squares";
}

TEST_F(GripDrag, HotGripsAreOneEntitysAndGoColdByASecondToggle) {
    const CGrip start = At({0.0, 0.0}), end = At({100.0, 0.0}), other = At({0.0, 10.0});
    m_grips.Toggle(start);
    m_grips.Toggle(end);
    EXPECT_TRUE(m_grips.IsHot(start) && m_grips.IsHot(end));
    m_grips.Toggle(end);
    EXPECT_FALSE(m_grips.IsHot(end));
    m_grips.Toggle(other);
    EXPECT_TRUE(m_grips.IsHot(other));
    EXPECT_FALSE(m_grips.IsHot(start));
}

TEST_F(GripDrag, ADragShowsWhatItWillLeadToAndSaysItAsACommand) {
    m_grips.BeginDrag(At({100.0, 0.0}));
    ASSERT_TRUE(m_grips.IsDragging());
    EXPECT_EQ(m_grips.From(), QPointF(100.0, 0.0));
    EXPECT_EQ(m_grips.DraggedEntity(), m_first);
    const std::optional<CDisplayList> picture = m_grips.PictureAt(m_drawing, {120.5, -3.0});
    ASSERT_TRUE(picture);
    EXPECT_EQ(ExtentsOf(*picture).maxPoint().x, 120.5);
    EXPECT_EQ(CDbOpen<AcDbLine>(m_first)->endPoint().x, 100.0);
    EXPECT_EQ(m_grips.CommandFor({120.5, -3.0}), "GRIP #" + m_first.handle().Hex() + " 1 @20.5,-3");
}

TEST_F(GripDrag, AllHotGripsMoveWithTheOneTaken) {
    m_grips.Toggle(At({0.0, 0.0}));
    m_grips.Toggle(At({100.0, 0.0}));
    m_grips.BeginDrag(At({0.0, 0.0}));
    EXPECT_EQ(m_grips.CommandFor({1.0, 2.0}), "GRIP #" + m_first.handle().Hex() + " 0,1 @1,2");
    m_grips.EndDrag();
    m_grips.BeginDrag(At({0.0, 10.0})); // a cold one goes alone
    EXPECT_EQ(m_grips.CommandFor({0.0, 11.0}), "GRIP #" + m_second.handle().Hex() + " 0 @0,1");
}

TEST_F(GripDrag, AnotherSelectionEndsTheDragAndAnErasedEntityHasNoGrips) {
    m_grips.BeginDrag(At({0.0, 0.0}));
    CDbOpen<AcDbEntity>(m_first, AcDb::kForWrite)->erase();
    EXPECT_EQ(m_grips.PictureAt(m_drawing, {1.0, 1.0}), std::nullopt);
    m_grips.Take({m_first, m_second});
    EXPECT_FALSE(m_grips.IsDragging());
    for (const CGrip& grip : m_grips.All())
        EXPECT_EQ(grip.m_id, m_second);
    EXPECT_FALSE(m_grips.All().empty());
}
