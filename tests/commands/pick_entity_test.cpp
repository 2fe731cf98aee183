#include "commands/pick_entity.h"

#include "drawing/model_space.h"
#include "platform/acad/db_line.h"
#include "tests/support/drawing.h"

#include <gtest/gtest.h>

namespace {
class PickedEntity : public testing::Test {
protected:
    PickedEntity() { AddToModelSpace(new AcDbLine({0, 0, 0}, {1, 0, 0}), m_idLine); }
    CPickedEntity Pick(AcDb::OpenMode mode = AcDb::kForWrite) { return PickEntity("\n选:", m_id, mode); }
    bool IsHighlighted() const { return CDbOpen<AcDbEntity>(m_idLine)->IsHighlighted(); }

    CTestDrawing m_drawing;
    AcDbObjectId m_idLine, m_id;
};
} // namespace

TEST_F(PickedEntity, IsOpenAndHighlightedUntilItIsReleased) {
    m_drawing.m_arPicks = {m_idLine};
    CPickedEntity pEntity = Pick();
    ASSERT_TRUE(pEntity);
    EXPECT_EQ(m_drawing.m_strPrompt, "\n选:");
    EXPECT_EQ(m_id, m_idLine);
    EXPECT_TRUE(pEntity->isWriteEnabled());
    EXPECT_TRUE(pEntity->IsHighlighted());
    pEntity.reset();
    EXPECT_FALSE(IsHighlighted());
    EXPECT_EQ(m_drawing.m_strPrinted, "");
}

TEST_F(PickedEntity, IsOpenInTheModeAskedFor) {
    m_drawing.m_arPicks = {m_idLine};
    const CPickedEntity pEntity = Pick(AcDb::kForRead);
    ASSERT_TRUE(pEntity);
    EXPECT_FALSE(pEntity->isWriteEnabled());
    EXPECT_TRUE(pEntity->isReadEnabled());
}

TEST_F(PickedEntity, IsNoneWhenNothingIsPicked) {
    EXPECT_FALSE(Pick());
    EXPECT_EQ(m_drawing.m_strPrinted, "什么也没有选中.\n");
}

TEST_F(PickedEntity, IsNoneForANameThatStandsForNothing) {
    m_drawing.m_arPicks = {AcDbObjectId::kNull};
    EXPECT_FALSE(Pick());
    CString strLine;
    strLine.Format("取试体ID失败: \n试体名：<0,0>, 错误码=%d.\n", Acad::eInvalidAdsName);
    EXPECT_EQ(m_drawing.m_strPrinted, strLine.GetString());
}

TEST_F(PickedEntity, IsNoneWhenItCannotBeOpened) {
    m_drawing.m_arPicks = {m_idLine};
    const CDbOpen<AcDbLine> pReader(m_idLine);
    EXPECT_FALSE(Pick());
    CString strLine;
    strLine.Format("打开试体错误，错误码=%d.\n", Acad::eWasOpenForRead);
    EXPECT_EQ(m_drawing.m_strPrinted, strLine.GetString());
    EXPECT_FALSE(IsHighlighted());
}
