// AcDbDatabase::wblock and insert.

#include "platform/acad/db_text.h"
#include "tests/platform/acad/block_sample.h"

#include <gtest/gtest.h>

namespace {

class DbWblock : public testing::Test {
protected:
    DbWblock() {
        auto* const pLayer = new AcDbLayerTableRecord;
        pLayer->SetColorIndex(3);
        m_idLayer = AddRecord<AcDbLayerTable>(m_source.layerTableId(), L"UNUSED", pLayer);
        Append(m_source, new AcDbLine({1, 0, 0}, {2, 0, 0}));
        Append(m_source, new AcDbAttributeDefinition({0, 0, 0}, L"", L"TAG", L"prompt"));
        m_source.setInsbase({1, 1, 0});
    }
    static std::vector<AcDbObjectId> Entities(AcDbObjectId idBlock) {
        return CDbOpen<AcDbBlockTableRecord>(idBlock)->EntityIds();
    }
    static bool HasLayer(AcDbDatabase& database, const ACHAR* name) {
        return CDbOpen<AcDbLayerTable>(database.layerTableId())->has(name);
    }

    AcDbDatabase m_source, m_target;
    AcDbObjectId m_idLayer, m_idBlock;
};

} // namespace

TEST_F(DbWblock, OfAWholeDrawingGivesOneLikeIt) {
    m_source.setLtscale(10.0);
    m_source.setClayer(m_idLayer);
    CDbOpen<AcDbTextStyleTableRecord>(m_source.textstyle(), AcDb::kForWrite)->setTextSize(7.0);
    const AcDbObjectId idBlock = AddBlock(m_source, L"B");
    AppendTo(idBlock, new AcDbLine({0, 0, 0}, {5, 0, 0}));
    AcDbObjectId idPaper;
    CDbOpen<AcDbBlockTable>(m_source.blockTableId())->getAt(ACDB_PAPER_SPACE, idPaper);
    AppendTo(idPaper, new AcDbText({0, 0, 0}, L"on paper"));
    {
        const CDbOpen<AcDbDictionary> named(m_source.namedObjectsDictionaryId(), AcDb::kForWrite);
        auto* const pDictionary = new AcDbDictionary;
        AcDbObjectId id;
        named->setAt(L"CHARTS", pDictionary, id);
        pDictionary->close();
    }
    AcDbDatabase* pOutput = nullptr;
    ASSERT_EQ(m_source.wblock(pOutput), Acad::eOk);
    const std::unique_ptr<AcDbDatabase> output(pOutput);
    const std::vector<AcDbObjectId> ids = Entities(output->ModelSpaceId());
    ASSERT_EQ(ids.size(), 2U);
    EXPECT_EQ(CDbOpen<AcDbLine>(ids[0])->endPoint(), AcGePoint3d(2, 0, 0));
    EXPECT_STREQ(CDbOpen<AcDbAttributeDefinition>(ids[1])->prompt(), L"prompt");
    EXPECT_EQ(output->ltscale(), 10.0);
    EXPECT_EQ(output->insbase(), AcGePoint3d(1, 1, 0));
    EXPECT_EQ(SymbolName(output->clayer()), "UNUSED");
    EXPECT_EQ(output->clayer().database(), output.get());
    EXPECT_EQ(CDbOpen<AcDbTextStyleTableRecord>(output->textstyle())->textSize(), 7.0);
    EXPECT_TRUE(CDbOpen<AcDbDictionary>(output->namedObjectsDictionaryId())->has(L"CHARTS"));
    const CDbOpen<AcDbBlockTable> blocks(output->blockTableId());
    EXPECT_EQ(blocks->RecordIds().size(), 3U);
    AcDbObjectId idCopied;
    ASSERT_EQ(blocks->getAt(L"B", idCopied), Acad::eOk);
    EXPECT_EQ(Entities(idCopied).size(), 1U);
    ASSERT_EQ(blocks->getAt(ACDB_PAPER_SPACE, idCopied), Acad::eOk);
    EXPECT_EQ(Entities(idCopied).size(), 1U);
    EXPECT_EQ(Entities(m_source.ModelSpaceId()).size(), 2U);
}

TEST_F(DbWblock, OfABlockGivesADrawingOfItsEntitiesAndItsBasePoint) {
    const AcDbObjectId idBlock = AddBlock(m_source, L"B");
    CDbOpen<AcDbBlockTableRecord>(idBlock, AcDb::kForWrite)->setOrigin({4, 5, 0});
    AppendTo(idBlock, new AcDbLine({0, 0, 0}, {5, 0, 0}));
    AcDbDatabase* pOutput = nullptr;
    ASSERT_EQ(m_source.wblock(pOutput, idBlock), Acad::eOk);
    const std::unique_ptr<AcDbDatabase> output(pOutput);
    EXPECT_EQ(Entities(output->ModelSpaceId()).size(), 1U);
    EXPECT_EQ(output->insbase(), AcGePoint3d(4, 5, 0));
    EXPECT_FALSE(HasLayer(*output, L"UNUSED"));
    EXPECT_EQ(m_source.wblock(pOutput, m_source.clayer()), Acad::eNotThatKindOfClass);
    EXPECT_EQ(pOutput, nullptr);
    pOutput = output.get();
    EXPECT_EQ(m_source.wblock(pOutput, m_target.ModelSpaceId()), Acad::eWrongDatabase);
    EXPECT_EQ(pOutput, nullptr);
}

TEST_F(DbWblock, OfADrawingThatHoldsNothingAtAllGivesNone) {
    AcDbDatabase empty(false);
    AcDbDatabase* pOutput = &m_target;
    EXPECT_EQ(empty.wblock(pOutput), Acad::eNoDatabase);
    EXPECT_EQ(pOutput, nullptr);
    pOutput = &m_target;
    EXPECT_EQ(empty.wblock(pOutput, AcDbObjectIdArray(), {0, 0, 0}), Acad::eNoDatabase);
    EXPECT_EQ(pOutput, nullptr);
}

TEST_F(DbWblock, NothingIsInsertedIntoADrawingThatHoldsNothingAtAll) {
    Append(m_source, new AcDbBlockReference({0, 0, 0}, AddBlock(m_source, L"B")));
    AcDbDatabase empty(false);
    EXPECT_EQ(empty.insert(m_idBlock, L"FRAME", &m_source), Acad::eNoDatabase);
    EXPECT_EQ(empty.insert(AcGeMatrix3d(), &m_source), Acad::eNoDatabase);
    EXPECT_TRUE(m_idBlock.isNull());
    EXPECT_TRUE(empty.ObjectIds().empty());
}

TEST_F(DbWblock, OfSomeEntitiesGivesADrawingOfTheseAndTheBasePoint) {
    AcDbObjectIdArray ids;
    ids.append(Entities(m_source.ModelSpaceId())[0]);
    AcDbDatabase* pOutput = nullptr;
    ASSERT_EQ(m_source.wblock(pOutput, ids, {7, 8, 9}), Acad::eOk);
    const std::unique_ptr<AcDbDatabase> output(pOutput);
    ASSERT_EQ(Entities(output->ModelSpaceId()).size(), 1U);
    EXPECT_EQ(CDbOpen<AcDbLine>(Entities(output->ModelSpaceId())[0])->startPoint(), AcGePoint3d(1, 0, 0));
    EXPECT_EQ(output->insbase(), AcGePoint3d(7, 8, 9));
}

TEST_F(DbWblock, InsertMakesABlockOfAnotherDrawingWithItsStyles) {
    ASSERT_EQ(m_target.insert(m_idBlock, L"FRAME", &m_source), Acad::eOk);
    const CDbOpen<AcDbBlockTableRecord> block(m_idBlock);
    EXPECT_EQ(block->Name(), L"FRAME");
    EXPECT_EQ(block->origin(), AcGePoint3d(1, 1, 0));
    ASSERT_EQ(block->EntityIds().size(), 2U);
    EXPECT_STREQ(CDbOpen<AcDbAttributeDefinition>(block->EntityIds()[1])->tag(), L"TAG");
    EXPECT_TRUE(HasLayer(m_target, L"UNUSED"));
    EXPECT_TRUE(Entities(m_target.ModelSpaceId()).empty());
    EXPECT_EQ(Entities(m_source.ModelSpaceId()).size(), 2U);
    EXPECT_EQ(m_source.insbase(), AcGePoint3d(1, 1, 0));
}

TEST_F(DbWblock, InsertKeepsTheRecordsThatAreThere) {
    auto* const pLayer = new AcDbLayerTableRecord;
    pLayer->SetColorIndex(5);
    const AcDbObjectId idThere = AddRecord<AcDbLayerTable>(m_target.layerTableId(), L"unused", pLayer);
    ASSERT_EQ(m_target.insert(m_idBlock, L"FRAME", &m_source, false), Acad::eOk);
    EXPECT_EQ(CDbOpen<AcDbLayerTableRecord>(idThere)->ColorIndex(), 5);
    EXPECT_EQ(CDbOpen<AcDbLayerTable>(m_target.layerTableId())->RecordIds().size(), 2U);
}

TEST_F(DbWblock, InsertRefusesNoDrawingItselfAndNamesOfSpaces) {
    EXPECT_EQ(m_target.insert(m_idBlock, L"FRAME", nullptr), Acad::eNullObjectPointer);
    EXPECT_EQ(m_target.insert(m_idBlock, L"FRAME", &m_target), Acad::eInvalidInput);
    EXPECT_EQ(m_target.insert(m_idBlock, L"", &m_source), Acad::eInvalidInput);
    EXPECT_EQ(m_target.insert(m_idBlock, nullptr, &m_source), Acad::eInvalidInput);
    EXPECT_EQ(m_target.insert(m_idBlock, L"*MODEL_SPACE", &m_source), Acad::eInvalidInput);
    EXPECT_EQ(m_target.insert(m_idBlock, ACDB_PAPER_SPACE, &m_source), Acad::eInvalidInput);
    EXPECT_TRUE(m_idBlock.isNull());
    EXPECT_EQ(m_target.insert(AcGeMatrix3d(), nullptr), Acad::eNullObjectPointer);
    EXPECT_EQ(m_target.insert(AcGeMatrix3d(), &m_target), Acad::eInvalidInput);
}

TEST_F(DbWblock, InsertGivesABlockThatIsThereAnotherContent) {
    const AcDbObjectId idThere = AddBlock(m_target, L"frame");
    const AcDbObjectId idLine = AppendTo(idThere, new AcDbLine({0, 0, 0}, {9, 9, 0}));
    m_target.UndoLog().BeginStep();
    ASSERT_EQ(m_target.insert(m_idBlock, L"FRAME", &m_source), Acad::eOk);
    EXPECT_EQ(m_idBlock, idThere);
    EXPECT_TRUE(idLine.isErased());
    EXPECT_EQ(Entities(idThere).size(), 2U);
    EXPECT_EQ(CDbOpen<AcDbBlockTableRecord>(idThere)->origin(), AcGePoint3d(1, 1, 0));
    m_target.UndoLog().Undo(1);
    EXPECT_EQ(Entities(idThere), std::vector<AcDbObjectId>{idLine});
    EXPECT_EQ(CDbOpen<AcDbBlockTableRecord>(idThere)->origin(), AcGePoint3d());
}

TEST_F(DbWblock, InsertLeavesABlockWhoseContentIsInUse) {
    const AcDbObjectId idThere = AddBlock(m_target, L"FRAME");
    AppendTo(idThere, new AcDbLine({0, 0, 0}, {8, 8, 0}));
    const CDbOpen<AcDbLine> line(AppendTo(idThere, new AcDbLine({0, 0, 0}, {9, 9, 0})));
    EXPECT_EQ(m_target.insert(m_idBlock, L"FRAME", &m_source), Acad::eWasOpenForRead);
    EXPECT_EQ(Entities(idThere).size(), 2U);
    EXPECT_EQ(CDbOpen<AcDbBlockTableRecord>(idThere)->origin(), AcGePoint3d());
    EXPECT_TRUE(m_idBlock.isNull());
}

TEST_F(DbWblock, InsertRefusesAContentThatTheBlockIsPartOf) {
    const AcDbObjectId idInner = AddBlock(m_source, L"frame"), idOuter = AddBlock(m_source, L"OUTER");
    AppendTo(idOuter, new AcDbBlockReference({0, 0, 0}, idInner));
    EXPECT_EQ(m_target.insert(m_idBlock, L"FRAME", &m_source), Acad::eOk) << "nothing shows the block";
    Append(m_source, new AcDbBlockReference({0, 0, 0}, idOuter));
    EXPECT_EQ(m_target.insert(m_idBlock, L"FRAME", &m_source), Acad::eSelfReference);
    EXPECT_EQ(Entities(m_idBlock).size(), 2U);
    // The target's OUTER stands for the source's, and shows nothing.
    AddBlock(m_target, L"Outer");
    EXPECT_EQ(m_target.insert(m_idBlock, L"FRAME", &m_source), Acad::eOk);
}

TEST_F(DbWblock, InsertPutsAnotherDrawingIntoModelSpaceTransformed) {
    const AcDbObjectId idOld = Append(m_target, new AcDbLine({0, 0, 0}, {1, 0, 0}));
    ASSERT_EQ(m_target.insert(AcGeMatrix3d::translation({10, 0, 0}), &m_source), Acad::eOk);
    const std::vector<AcDbObjectId> ids = Entities(m_target.ModelSpaceId());
    ASSERT_EQ(ids.size(), 3U);
    EXPECT_EQ(CDbOpen<AcDbLine>(idOld)->startPoint(), AcGePoint3d(0, 0, 0));
    EXPECT_EQ(CDbOpen<AcDbLine>(ids[1])->startPoint(), AcGePoint3d(11, 0, 0));
}

TEST_F(DbWblock, InsertIsUndone) {
    m_target.UndoLog().BeginStep();
    m_target.insert(m_idBlock, L"FRAME", &m_source);
    m_target.UndoLog().Undo(1);
    EXPECT_TRUE(m_idBlock.isErased());
    EXPECT_FALSE(HasLayer(m_target, L"UNUSED"));
    m_target.UndoLog().Redo(1);
    EXPECT_EQ(Entities(m_idBlock).size(), 2U);
    EXPECT_TRUE(HasLayer(m_target, L"UNUSED"));
}
