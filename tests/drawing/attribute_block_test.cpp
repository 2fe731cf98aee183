#include "drawing/attribute_block.h"

#include "platform/acad/db_attribute.h"
#include "tests/support/drawing.h"

#include <gtest/gtest.h>

namespace {
AcGePoint3dArray Points(std::initializer_list<AcGePoint3d> list) {
    AcGePoint3dArray points;
    for (const AcGePoint3d& pt : list)
        points.append(pt);
    return points;
}
} // namespace

TEST(AttributeBlock, AsksForATextInTheMiddleOfEachPoint) {
    CTestDrawing drawing;
    CString strName;
    ASSERT_EQ(MakeAttributeBlock(strName, Points({{12.345, 1, 0}, {20, 2, 0}})), 1);
    EXPECT_EQ(strName, "ASDK-BLOCK-WITH-ATTR_12.35");
    AcDbObjectId idBlock;
    CDbOpen<AcDbBlockTable>(drawing.Database().blockTableId())->getAt(L"ASDK-BLOCK-WITH-ATTR_12.35", idBlock);
    const auto ids = CDbOpen<AcDbBlockTableRecord>(idBlock)->EntityIds();
    ASSERT_EQ(ids.size(), 2U);
    const CDbOpen<AcDbAttributeDefinition> definition(ids[1]);
    EXPECT_EQ(definition->position(), AcGePoint3d(20, 2, 0));
    EXPECT_EQ(definition->horizontalMode(), AcDb::kTextMid);
    EXPECT_EQ(definition->verticalMode(), AcDb::kTextBase);
    EXPECT_STREQ(definition->textString(), L"DEFAULT");
    EXPECT_STREQ(definition->tag(), L"Tag");
    EXPECT_FALSE(definition->isInvisible());
    EXPECT_TRUE(definition->isVerifiable());
    EXPECT_FALSE(definition->isPreset());
    EXPECT_EQ(definition->fieldLength(), 25);
}

TEST(AttributeBlock, IsNotMadeTwiceNorOfNothing) {
    CTestDrawing drawing;
    CString strName;
    EXPECT_EQ(MakeAttributeBlock(strName, Points({})), 0);
    EXPECT_EQ(MakeAttributeBlock(strName, Points({{1, 1, 0}})), 1);
    EXPECT_EQ(MakeAttributeBlock(strName, Points({{1, 5, 0}})), 0);
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    EXPECT_EQ(MakeAttributeBlock(strName, Points({{2, 1, 0}})), 0);
}
