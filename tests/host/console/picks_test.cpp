#include "host/console/picks.h"

#include <gtest/gtest.h>

#include "host/console/redraw.h"
#include "platform/acad/db_polyline.h"

namespace {

class Picks : public testing::Test {
protected:
    Picks() {
        m_idFirst = AddLine(0.0);
        m_idSecond = AddLine(10.0);
        DrawAll(m_drawing);
    }
    AcDbObjectId AddLine(double y) {
        auto* const pLine = new AcDbPolyline;
        pLine->addVertexAt(0, AcGePoint2d(0.0, y));
        pLine->addVertexAt(1, AcGePoint2d(100.0, y));
        AcDbObjectId id;
        CDbOpen<AcDbBlockTableRecord>(m_drawing.ModelSpaceId(), AcDb::kForWrite)->appendAcDbEntity(id, pLine);
        pLine->close();
        return id;
    }
    AcDbObjectId Pick(const std::string& strWord) {
        return PickEntity(m_drawing, strWord, AcGePoint3d(50.0, 5.0, 0.0), &m_strReason);
    }
    AcDbDatabase m_drawing;
    AcDbObjectId m_idFirst, m_idSecond;
    std::string m_strReason;
};

} // namespace

TEST_F(Picks, HandleInEitherCaseLastAndPoint) {
    const std::string hex = m_idFirst.handle().Hex();
    EXPECT_EQ(Pick("#" + hex), m_idFirst);
    EXPECT_EQ(Pick("#" + std::string(1, static_cast<char>(std::tolower(hex[0]))) + hex.substr(1)), m_idFirst);
    EXPECT_EQ(Pick("L"), m_idSecond);
    EXPECT_EQ(Pick("50,1"), m_idFirst);
    EXPECT_EQ(Pick("50,1.01"), AcDbObjectId::kNull);
    EXPECT_EQ(Pick("@0,5.5"), m_idSecond);
}

TEST_F(Picks, AnEntityNotDrawnYetIsNoPickByPoint) {
    const AcDbObjectId id = AddLine(20.0);
    EXPECT_EQ(Pick("50,20"), AcDbObjectId::kNull);
    EXPECT_EQ(m_strReason, "no entity there: 50,20");
    DrawChanged(m_drawing);
    EXPECT_EQ(Pick("50,20"), id);
}

TEST_F(Picks, SeveralAreEachTakenOnceInTheOrderPicked) {
    CPickedEntities picked;
    EXPECT_TRUE(PickSeveral(m_drawing, "L+50,0+L", AcGePoint3d(), &picked, &m_strReason));
    EXPECT_EQ(picked.Ids(), (std::vector{m_idSecond, m_idFirst}));
    picked.Clear();
    EXPECT_TRUE(PickSeveral(m_drawing, "all", AcGePoint3d(), &picked, &m_strReason));
    EXPECT_EQ(picked.Ids(), (std::vector{m_idFirst, m_idSecond}));
    EXPECT_FALSE(PickSeveral(m_drawing, "L+", AcGePoint3d(), &picked, &m_strReason));
    EXPECT_FALSE(PickSeveral(m_drawing, "", AcGePoint3d(), &picked, &m_strReason));
}
