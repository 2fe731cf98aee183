#include "drawing/xdata.h"

#include "platform/acad/db_polyline.h"
#include "tests/support/drawing.h"

#include <gtest/gtest.h>

namespace {
class EntityXData : public testing::Test {
protected:
    CTestDrawing m_drawing;
    AcDbObjectId m_id = [this] {
        AcDbObjectId id;
        CDbOpen<AcDbBlockTableRecord> pSpace(m_drawing.Database().ModelSpaceId(), AcDb::kForWrite);
        auto* pLine = new AcDbPolyline;
        pSpace->appendAcDbEntity(id, pLine);
        pLine->close();
        return id;
    }();
};
} // namespace

TEST_F(EntityXData, GivesBackEachKindOfValue) {
    EXPECT_EQ(SetXDataText(m_id, "NAME", "图框'1"), 1);
    EXPECT_EQ(SetXDataDouble(m_id, "FL", 2.25), 1);
    EXPECT_EQ(SetXDataPoint(m_id, "BASEPOINT", {1.0, 2.0, 3.0}), 1);
    EXPECT_EQ(SetXDataInt(m_id, "FB", -70000), 1);
    CString strText;
    double dValue = 0.0;
    float fValue = 0.0F;
    AcGePoint3d point;
    Adesk::Int32 nValue = 0;
    EXPECT_EQ(GetXDataText(m_id, "NAME", strText), 1);
    EXPECT_STREQ(strText, "图框'1");
    EXPECT_EQ(GetXDataDouble(m_id, "FL", dValue), 1);
    EXPECT_EQ(dValue, 2.25);
    EXPECT_EQ(GetXDataFloat(m_id, "FL", fValue), 1);
    EXPECT_EQ(fValue, 2.25F);
    EXPECT_EQ(GetXDataPoint(m_id, "BASEPOINT", point), 1);
    EXPECT_TRUE(point == AcGePoint3d(1.0, 2.0, 3.0));
    EXPECT_EQ(GetXDataInt(m_id, "FB", nValue), 1);
    EXPECT_EQ(nValue, -70000);
}

TEST_F(EntityXData, LeavesTheDefaultWhereThereIsNoValue) {
    CString strText = "x";
    double dValue = 1.0;
    float fValue = 1.0F;
    AcGePoint3d point;
    Adesk::Int32 nValue = 7;
    EXPECT_EQ(GetXDataText(m_id, "NAME", strText), 0);
    EXPECT_TRUE(strText.IsEmpty());
    EXPECT_EQ(GetXDataDouble(m_id, "NAME", dValue), 0);
    EXPECT_EQ(dValue, -3.4e36);
    EXPECT_EQ(GetXDataFloat(m_id, "NAME", fValue), 0);
    EXPECT_EQ(fValue, -340000.0F);
    EXPECT_EQ(GetXDataPoint(m_id, "NAME", point), 0);
    EXPECT_TRUE(point.x == -3.4e36 && point.y == -3.4e36 && point.z == -3.4e36);
    EXPECT_EQ(GetXDataInt(m_id, "NAME", nValue), 0);
    EXPECT_EQ(nValue, 7);
}

TEST_F(EntityXData, OfAnotherKindCountsAsNone) {
    SetXDataText(m_id, "NAME", "2.5");
    double dValue = 1.0;
    EXPECT_EQ(GetXDataDouble(m_id, "NAME", dValue), 0);
    EXPECT_EQ(dValue, -3.4e36);
}

TEST_F(EntityXData, IsReplacedUnderItsNameAndStaysUnderOthers) {
    SetXDataText(m_id, "NAME", "a");
    SetXDataText(m_id, "TKCLASS", "b");
    SetXDataDouble(m_id, "NAME", 4.0);
    CString strText;
    EXPECT_EQ(GetXDataText(m_id, "NAME", strText), 0);
    double dValue = 0.0;
    EXPECT_EQ(GetXDataDouble(m_id, "NAME", dValue), 1);
    EXPECT_EQ(dValue, 4.0);
    EXPECT_EQ(GetXDataText(m_id, "TKCLASS", strText), 1);
    EXPECT_STREQ(strText, "b");
}

TEST_F(EntityXData, IsReadFromAnOpenEntityWhichStaysOpen) {
    SetXDataText(m_id, "NAME", "a");
    const CDbOpen<AcDbEntity> pEntity(m_id);
    CString strText;
    EXPECT_EQ(GetXDataText(pEntity.Get(), "NAME", strText), 1);
    EXPECT_STREQ(strText, "a");
    EXPECT_TRUE(pEntity->isReadEnabled());
}

TEST_F(EntityXData, NeedsAnObjectThatCanBeOpened) {
    EXPECT_EQ(SetXDataText(AcDbObjectId::kNull, "NAME", "a"), 0);
    CString strText;
    EXPECT_EQ(GetXDataText(AcDbObjectId::kNull, "NAME", strText), 0);
    const CDbOpen<AcDbEntity> pWriter(m_id, AcDb::kForWrite);
    EXPECT_EQ(SetXDataText(m_id, "NAME", "a"), 0);
}
