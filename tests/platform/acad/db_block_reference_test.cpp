#include "platform/acad/db_block_reference.h"

#include "platform/acad/display_recorder.h"
#include "platform/acad/memory_filer.h"
#include "tests/platform/acad/block_sample.h"

#include <gtest/gtest.h>

#include <limits>
#include <numbers>

namespace {

const double g_dNan = std::numeric_limits<double>::quiet_NaN();
constexpr double g_dPi = std::numbers::pi;

class DbBlockReference : public testing::Test {
protected:
    DbBlockReference() { CDbOpen<AcDbBlockTableRecord>(m_idBlock, AcDb::kForWrite)->setOrigin({10, 0, 0}); }
    static void ExpectImage(const AcDbBlockReference& reference, const AcGePoint3d& point,
                            const AcGePoint3d& image) {
        EXPECT_NEAR(AcGePoint3d(point).transformBy(reference.blockTransform()).distanceTo(image), 0.0, 1e-9);
    }
    AcGePoint3d AttributeAt() const { return CDbOpen<AcDbAttribute>(m_idAttribute)->position(); }

    AcDbDatabase m_database;
    AcDbObjectId m_idBlock = AddBlock(m_database, L"FRAME");
    AcDbObjectId m_id = Append(m_database, new AcDbBlockReference({100, 50, 0}, m_idBlock));
    AcDbObjectId m_idAttribute = AddAttribute(m_id, {101, 51, 0}, L"a", L"T");
};

} // namespace

TEST_F(DbBlockReference, ShowsTheBasePointOfItsBlockAtItsPosition) {
    const CDbOpen<AcDbBlockReference> reference(m_id, AcDb::kForWrite);
    EXPECT_EQ(reference->blockTableRecord(), m_idBlock);
    EXPECT_EQ(reference->normal(), AcGeVector3d::kZAxis);
    ExpectImage(*reference.Get(), {10, 0, 0}, {100, 50, 0});
    ExpectImage(*reference.Get(), {12, 3, 1}, {102, 53, 1});
    reference->setScaleFactors({2, -3, 4});
    reference->setRotation(g_dPi / 2);
    ExpectImage(*reference.Get(), {10, 0, 0}, {100, 50, 0});
    ExpectImage(*reference.Get(), {11, 1, 1}, {103, 52, 4});
}

TEST_F(DbBlockReference, RefusesWhatIsNoPlaceForABlock) {
    AcDbDatabase other;
    const CDbOpen<AcDbBlockReference> reference(m_id, AcDb::kForWrite);
    EXPECT_EQ(reference->setRotation(g_dNan), Acad::eInvalidInput);
    EXPECT_EQ(reference->setScaleFactors({1, 0, 1}), Acad::eInvalidInput);
    EXPECT_EQ(reference->setScaleFactors({1, g_dNan, 1}), Acad::eInvalidInput);
    EXPECT_EQ(reference->setNormal({0, 0, -1}), Acad::eInvalidInput);
    EXPECT_EQ(reference->setNormal({0, 0, 1}), Acad::eOk);
    EXPECT_EQ(reference->setBlockTableRecord(m_database.clayer()), Acad::eNotThatKindOfClass);
    EXPECT_EQ(reference->setBlockTableRecord(AcDbObjectId::kNull), Acad::eNotThatKindOfClass);
    EXPECT_EQ(reference->setBlockTableRecord(other.ModelSpaceId()), Acad::eWrongDatabase);
    EXPECT_EQ(reference->scaleFactors(), AcGeScale3d());
}

TEST_F(DbBlockReference, TakesATransformationApart) {
    const CDbOpen<AcDbBlockReference> reference(m_id, AcDb::kForWrite);
    for (const AcGeScale3d& scale :
         {AcGeScale3d(2, 3, 1), AcGeScale3d(-2, 3, 1), AcGeScale3d(2, -3, -1), AcGeScale3d(-2, -3, 1)}) {
        reference->setPosition({7, 8, 9});
        reference->setScaleFactors(scale);
        reference->setRotation(0.75);
        ASSERT_EQ(reference->setBlockTransform(reference->blockTransform()), Acad::eOk);
        EXPECT_NEAR(reference->rotation(), 0.75, 1e-12);
        EXPECT_NEAR(reference->scaleFactors().sx, scale.sx, 1e-12);
        EXPECT_NEAR(reference->scaleFactors().sy, scale.sy, 1e-12);
        EXPECT_NEAR(reference->scaleFactors().sz, scale.sz, 1e-12);
        EXPECT_NEAR(reference->position().distanceTo({7, 8, 9}), 0.0, 1e-12);
    }
}

TEST_F(DbBlockReference, RefusesATransformationThatSlantsIt) {
    const CDbOpen<AcDbBlockReference> reference(m_id, AcDb::kForWrite);
    AcGeMatrix3d slanted, flat;
    slanted.entry[0][1] = 0.5;
    flat.entry[1][1] = 0.0;
    EXPECT_EQ(reference->setBlockTransform(slanted), Acad::eCannotScaleNonUniformly);
    EXPECT_EQ(reference->setBlockTransform(flat), Acad::eCannotScaleNonUniformly);
    EXPECT_EQ(reference->transformBy(slanted), Acad::eCannotScaleNonUniformly);
    EXPECT_EQ(reference->transformBy(AcGeMatrix3d::rotation(1.0, AcGeVector3d::kXAxis, {0, 0, 0})),
              Acad::eCannotScaleNonUniformly);
    reference->setRotation(0.5);
    EXPECT_EQ(reference->transformBy(AcGeMatrix3d::scaling(AcGeScale3d(1, 2, 1), {0, 0, 0})),
              Acad::eCannotScaleNonUniformly); // turned, it would be slanted
    EXPECT_EQ(reference->position(), AcGePoint3d(100, 50, 0));
    EXPECT_EQ(AttributeAt(), AcGePoint3d(101, 51, 0));
}

TEST_F(DbBlockReference, MovesTurnsScalesAndMirrorsWithItsAttributes) {
    const CDbOpen<AcDbBlockReference> reference(m_id, AcDb::kForWrite);
    const AcGeMatrix3d steps[] = {
        AcGeMatrix3d::translation({1, 2, 3}),
        AcGeMatrix3d::rotation(0.5, AcGeVector3d::kZAxis, {5, 5, 0}),
        AcGeMatrix3d::scaling(3.0, {1, 1, 1}),
        AcGeMatrix3d::mirroring({2, 0, 0}, AcGeVector3d(1, 1, 0)),
    };
    for (const AcGeMatrix3d& step : steps) {
        const AcGePoint3d before = AcGePoint3d(13, 4, 5).transformBy(reference->blockTransform());
        EXPECT_EQ(reference->transformBy(step), Acad::eOk);
        ExpectImage(*reference.Get(), {13, 4, 5}, AcGePoint3d(before).transformBy(step));
    }
    const CDbOpen<AcDbAttribute> attribute(m_idAttribute);
    EXPECT_NEAR(attribute->height(), 3.0, 1e-12);
    AcGePoint3d place(101, 51, 0);
    for (const AcGeMatrix3d& step : steps)
        place.transformBy(step);
    EXPECT_NEAR(attribute->position().distanceTo(place), 0.0, 1e-9);
}

TEST_F(DbBlockReference, KeepsItsFactorsExactlyWhenItMoves) {
    const CDbOpen<AcDbBlockReference> reference(m_id, AcDb::kForWrite);
    reference->setScaleFactors({1000, -0.1, 7});
    reference->setRotation(0.3);
    reference->transformBy(AcGeMatrix3d::translation({1, 0, 0}));
    EXPECT_EQ(reference->scaleFactors(), AcGeScale3d(1000, -0.1, 7));
    EXPECT_EQ(reference->rotation(), 0.3);
}

TEST_F(DbBlockReference, FollowsAnUnevenScaleAlongItsAxes) {
    const CDbOpen<AcDbBlockReference> reference(m_id, AcDb::kForWrite);
    EXPECT_EQ(reference->transformBy(AcGeMatrix3d::scaling(AcGeScale3d(2, 4, 1), {0, 0, 0})), Acad::eOk);
    EXPECT_EQ(reference->scaleFactors(), AcGeScale3d(2, 4, 1));
    EXPECT_EQ(reference->position(), AcGePoint3d(200, 200, 0));
    EXPECT_EQ(AttributeAt(), AcGePoint3d(202, 204, 0));
}

TEST_F(DbBlockReference, HasItsInsertionPointAsGripWhichTakesTheAttributesAlong) {
    const CDbOpen<AcDbBlockReference> reference(m_id, AcDb::kForWrite);
    AcGePoint3dArray grips;
    AcDbIntArray osnapModes, geomIds, indices;
    reference->getGripPoints(grips, osnapModes, geomIds);
    ASSERT_EQ(grips.length(), 1);
    EXPECT_EQ(grips[0], AcGePoint3d(100, 50, 0));
    indices.append(1);
    reference->moveGripPointsAt(indices, {5, 0, 0}); // there is no such grip
    EXPECT_EQ(reference->position(), AcGePoint3d(100, 50, 0));
    indices.append(0);
    reference->moveGripPointsAt(indices, {5, 0, 0});
    EXPECT_EQ(reference->position(), AcGePoint3d(105, 50, 0));
    EXPECT_EQ(AttributeAt(), AcGePoint3d(106, 51, 0));
}

TEST_F(DbBlockReference, OwnsItsAttributesInOrder) {
    const AcDbObjectId idSecond = AddAttribute(m_id, {0, 0, 0}, L"b", L"U");
    const CDbOpen<AcDbBlockReference> reference(m_id, AcDb::kForWrite);
    EXPECT_EQ(reference->AttributeIds(), (std::vector{m_idAttribute, idSecond}));
    EXPECT_EQ(CDbOpen<AcDbAttribute>(idSecond)->ownerId(), m_id);
    EXPECT_EQ(CDbOpen<AcDbAttribute>(idSecond)->layerId(), m_database.clayer());
    EXPECT_EQ(reference->appendAttribute(nullptr), Acad::eNullObjectPointer);
    const CDbOpen<AcDbAttribute> second(idSecond);
    EXPECT_EQ(reference->appendAttribute(second.Get()), Acad::eAlreadyInDb);
    AcDbBlockReference free;
    AcDbAttribute attribute;
    EXPECT_EQ(free.appendAttribute(&attribute), Acad::eNoDatabase);
}

TEST_F(DbBlockReference, TakesItsAttributesAlongWhenErasedAndBack) {
    m_database.UndoLog().BeginStep();
    CDbOpen<AcDbBlockReference>(m_id, AcDb::kForWrite)->erase();
    EXPECT_TRUE(m_idAttribute.isErased());
    AcDbBlockReference* pReference = nullptr;
    ASSERT_EQ(acdbOpenObject(pReference, m_id, AcDb::kForWrite, true), Acad::eOk);
    EXPECT_TRUE(pReference->AttributeIds().empty());
    pReference->erase(false);
    pReference->close();
    EXPECT_FALSE(m_idAttribute.isErased());
    CDbOpen<AcDbBlockReference>(m_id, AcDb::kForWrite)->erase();
    m_database.UndoLog().Undo(1);
    EXPECT_FALSE(m_id.isErased());
    EXPECT_FALSE(m_idAttribute.isErased());
}

TEST_F(DbBlockReference, UndoesAnAttributeAndAMove) {
    m_database.UndoLog().BeginStep();
    const AcDbObjectId idSecond = AddAttribute(m_id, {0, 0, 0}, L"b", L"U");
    CDbOpen<AcDbBlockReference>(m_id, AcDb::kForWrite)->transformBy(AcGeMatrix3d::translation({1, 0, 0}));
    m_database.UndoLog().Undo(1);
    EXPECT_TRUE(idSecond.isErased());
    EXPECT_EQ(CDbOpen<AcDbBlockReference>(m_id)->AttributeIds(), std::vector{m_idAttribute});
    EXPECT_EQ(AttributeAt(), AcGePoint3d(101, 51, 0));
    m_database.UndoLog().Redo(1);
    EXPECT_EQ(CDbOpen<AcDbBlockReference>(m_id)->AttributeIds(), (std::vector{m_idAttribute, idSecond}));
    EXPECT_EQ(AttributeAt(), AcGePoint3d(102, 51, 0));
}

TEST_F(DbBlockReference, IsDrawnAnewWhenAnAttributeChanges) {
    m_database.TakeChangedEntities();
    CDbOpen<AcDbAttribute>(m_idAttribute, AcDb::kForWrite)->setTextString(L"new");
    EXPECT_EQ(m_database.TakeChangedEntities(), (std::vector{m_id, m_idAttribute}));
}

TEST_F(DbBlockReference, FilesItsBlockPlaceAndAttributes) {
    const CDbOpen<AcDbBlockReference> reference(m_id, AcDb::kForWrite);
    reference->setScaleFactors({1, 2, 3});
    reference->setRotation(0.5);
    const CDbRecord record = RecordOf(*reference.Get(), AcDb::kUndoFiler);
    AcDbBlockReference copy;
    CRecordReader reader(AcDb::kUndoFiler, record);
    EXPECT_EQ(copy.dwgIn(&reader), Acad::eOk);
    EXPECT_EQ(copy.blockTableRecord(), m_idBlock);
    EXPECT_EQ(copy.scaleFactors(), AcGeScale3d(1, 2, 3));
    EXPECT_EQ(copy.AttributeIds(), std::vector{m_idAttribute});
    EXPECT_EQ(RecordOf(copy, AcDb::kUndoFiler), record);
}
