#include "platform/acad/db_database.h"

#include "platform/acad/db_polyline.h"
#include "platform/acad/host_application.h"
#include "tests/platform/acad/sample_entity.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

template <class Table>
std::vector<std::string> Names(AcDbObjectId idTable) {
    const CDbOpen<Table> table(idTable);
    std::vector<std::string> names;
    for (const AcDbObjectId& id : table->RecordIds())
        names.push_back(SymbolName(id));
    return names;
}

} // namespace

TEST(AcDbDatabase, IsBornWithItsStandardRecords) {
    AcDbDatabase database;
    using CNames = std::vector<std::string>;
    EXPECT_EQ(Names<AcDbBlockTable>(database.blockTableId()), (CNames{"*Model_Space", "*Paper_Space"}));
    EXPECT_EQ(Names<AcDbLayerTable>(database.layerTableId()), CNames{"0"});
    EXPECT_EQ(Names<AcDbLinetypeTable>(database.linetypeTableId()),
              (CNames{"ByLayer", "ByBlock", "Continuous"}));
    EXPECT_EQ(Names<AcDbTextStyleTable>(database.textStyleTableId()), CNames{"Standard"});
    EXPECT_EQ(SymbolName(database.ModelSpaceId()), "*Model_Space");
    EXPECT_EQ(SymbolName(database.clayer()), "0");
    EXPECT_EQ(SymbolName(database.textstyle()), "Standard");
    EXPECT_TRUE(database.celtype().isNull());
    EXPECT_EQ(database.ltscale(), 1.0);
    EXPECT_FALSE(database.IsModified());
    EXPECT_TRUE(database.TakeChangedEntities().empty());
    std::wstring fileName = L"x";
    EXPECT_EQ(database.getFilename(fileName), Acad::eOk);
    EXPECT_EQ(fileName, L"");
}

TEST(AcDbDatabase, OpensItsTablesInTheModeAskedFor) {
    AcDbDatabase database;
    AcDbTextStyleTable* pStyles = nullptr;
    ASSERT_EQ(database.getTextStyleTable(pStyles, AcDb::kForWrite), Acad::eOk);
    AcDbTextStyleTable* pAgain = nullptr;
    EXPECT_EQ(database.getTextStyleTable(pAgain, AcDb::kForRead), Acad::eWasOpenForWrite);
    EXPECT_EQ(pAgain, nullptr);
    pStyles->close();
    AcDbBlockTable* pBlocks = nullptr;
    AcDbLayerTable* pLayers = nullptr;
    AcDbLinetypeTable* pLinetypes = nullptr;
    EXPECT_EQ(database.getBlockTable(pBlocks, AcDb::kForRead), Acad::eOk);
    EXPECT_EQ(database.getLayerTable(pLayers, AcDb::kForRead), Acad::eOk);
    EXPECT_EQ(database.getLinetypeTable(pLinetypes, AcDb::kForRead), Acad::eOk);
    pBlocks->close();
    pLayers->close();
    pLinetypes->close();
    EXPECT_FALSE(database.IsModified()); // opening a table for writing changes nothing yet
}

TEST(AcDbDatabase, TellsAppendedAndChangedEntitiesOnceInHandleOrder) {
    AcDbDatabase database;
    const AcDbObjectId first = Append(database, new AcDbPolyline),
                       second = Append(database, new AcDbPolyline);
    const AcDbObjectId third = Append(database, new AcDbPolyline);
    EXPECT_TRUE(database.IsModified());
    EXPECT_EQ(database.TakeChangedEntities(), (std::vector{first, second, third}));
    EXPECT_TRUE(database.TakeChangedEntities().empty());
    database.SetModified(false);
    for (const AcDbObjectId& id : {third, first, third, second}) {
        CDbOpen<AcDbEntity> entity(id, id == second ? AcDb::kForRead : AcDb::kForWrite);
        ASSERT_TRUE(entity);
    }
    EXPECT_TRUE(database.IsModified());
    EXPECT_EQ(database.TakeChangedEntities(), (std::vector{first, third}));
}

TEST(AcDbDatabase, TellsADowngradedEntityAndLeavesOutAnErasedOne) {
    AcDbDatabase database;
    const AcDbObjectId kept = Append(database, new AcDbPolyline), erased = Append(database, new AcDbPolyline);
    database.TakeChangedEntities();
    CDbOpen<AcDbPolyline> polyline(kept);
    polyline->upgradeOpen();
    EXPECT_TRUE(database.TakeChangedEntities().empty());
    polyline->downgradeOpen();
    CDbOpen<AcDbPolyline>(erased, AcDb::kForWrite)->erase();
    EXPECT_EQ(database.TakeChangedEntities(), std::vector{kept});
    EXPECT_TRUE(CDbOpen<AcDbPolyline>(erased).Status() == Acad::eWasErased);
}

TEST(AcDbDatabase, DestroysItsObjectsAndStopsBeingTheWorkingDrawing) {
    const int before = CSampleEntity::s_nLiving;
    {
        AcDbDatabase database;
        acdbHostApplicationServices()->setWorkingDatabase(&database);
        Append(database, new CSampleEntity);
        Append(database, new CSampleEntity);
        EXPECT_EQ(CSampleEntity::s_nLiving, before + 2);
    }
    EXPECT_EQ(CSampleEntity::s_nLiving, before);
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), nullptr);
}

TEST(AcDbDatabase, RefusesVariablesThatAreNoneOfItsOwn) {
    AcDbDatabase database, other;
    EXPECT_EQ(database.setLtscale(10.0), Acad::eOk);
    EXPECT_EQ(database.setLtscale(0.0), Acad::eInvalidInput);
    EXPECT_EQ(database.setLtscale(std::numeric_limits<double>::quiet_NaN()), Acad::eInvalidInput);
    EXPECT_EQ(database.ltscale(), 10.0);
    EXPECT_EQ(database.setTextstyle(AcDbObjectId::kNull), Acad::eNullObjectId);
    EXPECT_EQ(database.setTextstyle(other.textstyle()), Acad::eWrongDatabase);
    EXPECT_EQ(database.setTextstyle(database.clayer()), Acad::eNotThatKindOfClass);
    EXPECT_EQ(database.setCeltype(database.clayer()), Acad::eNotThatKindOfClass);
    EXPECT_EQ(database.setCeltype(AcDbObjectId::kNull), Acad::eOk);
    EXPECT_EQ(database.setClayer(other.clayer()), Acad::eWrongDatabase);
}

TEST(AcDbDatabase, CountsAsModifiedOnlyByAChange) {
    AcDbDatabase database;
    database.setLtscale(1.0);
    database.setTextstyle(database.textstyle());
    EXPECT_FALSE(database.IsModified());
    database.setLtscale(10.0);
    EXPECT_TRUE(database.IsModified());
}

TEST(AcDbDatabase, KnowsNoForeignHandle) {
    const AcDbDatabase database;
    AcDbObjectId id = database.ModelSpaceId();
    EXPECT_EQ(database.getAcDbObjectId(id, AcDbHandle(0xFFFF)), Acad::eUnknownHandle);
    EXPECT_EQ(database.getAcDbObjectId(id, AcDbHandle()), Acad::eUnknownHandle);
    EXPECT_EQ(id, database.ModelSpaceId());
}

TEST(AcDbDatabase, NamesItsObjectsInOrderWithoutErasedOnes) {
    AcDbDatabase database;
    const std::vector<AcDbObjectId> before = database.ObjectIds();
    EXPECT_EQ(before.front(), database.blockTableId());
    const AcDbHandle seed = database.handseed();
    const AcDbObjectId idFirst = Append(database, new AcDbPolyline),
                       idSecond = Append(database, new AcDbPolyline);
    EXPECT_EQ(idFirst.handle(), seed);
    EXPECT_EQ(database.handseed(), AcDbHandle(seed.Value() + 2));
    CDbOpen<AcDbPolyline>(idFirst, AcDb::kForWrite)->erase();
    const std::vector<AcDbObjectId> after = database.ObjectIds();
    EXPECT_EQ(after.size(), before.size() + 1);
    EXPECT_EQ(after.back(), idSecond);
}

TEST(AcDbDatabase, GivesTheNextObjectTheHandleThatIsAskedForIfItIsFree) {
    AcDbDatabase database;
    EXPECT_TRUE(database.SetHandseed(AcDbHandle(0x100)));
    EXPECT_EQ(Append(database, new AcDbPolyline).handle(), AcDbHandle(0x100));
    EXPECT_EQ(database.handseed(), AcDbHandle(0x101));
    EXPECT_FALSE(database.SetHandseed(AcDbHandle(0x100)));
    EXPECT_FALSE(database.SetHandseed(AcDbHandle()));
    EXPECT_EQ(database.handseed(), AcDbHandle(0x101));
}

TEST(AcDbDatabase, PassesOverHandlesInUse) {
    AcDbDatabase database;
    database.SetHandseed(AcDbHandle(0x101));
    const AcDbObjectId idLater = Append(database, new AcDbPolyline);
    database.SetHandseed(AcDbHandle(0x100));
    const AcDbObjectId idFirst = Append(database, new AcDbPolyline);
    EXPECT_EQ(database.handseed(), AcDbHandle(0x102));
    const AcDbObjectId idSecond = Append(database, new AcDbPolyline);
    EXPECT_EQ(idFirst.handle(), AcDbHandle(0x100));
    EXPECT_EQ(idLater.handle(), AcDbHandle(0x101));
    EXPECT_EQ(idSecond.handle(), AcDbHandle(0x102));
    database.SetHandseed(AcDbHandle(0xF0));
    EXPECT_EQ(database.SetHandle(idSecond, AcDbHandle(0xFF)), Acad::eOk);
    EXPECT_EQ(database.handseed(), AcDbHandle(0x102));
}

TEST(AddObject, RefusesNothingAndWhatHasAnOwner) {
    AcDbDatabase database, other;
    AcDbObjectId id;
    EXPECT_EQ(database.AddObject(id, nullptr, AcDbObjectId::kNull), Acad::eNullObjectPointer);
    AcDbPolyline polyline;
    EXPECT_EQ(database.AddObject(id, &polyline, other.ModelSpaceId()), Acad::eWrongDatabase);
    EXPECT_TRUE(polyline.objectId().isNull());
    auto* const pOwned = new AcDbPolyline;
    Append(database, pOwned);
    EXPECT_EQ(other.AddObject(id, pOwned, AcDbObjectId::kNull), Acad::eAlreadyInDb);
}

TEST(SetHandle, MovesAnObjectAndTheHandlesToCome) {
    AcDbDatabase database;
    const AcDbHandle former = database.ModelSpaceId().handle();
    EXPECT_EQ(database.SetHandle(database.ModelSpaceId(), AcDbHandle(0x1F0)), Acad::eOk);
    EXPECT_EQ(database.ModelSpaceId().handle(), AcDbHandle(0x1F0));
    AcDbObjectId id;
    EXPECT_EQ(database.getAcDbObjectId(id, former), Acad::eUnknownHandle);
    ASSERT_EQ(database.getAcDbObjectId(id, AcDbHandle(0x1F0)), Acad::eOk);
    EXPECT_EQ(id, database.ModelSpaceId());
    EXPECT_EQ(database.handseed(), AcDbHandle(0x1F1));
}

TEST(SetHandle, RefusesATakenOneAndWhatIsNone) {
    AcDbDatabase database, other;
    const AcDbObjectId id = database.ModelSpaceId();
    EXPECT_EQ(database.SetHandle(id, database.layerTableId().handle()), Acad::eInvalidInput);
    EXPECT_EQ(database.SetHandle(id, AcDbHandle()), Acad::eInvalidInput);
    EXPECT_EQ(database.SetHandle(id, AcDbHandle(~Adesk::UInt64{0})), Acad::eInvalidInput);
    EXPECT_EQ(database.SetHandle(AcDbObjectId::kNull, AcDbHandle(0x1F0)), Acad::eWrongDatabase);
    EXPECT_EQ(other.SetHandle(id, AcDbHandle(0x1F0)), Acad::eWrongDatabase);
    EXPECT_EQ(id, database.ModelSpaceId());
}

TEST(SymbolName, OfANullIdOrOfNoRecordIsEmpty) {
    AcDbDatabase database;
    EXPECT_EQ(SymbolName(AcDbObjectId::kNull), "");
    EXPECT_EQ(SymbolName(database.layerTableId()), "");
}
