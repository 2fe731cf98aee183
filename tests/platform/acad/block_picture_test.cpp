// What block references show.

#include "platform/acad/db_text.h"
#include "platform/acad/display_recorder.h"
#include "tests/platform/acad/block_sample.h"

#include <gtest/gtest.h>

#include <numbers>

namespace {

class BlockPicture : public testing::Test {
protected:
    BlockPicture() { AppendTo(m_idInner, new AcDbLine({0, 0, 0}, {10, 0, 0})); }
    /// The first point of each polyline that the reference draws, and each text.
    static std::string Shown(AcDbObjectId idReference) {
        const CDbOpen<AcDbBlockReference> reference(idReference);
        std::string strShown;
        for (const CPrimitive& primitive : DrawEntity(*reference.Get())) {
            if (const auto* const pLine = std::get_if<CPolylinePrimitive>(&primitive.m_shape))
                strShown += std::to_string(std::lround(pLine->m_arPoints[0].x)) + "," +
                            std::to_string(std::lround(pLine->m_arPoints[0].y)) + " ";
            if (const auto* const pText = std::get_if<CTextPrimitive>(&primitive.m_shape))
                strShown += pText->m_strText + " ";
        }
        return strShown;
    }
    static void ExpectBox(AcDbObjectId idReference, double minX, double minY, double maxX, double maxY) {
        AcDbExtents extents;
        ASSERT_EQ(CDbOpen<AcDbBlockReference>(idReference)->getGeomExtents(extents), Acad::eOk);
        EXPECT_NEAR(extents.minPoint().x, minX, 1e-9);
        EXPECT_NEAR(extents.minPoint().y, minY, 1e-9);
        EXPECT_NEAR(extents.maxPoint().x, maxX, 1e-9);
        EXPECT_NEAR(extents.maxPoint().y, maxY, 1e-9);
    }

    AcDbDatabase m_database;
    AcDbObjectId m_idInner = AddBlock(m_database, L"INNER"), m_idOuter = AddBlock(m_database, L"OUTER");
};

} // namespace

TEST_F(BlockPicture, ShowsTheBlockWhereTheReferenceStands) {
    const AcDbObjectId id = Append(m_database, new AcDbBlockReference({100, 50, 0}, m_idInner));
    ExpectBox(id, 100, 50, 110, 50); // not drawn yet
    EXPECT_EQ(Shown(id), "100,50 ");
    ExpectBox(id, 100, 50, 110, 50);
    CDbOpen<AcDbBlockReference>(id, AcDb::kForWrite)->setPosition({0, 0, 0});
    ExpectBox(id, 0, 0, 10, 0); // not as it was drawn
}

TEST_F(BlockPicture, ShowsReferencesWithinBlocks) {
    AppendTo(m_idOuter, new AcDbBlockReference({5, 5, 0}, m_idInner));
    const AcDbObjectId id = Append(m_database, new AcDbBlockReference({100, 50, 0}, m_idOuter));
    CDbOpen<AcDbBlockReference>(id, AcDb::kForWrite)->setScaleFactors(AcGeScale3d(2.0));
    ExpectBox(id, 110, 60, 130, 60);
    EXPECT_EQ(Shown(id), "110,60 ");
    ExpectBox(id, 110, 60, 130, 60);
}

TEST_F(BlockPicture, OfATurnedReferenceIsExactOnceDrawn) {
    AppendTo(m_idInner, new AcDbLine({0, 0, 0}, {0, 10, 0}));
    const AcDbObjectId id = Append(m_database, new AcDbBlockReference({0, 0, 0}, m_idInner));
    CDbOpen<AcDbBlockReference>(id, AcDb::kForWrite)->setRotation(std::numbers::pi / 4);
    Shown(id);
    ExpectBox(id, -std::sqrt(50.0), 0, std::sqrt(50.0), std::sqrt(50.0));
}

TEST_F(BlockPicture, IsNothingForAnEmptyBlockAndForNone) {
    const AcDbObjectId idEmpty = Append(m_database, new AcDbBlockReference({0, 0, 0}, m_idOuter));
    const AcDbObjectId idNone = Append(m_database, new AcDbBlockReference);
    AcDbExtents extents;
    for (const AcDbObjectId& id : {idEmpty, idNone}) {
        EXPECT_EQ(CDbOpen<AcDbBlockReference>(id)->getGeomExtents(extents), Acad::eInvalidExtents);
        EXPECT_EQ(Shown(id), "");
        EXPECT_EQ(CDbOpen<AcDbBlockReference>(id)->getGeomExtents(extents), Acad::eInvalidExtents);
    }
}

TEST_F(BlockPicture, OfABlockThatHoldsItselfEnds) {
    AppendTo(m_idInner, new AcDbBlockReference({20, 0, 0}, m_idOuter));
    AppendTo(m_idOuter, new AcDbBlockReference({0, 20, 0}, m_idInner));
    const AcDbObjectId id = Append(m_database, new AcDbBlockReference({0, 0, 0}, m_idInner));
    ExpectBox(id, 0, 0, 10, 0);
    EXPECT_EQ(Shown(id), "0,0 ");
}

TEST_F(BlockPicture, LeavesErasedEntitiesOut) {
    const AcDbObjectId idLine = AppendTo(m_idInner, new AcDbLine({0, 5, 0}, {50, 5, 0}));
    const AcDbObjectId id = Append(m_database, new AcDbBlockReference({0, 0, 0}, m_idInner));
    EXPECT_EQ(Shown(id), "0,0 0,5 ");
    CDbOpen<AcDbLine>(idLine, AcDb::kForWrite)->erase();
    EXPECT_EQ(Shown(id), "0,0 ");
    ExpectBox(id, 0, 0, 10, 0);
}

TEST_F(BlockPicture, ShowsConstantDefinitionsAndAttributesButNoOtherDefinitions) {
    AppendTo(m_idInner, new AcDbAttributeDefinition({0, 0, 0}, L"", L"TAG", L""));
    auto* const pConstant = new AcDbAttributeDefinition({0, 0, 0}, L"fixed", L"TAG", L"");
    pConstant->setConstant(Adesk::kTrue);
    AppendTo(m_idInner, pConstant);
    const AcDbObjectId id = Append(m_database, new AcDbBlockReference({100, 0, 0}, m_idInner));
    AddAttribute(id, {0, 0, 0}, L"filled", L"TAG");
    EXPECT_EQ(Shown(id), "100,0 fixed filled ");
}

TEST_F(BlockPicture, GivesItsColourAndLineTypeToPartsByBlock) {
    const auto linetype = [&](const ACHAR* name) {
        AcDbObjectId idFound;
        CDbOpen<AcDbLinetypeTable>(m_database.linetypeTableId())->getAt(name, idFound);
        return idFound;
    };
    auto* const pByBlock = new AcDbLine({0, 1, 0}, {10, 1, 0});
    pByBlock->setColorIndex(0);
    AppendTo(m_idInner, pByBlock);
    CDbOpen<AcDbLine>(pByBlock->objectId(), AcDb::kForWrite)->setLinetype(linetype(L"ByBlock"));
    const AcDbObjectId id = Append(m_database, new AcDbBlockReference({0, 0, 0}, m_idInner));
    CDbOpen<AcDbBlockReference> reference(id, AcDb::kForWrite);
    reference->setColorIndex(5);
    reference->setLinetype(linetype(L"Continuous"));
    const CDisplayList list = DrawEntity(*reference.Get());
    ASSERT_EQ(list.size(), 2U);
    EXPECT_EQ(list[0].m_nColor, 256);
    EXPECT_EQ(list[0].m_strLinetype, "ByLayer");
    EXPECT_EQ(list[1].m_nColor, 5);
    EXPECT_EQ(list[1].m_strLinetype, "Continuous");
}

TEST_F(BlockPicture, ExplodesIntoTransformedCopiesOfWhatItShows) {
    auto* const pConstant = new AcDbAttributeDefinition({1, 1, 0}, L"fixed", L"TAG", L"");
    pConstant->setConstant(Adesk::kTrue);
    pConstant->setColorIndex(3);
    AppendTo(m_idInner, pConstant);
    AppendTo(m_idInner, new AcDbAttributeDefinition({0, 0, 0}, L"", L"TAG", L""));
    const AcDbObjectId idNested = AppendTo(m_idOuter, new AcDbBlockReference({5, 5, 0}, m_idInner));
    AddAttribute(idNested, {6, 6, 0}, L"nested", L"T");
    const auto explode = [](AcDbObjectId id, std::vector<std::unique_ptr<AcDbEntity>>& parts) {
        AcDbVoidPtrArray pointers;
        const Acad::ErrorStatus status = CDbOpen<AcDbBlockReference>(id)->explode(pointers);
        for (void* const pPart : pointers)
            parts.emplace_back(static_cast<AcDbEntity*>(pPart));
        return status;
    };
    const AcDbObjectId idOuter = Append(m_database, new AcDbBlockReference({100, 0, 0}, m_idOuter));
    AddAttribute(idOuter, {1, 2, 0}, L"own", L"T");
    std::vector<std::unique_ptr<AcDbEntity>> outer, inner;
    ASSERT_EQ(explode(idOuter, outer), Acad::eOk);
    ASSERT_EQ(outer.size(), 3U);
    ASSERT_NE(AcDbBlockReference::cast(outer[0].get()), nullptr);
    EXPECT_EQ(AcDbBlockReference::cast(outer[0].get())->position(), AcGePoint3d(105, 5, 0));
    EXPECT_STREQ(AcDbText::cast(outer[1].get())->textString(), L"nested");
    EXPECT_EQ(AcDbText::cast(outer[1].get())->position(), AcGePoint3d(106, 6, 0));
    EXPECT_STREQ(AcDbText::cast(outer[2].get())->textString(), L"own");
    EXPECT_EQ(AcDbText::cast(outer[2].get())->position(), AcGePoint3d(1, 2, 0));

    const AcDbObjectId idInner = Append(m_database, new AcDbBlockReference({100, 0, 0}, m_idInner));
    ASSERT_EQ(explode(idInner, inner), Acad::eOk);
    ASSERT_EQ(inner.size(), 2U);
    EXPECT_EQ(AcDbLine::cast(inner[0].get())->endPoint(), AcGePoint3d(110, 0, 0));
    EXPECT_EQ(inner[1]->isA(), AcDbText::desc());
    EXPECT_EQ(inner[1]->colorIndex(), 3);
    EXPECT_TRUE(inner[1]->objectId().isNull());

    CDbOpen<AcDbBlockReference>(idInner, AcDb::kForWrite)->setScaleFactors({1, 2, 1});
    inner.clear();
    EXPECT_EQ(explode(idInner, inner), Acad::eCannotScaleNonUniformly); // a text cannot follow
    EXPECT_TRUE(inner.empty());
}
