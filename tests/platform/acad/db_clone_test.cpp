// Clones of objects: AcDbDatabase::deepCloneObjects and wblockCloneObjects.

#include "platform/acad/db_clone.h"

#include "platform/acad/db_text.h"
#include "platform/acad/result_buffer.h"
#include "tests/platform/acad/block_sample.h"
#include "tests/platform/acad/referring_entity.h"

#include <gtest/gtest.h>

ACRX_DEFINE_MEMBERS(CReferringEntity, AcDbEntity, L"REFERRING")

namespace {

AcDbObjectIdArray List(std::initializer_list<AcDbObjectId> ids) {
    AcDbObjectIdArray list;
    for (const AcDbObjectId& id : ids)
        list.append(id);
    return list;
}

class DbClone : public testing::Test {
protected:
    AcDbObjectId CloneOf(AcDbObjectId id) const {
        AcDbIdPair pair(id);
        return m_mapping.compute(pair) ? pair.value() : AcDbObjectId::kNull;
    }
    Acad::ErrorStatus Deep(std::initializer_list<AcDbObjectId> ids) {
        return m_source.deepCloneObjects(List(ids), m_source.ModelSpaceId(), m_mapping);
    }
    Acad::ErrorStatus Wblock(std::initializer_list<AcDbObjectId> ids,
                             AcDb::DuplicateRecordCloning drc = AcDb::kDrcIgnore) {
        return m_source.wblockCloneObjects(List(ids), m_target.ModelSpaceId(), m_mapping, drc);
    }
    AcDbObjectId AddReferring(double dValue, AcDbObjectId idHard = {}, AcDbObjectId idSoft = {}) {
        auto* const pEntity = new CReferringEntity;
        pEntity->m_dValue = dValue;
        pEntity->m_idHard = idHard;
        pEntity->m_idSoft = idSoft;
        return Append(m_source, pEntity);
    }
    static std::size_t CountIn(AcDbDatabase& database) {
        return CDbOpen<AcDbBlockTableRecord>(database.ModelSpaceId())->EntityIds().size();
    }
    static AcDbObjectId AddLayer(AcDbDatabase& database, const ACHAR* name, Adesk::UInt16 nColor) {
        auto* const pLayer = new AcDbLayerTableRecord;
        pLayer->SetColorIndex(nColor);
        return AddRecord<AcDbLayerTable>(database.layerTableId(), name, pLayer);
    }

    AcDbDatabase m_source, m_target;
    AcDbIdMapping m_mapping;
};

} // namespace

TEST_F(DbClone, WithinADrawingHasTheRecordOfItsOriginal) {
    const AcDbObjectId id = AddReferring(5.0);
    CDbOpen<CReferringEntity>(id, AcDb::kForWrite)->setColorIndex(3);
    ASSERT_EQ(Deep({id}), Acad::eOk);
    const CDbOpen<CReferringEntity> clone(CloneOf(id));
    ASSERT_TRUE(clone);
    EXPECT_NE(clone->objectId(), id);
    EXPECT_EQ(clone->m_dValue, 5.0);
    EXPECT_EQ(clone->colorIndex(), 3);
    EXPECT_EQ(clone->ownerId(), m_source.ModelSpaceId());
    EXPECT_EQ(clone->layerId(), m_source.clayer());
    EXPECT_EQ(clone->m_readFor, AcDb::kDeepCloneFiler);
    EXPECT_EQ(CountIn(m_source), 2U);
    EXPECT_TRUE(m_mapping.Pairs()[0].isPrimary());
}

TEST_F(DbClone, WithinADrawingRefersToWhatItsOriginalDidUnlessThatIsClonedToo) {
    const AcDbObjectId idA = AddReferring(1.0), idB = AddReferring(2.0);
    const AcDbObjectId id = AddReferring(3.0, idA, idB);
    ASSERT_EQ(Deep({id, idB}), Acad::eOk);
    const CDbOpen<CReferringEntity> clone(CloneOf(id));
    EXPECT_EQ(clone->m_idHard, idA);
    EXPECT_EQ(clone->m_idSoft, CloneOf(idB));
    EXPECT_TRUE(CloneOf(idA).isNull());
}

TEST_F(DbClone, OfAReferenceHasAttributesOfItsOwn) {
    const AcDbObjectId idBlock = AddBlock(m_source, L"FRAME");
    const AcDbObjectId id = Append(m_source, new AcDbBlockReference({0, 0, 0}, idBlock));
    const AcDbObjectId idAttribute = AddAttribute(id, {1, 1, 0}, L"value", L"T");
    const AcDbObjectId idErased = AddAttribute(id, {1, 1, 0}, L"gone", L"U");
    CDbOpen<AcDbAttribute>(idErased, AcDb::kForWrite)->erase();
    ASSERT_EQ(Deep({id}), Acad::eOk);
    const CDbOpen<AcDbBlockReference> clone(CloneOf(id));
    EXPECT_EQ(clone->blockTableRecord(), idBlock);
    ASSERT_EQ(clone->AttributeIds(), std::vector{CloneOf(idAttribute)});
    const CDbOpen<AcDbAttribute> attribute(CloneOf(idAttribute));
    EXPECT_EQ(attribute->ownerId(), CloneOf(id));
    EXPECT_STREQ(attribute->textString(), L"value");
    EXPECT_EQ(CDbOpen<AcDbBlockReference>(id)->AttributeIds(), std::vector{idAttribute});
}

TEST_F(DbClone, StaysEmptyUntilItsTranslationWhenThatIsDeferred) {
    const AcDbObjectId idA = AddReferring(1.0), idB = AddReferring(2.0, {}, idA);
    ASSERT_EQ(m_source.deepCloneObjects(List({idB}), m_source.ModelSpaceId(), m_mapping, true), Acad::eOk);
    EXPECT_EQ(CDbOpen<CReferringEntity>(CloneOf(idB))->m_dValue, 0.0);
    ASSERT_EQ(Deep({idA}), Acad::eOk);
    const CDbOpen<CReferringEntity> clone(CloneOf(idB));
    EXPECT_EQ(clone->m_dValue, 2.0);
    EXPECT_EQ(clone->m_idSoft, CloneOf(idA));
    EXPECT_EQ(CountIn(m_source), 4U);
}

TEST_F(DbClone, IsUndone) {
    const AcDbObjectId id = AddReferring(5.0);
    m_source.UndoLog().BeginStep();
    Deep({id});
    m_source.UndoLog().Undo(1);
    EXPECT_TRUE(CloneOf(id).isErased());
    m_source.UndoLog().Redo(1);
    EXPECT_EQ(CDbOpen<CReferringEntity>(CloneOf(id))->m_dValue, 5.0);
}

TEST_F(DbClone, LeavesOutWhatCannotBeClonedAndSaysSo) {
    const AcDbObjectId idNoClass = Append(m_source, new CSampleEntity), id = AddReferring(5.0);
    const AcDbObjectId idUnreadable = AddReferring(-1.0), idErased = AddReferring(1.0);
    CDbOpen<CReferringEntity>(idErased, AcDb::kForWrite)->erase();
    EXPECT_EQ(Deep({idNoClass, id}), Acad::eNotApplicable);
    EXPECT_TRUE(CloneOf(idNoClass).isNull());
    EXPECT_EQ(CDbOpen<CReferringEntity>(CloneOf(id))->m_dValue, 5.0);
    EXPECT_EQ(Deep({idUnreadable}), Acad::eFilerError);
    EXPECT_TRUE(CloneOf(idUnreadable).isErased());
    EXPECT_EQ(Deep({idErased}), Acad::eOk);
    EXPECT_TRUE(CloneOf(idErased).isNull());
    EXPECT_EQ(Deep({AcDbObjectId::kNull}), Acad::eNullObjectId);
    EXPECT_EQ(Deep({m_source.clayer()}), Acad::eDuplicateRecordName);
    EXPECT_EQ(Deep({m_target.ModelSpaceId()}), Acad::eWrongDatabase);
    const AcDbObjectId idOpen = AddReferring(1.0);
    const CDbOpen<CReferringEntity> open(idOpen, AcDb::kForWrite);
    EXPECT_EQ(Deep({idOpen}), Acad::eWasOpenForWrite);
}

TEST_F(DbClone, RefusesOwnersOfTheWrongDrawing) {
    const AcDbObjectIdArray none;
    EXPECT_EQ(m_source.deepCloneObjects(none, m_target.ModelSpaceId(), m_mapping), Acad::eWrongDatabase);
    EXPECT_EQ(m_source.deepCloneObjects(none, AcDbObjectId::kNull, m_mapping), Acad::eNullObjectId);
    EXPECT_EQ(m_source.wblockCloneObjects(none, m_source.ModelSpaceId(), m_mapping, AcDb::kDrcIgnore),
              Acad::eWrongDatabase);
    EXPECT_EQ(m_source.wblockCloneObjects(none, AcDbObjectId::kNull, m_mapping, AcDb::kDrcIgnore),
              Acad::eNullObjectId);
}

TEST_F(DbClone, IntoAnotherDrawingBringsItsLayerStyleAndLineTypeAlong) {
    const AcDbObjectId idLayer = AddLayer(m_source, L"TEXTS", 3);
    auto* const pDashed = new AcDbLinetypeTableRecord;
    pDashed->SetPattern(L"dashes", {1.0, -1.0});
    const AcDbObjectId idDashed =
        AddRecord<AcDbLinetypeTable>(m_source.linetypeTableId(), L"DASHED", pDashed);
    CDbOpen<AcDbLayerTableRecord>(idLayer, AcDb::kForWrite)->setLinetypeObjectId(idDashed);
    auto* const pStyle = new AcDbTextStyleTableRecord;
    pStyle->setFont(L"仿宋_GB2312", 0, 0, 134, 4);
    const AcDbObjectId idStyle = AddRecord<AcDbTextStyleTable>(m_source.textStyleTableId(), L"标题", pStyle);
    auto* const pText = new AcDbText({1, 2, 0}, L"A", idStyle, 2.5);
    pText->setLayer(idLayer);
    const AcDbObjectId id = Append(m_source, pText);
    ASSERT_EQ(Wblock({id}), Acad::eOk);
    const CDbOpen<AcDbText> clone(CloneOf(id));
    EXPECT_EQ(clone->database(), &m_target);
    EXPECT_EQ(clone->StyleName(), "标题");
    EXPECT_EQ(clone->textStyle().database(), &m_target);
    EXPECT_EQ(clone->LayerName(), "TEXTS");
    const CDbOpen<AcDbLayerTableRecord> layer(clone->layerId());
    EXPECT_EQ(layer->ColorIndex(), 3);
    EXPECT_EQ(layer->linetypeObjectId().database(), &m_target);
    EXPECT_EQ(CDbOpen<AcDbLinetypeTableRecord>(layer->linetypeObjectId())->Dashes(),
              (std::vector{1.0, -1.0}));
    EXPECT_TRUE(CDbOpen<AcDbLayerTable>(m_target.layerTableId())->has(L"texts"));
    EXPECT_FALSE(m_mapping.Pairs().back().isPrimary());
    EXPECT_EQ(CountIn(m_source), 1U);
}

TEST_F(DbClone, IntoAnotherDrawingKeepsTheRecordsThatAreThere) {
    const AcDbObjectId idLayer = AddLayer(m_source, L"Axes", 3), idThere = AddLayer(m_target, L"AXES", 5);
    const AcDbObjectId id = AddReferring(1.0);
    CDbOpen<CReferringEntity>(id, AcDb::kForWrite)->setLayer(idLayer);
    ASSERT_EQ(Wblock({id}), Acad::eOk);
    EXPECT_EQ(CDbOpen<CReferringEntity>(CloneOf(id))->layerId(), idThere);
    EXPECT_EQ(CDbOpen<AcDbLayerTableRecord>(idThere)->ColorIndex(), 5);
    EXPECT_EQ(CDbOpen<CReferringEntity>(CloneOf(id))->m_readFor, AcDb::kWblockCloneFiler);
}

TEST_F(DbClone, IntoAnotherDrawingReplacesTheRecordsThatAreThereWhenTold) {
    const AcDbObjectId idLayer = AddLayer(m_source, L"Axes", 3), idThere = AddLayer(m_target, L"AXES", 5);
    ASSERT_EQ(Wblock({idLayer}, AcDb::kDrcReplace), Acad::eOk);
    EXPECT_EQ(CloneOf(idLayer), idThere);
    EXPECT_EQ(CDbOpen<AcDbLayerTableRecord>(idThere)->ColorIndex(), 3);
    const AcDbObjectId idNew = AddBlock(m_source, L"B"), idOld = AddBlock(m_target, L"b");
    AppendTo(idNew, new AcDbLine({0, 0, 0}, {1, 0, 0}));
    const AcDbObjectId idFormer = AppendTo(idOld, new AcDbLine({0, 0, 0}, {9, 0, 0}));
    ASSERT_EQ(Wblock({idNew}, AcDb::kDrcReplace), Acad::eOk);
    EXPECT_TRUE(idFormer.isErased());
    const std::vector<AcDbObjectId> ids = CDbOpen<AcDbBlockTableRecord>(idOld)->EntityIds();
    ASSERT_EQ(ids.size(), 1U);
    EXPECT_EQ(CDbOpen<AcDbLine>(ids[0])->endPoint(), AcGePoint3d(1, 0, 0));
}

TEST_F(DbClone, IntoAnotherDrawingLeavesABlockWhoseContentIsInUse) {
    const AcDbObjectId idNew = AddBlock(m_source, L"B"), idOld = AddBlock(m_target, L"B");
    AppendTo(idNew, new AcDbLine({0, 0, 0}, {1, 0, 0}));
    const AcDbObjectId idFirst = AppendTo(idOld, new AcDbLine({0, 0, 0}, {8, 0, 0})),
                       idSecond = AppendTo(idOld, new AcDbLine({0, 0, 0}, {9, 0, 0}));
    const CDbOpen<AcDbLine> inUse(idSecond);
    EXPECT_EQ(Wblock({idNew}, AcDb::kDrcReplace), Acad::eWasOpenForRead);
    EXPECT_EQ(CDbOpen<AcDbBlockTableRecord>(idOld)->EntityIds(),
              (std::vector<AcDbObjectId>{idFirst, idSecond}));
}

TEST_F(DbClone, IntoAnotherDrawingBringsHardReferencesAlongAndLosesSoftOnes) {
    const AcDbObjectId idHard = AddReferring(1.0), idSoft = AddReferring(2.0);
    const AcDbObjectId id = AddReferring(3.0, idHard, idSoft);
    CDbOpen<CReferringEntity>(id, AcDb::kForWrite)->addPersistentReactor(idSoft);
    ASSERT_EQ(Wblock({id}), Acad::eOk);
    const CDbOpen<CReferringEntity> clone(CloneOf(id));
    EXPECT_EQ(clone->m_idHard, CloneOf(idHard));
    EXPECT_EQ(clone->m_idHard.database(), &m_target);
    EXPECT_TRUE(clone->m_idSoft.isNull());
    EXPECT_TRUE(clone->PersistentReactors().empty());
    EXPECT_EQ(CountIn(m_target), 2U);
    EXPECT_EQ(CDbOpen<CReferringEntity>(id)->m_idSoft, idSoft);
}

TEST_F(DbClone, IntoAnotherDrawingKeepsSoftReferencesAmongTheClones) {
    const AcDbObjectId idA = AddReferring(1.0), idB = AddReferring(2.0, idA, idA);
    { // each refers to the other
        const CDbOpen<CReferringEntity> a(idA, AcDb::kForWrite);
        a->m_idHard = a->m_idSoft = idB;
        a->addPersistentReactor(idB);
    }
    ASSERT_EQ(Wblock({idA}), Acad::eOk);
    const CDbOpen<CReferringEntity> a(CloneOf(idA)), b(CloneOf(idB));
    EXPECT_EQ(a->m_idSoft, CloneOf(idB));
    EXPECT_EQ(a->PersistentReactors(), std::vector{CloneOf(idB)});
    EXPECT_EQ(b->m_idHard, CloneOf(idA));
    EXPECT_EQ(b->m_dValue, 2.0);
}

TEST_F(DbClone, IntoAnotherDrawingBringsTheBlockOfAReferenceAlong) {
    const AcDbObjectId idInner = AddBlock(m_source, L"INNER"), idOuter = AddBlock(m_source, L"OUTER");
    CDbOpen<AcDbBlockTableRecord>(idOuter, AcDb::kForWrite)->setOrigin({5, 5, 0});
    AppendTo(idInner, new AcDbLine({0, 0, 0}, {1, 0, 0}));
    AppendTo(idInner, new AcDbBlockReference({1, 1, 0}, idOuter)); // a block that holds itself
    AppendTo(idOuter, new AcDbBlockReference({2, 2, 0}, idInner));
    const AcDbObjectId id = Append(m_source, new AcDbBlockReference({3, 3, 0}, idOuter));
    ASSERT_EQ(Wblock({id}), Acad::eOk);
    const CDbOpen<AcDbBlockTableRecord> outer(CDbOpen<AcDbBlockReference>(CloneOf(id))->blockTableRecord());
    EXPECT_EQ(outer->Name(), L"OUTER");
    EXPECT_EQ(outer->origin(), AcGePoint3d(5, 5, 0));
    EXPECT_EQ(outer->database(), &m_target);
    EXPECT_EQ(outer->EntityIds().size(), 1U);
    EXPECT_EQ(CDbOpen<AcDbBlockTableRecord>(CloneOf(idInner))->EntityIds().size(), 2U);
}

TEST_F(DbClone, IntoAnotherDrawingBringsTheApplicationsOfItsExtendedDataAlong) {
    const AcDbObjectId idApp =
        AddRecord<AcDbRegAppTable>(m_source.regAppTableId(), L"TKCLASS", new AcDbRegAppTableRecord);
    const AcDbObjectId id = AddReferring(1.0);
    const CResbufChain chain(acutBuildList(1001, L"TKCLASS", 1000, L"TK", RTNONE));
    ASSERT_EQ(CDbOpen<CReferringEntity>(id, AcDb::kForWrite)->setXData(chain.Get()), Acad::eOk);
    ASSERT_EQ(Wblock({id}), Acad::eOk);
    const CResbufChain cloned(CDbOpen<CReferringEntity>(CloneOf(id))->xData(L"TKCLASS"));
    ASSERT_TRUE(cloned);
    EXPECT_STREQ(cloned->rbnext->resval.rstring, L"TK");
    EXPECT_EQ(CloneOf(idApp).database(), &m_target);
}

TEST_F(DbClone, OfADictionaryHasClonesOfItsObjectsUnderTheirNames) {
    AcDbObjectId idDictionary, idEntry;
    {
        const CDbOpen<AcDbDictionary> named(m_source.namedObjectsDictionaryId(), AcDb::kForWrite);
        auto* const pDictionary = new AcDbDictionary;
        auto* const pEntry = new AcDbDictionary;
        named->setAt(L"CHARTS", pDictionary, idDictionary);
        pDictionary->setAt(L"first", pEntry, idEntry);
        pEntry->setTreatElementsAsHard(Adesk::kTrue);
        pEntry->close();
        pDictionary->close();
    }
    ASSERT_EQ(m_source.wblockCloneObjects(List({idDictionary}), m_target.namedObjectsDictionaryId(),
                                          m_mapping, AcDb::kDrcIgnore),
              Acad::eOk);
    AcDbObjectId idFound;
    EXPECT_EQ(CDbOpen<AcDbDictionary>(m_target.namedObjectsDictionaryId())->getAt(L"charts", idFound),
              Acad::eOk);
    EXPECT_EQ(idFound, CloneOf(idDictionary));
    AcDbObjectId idFirst;
    EXPECT_EQ(CDbOpen<AcDbDictionary>(idFound)->getAt(L"first", idFirst), Acad::eOk);
    EXPECT_EQ(idFirst, CloneOf(idEntry));
    EXPECT_TRUE(CDbOpen<AcDbDictionary>(idFirst)->isTreatElementsAsHard());
}
