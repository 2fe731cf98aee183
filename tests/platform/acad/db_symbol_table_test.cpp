#include "platform/acad/db_symbol_table.h"

#include "tests/platform/acad/sample_entity.h"

#include <gtest/gtest.h>

TEST(AcDbSymbolTable, FindsRecordsInAnyCase) {
    AcDbDatabase database;
    const AcDbObjectId idStyle = AddRecord<AcDbTextStyleTable>(database.textStyleTableId(), L"仿宋Style",
                                                               new AcDbTextStyleTableRecord);
    const CDbOpen<AcDbTextStyleTable> table(database.textStyleTableId());
    AcDbObjectId id;
    EXPECT_EQ(table->getAt(L"仿宋STYLE", id), Acad::eOk);
    EXPECT_EQ(id, idStyle);
    EXPECT_TRUE(table->has(L"standard"));
    EXPECT_FALSE(table->has(L"宋体"));
    EXPECT_FALSE(table->has(nullptr));
    EXPECT_EQ(table->getAt(L"宋体", id), Acad::eKeyNotFound);
    EXPECT_EQ(id, idStyle); // as it was
    EXPECT_EQ(SymbolName(idStyle), "仿宋Style");
}

TEST(AcDbSymbolTable, OpensARecordByName) {
    AcDbDatabase database;
    const CDbOpen<AcDbTextStyleTable> table(database.textStyleTableId());
    AcDbTextStyleTableRecord* pStyle = nullptr;
    ASSERT_EQ(table->getAt(L"Standard", pStyle, AcDb::kForWrite), Acad::eOk);
    EXPECT_TRUE(pStyle->isWriteEnabled());
    std::wstring name;
    EXPECT_EQ(pStyle->getName(name), Acad::eOk);
    EXPECT_EQ(name, L"Standard");
    pStyle->close();
}

TEST(AcDbSymbolTable, KeepsAnAddedRecordOpenForWriting) {
    AcDbDatabase database;
    CDbOpen<AcDbLayerTable> table(database.layerTableId(), AcDb::kForWrite);
    auto* const pLayer = new AcDbLayerTableRecord;
    EXPECT_EQ(table->add(pLayer), Acad::eInvalidInput); // no name yet
    EXPECT_TRUE(pLayer->objectId().isNull());
    pLayer->setName(L"图框");
    AcDbObjectId id;
    EXPECT_EQ(table->add(id, pLayer), Acad::eOk);
    EXPECT_EQ(id, pLayer->objectId());
    EXPECT_EQ(pLayer->ownerId(), database.layerTableId());
    EXPECT_TRUE(pLayer->isWriteEnabled());
    EXPECT_EQ(table->add(pLayer), Acad::eAlreadyInDb);
    EXPECT_EQ(SymbolName(id), "图框"); // although it is open
    pLayer->close();
}

TEST(AcDbSymbolTable, RefusesANameThatItHas) {
    AcDbDatabase database;
    const AcDbObjectId id =
        AddRecord<AcDbLayerTable>(database.layerTableId(), L"A", new AcDbLayerTableRecord);
    CDbOpen<AcDbLayerTable> table(database.layerTableId(), AcDb::kForWrite);
    AcDbLayerTableRecord another;
    another.setName(L"a");
    EXPECT_EQ(table->add(&another), Acad::eDuplicateKey);
    EXPECT_EQ(table->add(nullptr), Acad::eNullObjectPointer);
    CDbOpen<AcDbLayerTableRecord> layer(id, AcDb::kForWrite);
    EXPECT_EQ(layer->setName(L"0"), Acad::eDuplicateKey);
    EXPECT_EQ(layer->setName(L""), Acad::eInvalidInput);
    EXPECT_EQ(layer->setName(L"a"), Acad::eOk); // its own name in another case
    EXPECT_EQ(SymbolName(id), "a");
}

TEST(AcDbSymbolTable, FindsARenamedRecordByItsNewNameOnlyUntilThatIsUndone) {
    AcDbDatabase database;
    const AcDbObjectId idLayer =
        AddRecord<AcDbLayerTable>(database.layerTableId(), L"Curves", new AcDbLayerTableRecord);
    database.UndoLog().BeginStep();
    EXPECT_EQ(CDbOpen<AcDbLayerTableRecord>(idLayer, AcDb::kForWrite)->setName(L"Readings"), Acad::eOk);
    const auto find = [&](const ACHAR* name) {
        return CDbOpen<AcDbLayerTable>(database.layerTableId())->Find(name);
    };
    EXPECT_EQ(find(L"READINGS"), idLayer);
    EXPECT_TRUE(find(L"CURVES").isNull());
    EXPECT_EQ(database.UndoLog().Undo(1), 1);
    EXPECT_EQ(find(L"CURVES"), idLayer);
    EXPECT_TRUE(find(L"READINGS").isNull());
}

TEST(AcDbSymbolTable, LeavesAFormerNameToAnotherRecordAndTakesItBack) {
    AcDbDatabase database;
    const AcDbObjectId idTable = database.layerTableId();
    const AcDbObjectId idFirst = AddRecord<AcDbLayerTable>(idTable, L"A", new AcDbLayerTableRecord);
    const auto rename = [](AcDbObjectId id, const ACHAR* name) {
        return CDbOpen<AcDbLayerTableRecord>(id, AcDb::kForWrite)->setName(name);
    };
    const auto find = [&](const ACHAR* name) { return CDbOpen<AcDbLayerTable>(idTable)->Find(name); };
    EXPECT_EQ(rename(idFirst, L"B"), Acad::eOk);
    const AcDbObjectId idSecond = AddRecord<AcDbLayerTable>(idTable, L"a", new AcDbLayerTableRecord);
    EXPECT_EQ(find(L"A"), idSecond);
    EXPECT_EQ(rename(idFirst, L"A"), Acad::eDuplicateKey);
    EXPECT_EQ(rename(idSecond, L"C"), Acad::eOk);
    EXPECT_EQ(rename(idFirst, L"A"), Acad::eOk);
    EXPECT_EQ(find(L"a"), idFirst);
    EXPECT_EQ(find(L"c"), idSecond);
    EXPECT_TRUE(find(L"B").isNull());
}

TEST(AcDbSymbolTable, ForgetsTheNameOfAnErasedRecord) {
    AcDbDatabase database;
    const AcDbObjectId id =
        AddRecord<AcDbLayerTable>(database.layerTableId(), L"A", new AcDbLayerTableRecord);
    CDbOpen<AcDbLayerTableRecord>(id, AcDb::kForWrite)->erase();
    EXPECT_FALSE(CDbOpen<AcDbLayerTable>(database.layerTableId())->has(L"A"));
    AddRecord<AcDbLayerTable>(database.layerTableId(), L"A", new AcDbLayerTableRecord);
    EXPECT_TRUE(CDbOpen<AcDbLayerTable>(database.layerTableId())->has(L"A"));
}

TEST(AcDbSymbolTable, OutsideOfADrawingTakesNoRecord) {
    AcDbLayerTable table;
    AcDbLayerTableRecord layer;
    layer.setName(L"A");
    EXPECT_EQ(table.add(&layer), Acad::eNoDatabase);
}

TEST(LivingRecords, LeaveOutErasedOnesAndThoseOfATableThatSomebodyChanges) {
    AcDbDatabase database;
    const AcDbObjectId idFirst =
        AddRecord<AcDbLayerTable>(database.layerTableId(), L"A", new AcDbLayerTableRecord);
    const AcDbObjectId idSecond =
        AddRecord<AcDbLayerTable>(database.layerTableId(), L"B", new AcDbLayerTableRecord);
    CDbOpen<AcDbLayerTableRecord>(idFirst, AcDb::kForWrite)->erase();
    EXPECT_EQ(LivingRecords(database.layerTableId()),
              (std::vector<AcDbObjectId>{database.clayer(), idSecond}));
    const CDbOpen<AcDbLayerTable> table(database.layerTableId(), AcDb::kForWrite);
    EXPECT_TRUE(LivingRecords(database.layerTableId()).empty());
}
