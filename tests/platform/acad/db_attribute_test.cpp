#include "platform/acad/db_attribute.h"

#include "platform/acad/display_recorder.h"
#include "platform/acad/memory_filer.h"
#include "tests/platform/acad/sample_entity.h"

#include <gtest/gtest.h>

#include <numbers>

namespace {

/// A definition with nothing at its default.
std::unique_ptr<AcDbAttributeDefinition> Definition() {
    auto pDefinition =
        std::make_unique<AcDbAttributeDefinition>(AcGePoint3d(1, 2, 0), L"未填", L"图号", L"图号?");
    pDefinition->setHeight(2.5);
    pDefinition->setRotation(0.5);
    pDefinition->setWidthFactor(0.7);
    pDefinition->setOblique(0.1);
    pDefinition->setHorizontalMode(AcDb::kTextMid);
    pDefinition->setVerticalMode(AcDb::kTextTop);
    pDefinition->setAlignmentPoint({3, 4, 0});
    pDefinition->setFieldLength(25);
    pDefinition->setVerifiable(Adesk::kTrue);
    pDefinition->setPreset(Adesk::kTrue);
    return pDefinition;
}

std::string Shown(AcDbEntity& entity) {
    const CDisplayList list = DrawEntity(entity);
    return list.empty() ? "nothing" : std::get<CTextPrimitive>(list[0].m_shape).m_strText;
}

} // namespace

TEST(AcDbAttributeDefinition, BeginsVisibleAndVariable) {
    const AcDbAttributeDefinition definition;
    EXPECT_STREQ(definition.tag(), L"");
    EXPECT_STREQ(definition.prompt(), L"");
    EXPECT_EQ(definition.fieldLength(), 0);
    EXPECT_FALSE(definition.isConstant() || definition.isInvisible() || definition.isVerifiable() ||
                 definition.isPreset());
    EXPECT_STREQ(definition.isA()->dxfName(), L"ATTDEF");
}

TEST(AcDbAttributeDefinition, ShowsItsTagUnlessItIsConstant) {
    const std::unique_ptr<AcDbAttributeDefinition> pDefinition = Definition();
    EXPECT_EQ(Shown(*pDefinition), "图号");
    pDefinition->setConstant(Adesk::kTrue);
    EXPECT_EQ(Shown(*pDefinition), "未填");
}

TEST(AcDbAttributeDefinition, RefusesWhatIsNoTagPromptOrLength) {
    AcDbAttributeDefinition definition;
    EXPECT_EQ(definition.setTag(nullptr), Acad::eInvalidInput);
    EXPECT_EQ(definition.setPrompt(nullptr), Acad::eInvalidInput);
    EXPECT_EQ(definition.setFieldLength(-1), Acad::eInvalidInput);
    EXPECT_EQ(definition.setTag(L""), Acad::eOk);
}

TEST(AcDbAttributeDefinition, FilesWhatItSays) {
    const std::unique_ptr<AcDbAttributeDefinition> pDefinition = Definition();
    const CDbRecord record = RecordOf(*pDefinition, AcDb::kCopyFiler);
    AcDbAttributeDefinition copy;
    CRecordReader reader(AcDb::kCopyFiler, record);
    EXPECT_EQ(copy.dwgIn(&reader), Acad::eOk);
    EXPECT_STREQ(copy.tag(), L"图号");
    EXPECT_STREQ(copy.prompt(), L"图号?");
    EXPECT_EQ(copy.fieldLength(), 25);
    EXPECT_TRUE(copy.isVerifiable() && copy.isPreset());
    EXPECT_EQ(RecordOf(copy, AcDb::kCopyFiler), record);
}

TEST(AcDbAttribute, TakesWhatItsDefinitionSaysToItsPlaceOnTheReference) {
    const std::unique_ptr<AcDbAttributeDefinition> pDefinition = Definition();
    AcDbAttribute attribute;
    EXPECT_EQ(attribute.setAttributeFromBlock(nullptr, AcGeMatrix3d()), Acad::eNullObjectPointer);
    EXPECT_EQ(attribute.setAttributeFromBlock(pDefinition.get(), AcGeMatrix3d::translation({100, 0, 0}) *
                                                                     AcGeMatrix3d::scaling(2.0, {0, 0, 0})),
              Acad::eOk);
    EXPECT_EQ(attribute.position(), AcGePoint3d(102, 4, 0));
    EXPECT_EQ(attribute.alignmentPoint(), AcGePoint3d(106, 8, 0));
    EXPECT_EQ(attribute.height(), 5.0);
    EXPECT_NEAR(attribute.rotation(), 0.5, 1e-12);
    EXPECT_EQ(attribute.widthFactor(), 0.7);
    EXPECT_EQ(attribute.oblique(), 0.1);
    EXPECT_EQ(attribute.horizontalMode(), AcDb::kTextMid);
    EXPECT_EQ(attribute.verticalMode(), AcDb::kTextTop);
    EXPECT_STREQ(attribute.textString(), L"未填");
    EXPECT_STREQ(attribute.tag(), L"图号");
    EXPECT_EQ(attribute.fieldLength(), 25);
    EXPECT_TRUE(attribute.isVerifiable() && attribute.isPreset());
    EXPECT_STREQ(attribute.isA()->dxfName(), L"ATTRIB");
}

TEST(AcDbAttribute, FollowsAnUnevenScaleByHeightAndWidthFactor) {
    AcDbAttribute attribute({1, 1, 0}, L"A", L"T");
    attribute.setHeight(2.0);
    EXPECT_EQ(attribute.transformBy(AcGeMatrix3d::scaling(AcGeScale3d(4.0, 2.0, 1.0), {0, 0, 0})), Acad::eOk);
    EXPECT_EQ(attribute.position(), AcGePoint3d(4, 2, 0));
    EXPECT_EQ(attribute.height(), 4.0);
    EXPECT_EQ(attribute.widthFactor(), 2.0);
    EXPECT_EQ(attribute.rotation(), 0.0);
}

TEST(AcDbAttribute, ShowsItsTextUnlessItIsInvisible) {
    const CFixedMetrics metrics;
    AcDbAttribute attribute({0, 0, 0}, L"值", L"T");
    attribute.setHeight(1.0);
    AcDbExtents extents;
    EXPECT_EQ(Shown(attribute), "值");
    EXPECT_EQ(attribute.getGeomExtents(extents), Acad::eOk);
    attribute.setInvisible(Adesk::kTrue);
    EXPECT_EQ(Shown(attribute), "nothing");
    EXPECT_EQ(attribute.getGeomExtents(extents), Acad::eInvalidExtents);
}
