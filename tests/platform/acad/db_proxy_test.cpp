#include "platform/acad/db_proxy.h"

#include "platform/acad/db_filer.h"
#include "platform/acad/display_recorder.h"
#include "platform/acad/rx_registry.h"
#include "tests/platform/acad/sample_entity.h"

#include <gtest/gtest.h>

namespace {

AcRxClass* g_pClass = nullptr;
bool g_bReadsMore = false; ///< the class of another version, whose record is longer

/// An entity as a module has it: its record is a length, its picture a line of that length.
class CModuleEntity : public AcDbEntity {
public:
    AcRxClass* isA() const override { return g_pClass; }
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* pFiler) const override {
        AcDbEntity::dwgOutFields(pFiler);
        return pFiler->writeDouble(m_dLength);
    }
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* pFiler) override {
        AcDbEntity::dwgInFields(pFiler);
        pFiler->readDouble(&m_dLength);
        double dMore = 0.0;
        if (g_bReadsMore) pFiler->readDouble(&dMore);
        return Acad::eOk; // it does not look at the status
    }
    double m_dLength = 10.0;

protected:
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* pMode) override {
        const AcGePoint3d points[] = {{0.0, 0.0, 0.0}, {m_dLength, 0.0, 0.0}};
        pMode->subEntityTraits().setColor(5);
        pMode->rawGeometry()->polyline(2, points);
        return Adesk::kTrue;
    }
};

/// An object that is no entity.
class CModuleObject : public AcDbObject {
public:
    AcRxClass* isA() const override { return g_pClass; }
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* pFiler) const override {
        AcDbObject::dwgOutFields(pFiler);
        return pFiler->writeInt32(7);
    }
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* pFiler) override {
        AcDbObject::dwgInFields(pFiler);
        return pFiler->readInt32(&m_nValue);
    }
    Adesk::Int32 m_nValue = 0;
};

class DbProxyTest : public testing::Test {
protected:
    DbProxyTest() { Register(); }
    ~DbProxyTest() override {
        if (g_pClass) Unregister();
        g_bReadsMore = false;
    }
    static void Register() {
        g_pClass = newAcRxClass(
            L"CModuleEntity", L"AcDbEntity", 31, 55, 255, []() -> AcRxObject* { return new CModuleEntity; },
            L"MODULEENTITY", L"MODULE");
    }
    static void Unregister() {
        deleteAcRxClass(g_pClass);
        g_pClass = nullptr;
    }

    AcDbObjectId AppendEntity(double dLength) {
        auto* const pEntity = new CModuleEntity;
        pEntity->m_dLength = dLength;
        pEntity->setColorIndex(3);
        return Append(m_database, pEntity);
    }
    static double Length(AcDbObjectId id) {
        const CDbOpen<AcDbEntity> entity(id);
        const auto* const pEntity = dynamic_cast<const CModuleEntity*>(entity.Get());
        return pEntity ? pEntity->m_dLength : 0.0;
    }
    static void SetLength(AcDbObjectId id, double dLength) {
        const CDbOpen<AcDbEntity> entity(id, AcDb::kForWrite);
        entity->assertWriteEnabled();
        dynamic_cast<CModuleEntity&>(*entity.Get()).m_dLength = dLength;
    }
    static bool IsProxy(AcDbObjectId id) { return bool(CDbOpen<AcDbProxyEntity>(id)); }

    AcDbDatabase m_database;
};

} // namespace

TEST_F(DbProxyTest, KeepsClassRecordAndPictureOfAnEntityWhoseClassGoes) {
    const AcDbObjectId id = AppendEntity(25.0);
    const AcDbHandle handle = id.handle();
    const CDbRecord record = [&] {
        const CDbOpen<AcDbEntity> entity(id);
        DrawEntity(*entity.Get());
        return RecordOf(*entity.Get(), AcDb::kUndoFiler);
    }();
    Unregister();

    const CDbOpen<AcDbProxyEntity> proxy(id);
    ASSERT_TRUE(proxy);
    EXPECT_STREQ(proxy->originalClassName(), L"CModuleEntity");
    EXPECT_STREQ(proxy->originalDxfName(), L"MODULEENTITY");
    EXPECT_STREQ(proxy->applicationDescription(), L"MODULE");
    EXPECT_EQ(proxy->objectId(), id);
    EXPECT_EQ(proxy->handle(), handle);
    EXPECT_EQ(proxy->ownerId(), m_database.ModelSpaceId());
    EXPECT_EQ(proxy->colorIndex(), 3);
    EXPECT_EQ(RecordOf(*proxy.Get(), AcDb::kUndoFiler), record);

    const CDisplayList picture = DrawEntity(*proxy.Get());
    ASSERT_EQ(picture.size(), 1U);
    EXPECT_EQ(picture[0].m_nColor, 5);
    EXPECT_EQ(std::get<CPolylinePrimitive>(picture[0].m_shape).m_arPoints[1].x, 25.0);
    AcDbExtents extents;
    EXPECT_EQ(proxy->getGeomExtents(extents), Acad::eOk);
    EXPECT_EQ(extents.maxPoint().x, 25.0);
}

TEST_F(DbProxyTest, HasThePictureOfAnEntityThatWasNeverDrawn) {
    const AcDbObjectId id = AppendEntity(4.0);
    Unregister();
    const CDbOpen<AcDbProxyEntity> proxy(id);
    ASSERT_TRUE(proxy->Picture());
    EXPECT_EQ(ExtentsOf(*proxy->Picture()).maxPoint().x, 4.0);
}

TEST_F(DbProxyTest, BecomesTheObjectAgainWithWhatWasChangedMeanwhile) {
    const AcDbObjectId id = AppendEntity(25.0);
    const AcDbObjectId idLayer =
        AddRecord<AcDbLayerTable>(m_database.layerTableId(), L"sheets", new AcDbLayerTableRecord);
    Unregister();
    {
        const CDbOpen<AcDbEntity> proxy(id, AcDb::kForWrite);
        EXPECT_EQ(proxy->setLayer(idLayer), Acad::eOk);
        EXPECT_EQ(proxy->transformBy(AcGeMatrix3d::translation({1.0, 0.0, 0.0})), Acad::eNotApplicable);
    }
    Register();
    EXPECT_EQ(Length(id), 25.0);
    const CDbOpen<AcDbEntity> entity(id);
    EXPECT_EQ(entity->isA(), g_pClass);
    EXPECT_EQ(entity->objectId(), id);
    EXPECT_EQ(entity->ownerId(), m_database.ModelSpaceId());
    EXPECT_EQ(entity->layerId(), idLayer);
    EXPECT_TRUE(entity->Picture());
}

TEST_F(DbProxyTest, IsNoChangeOfTheDrawing) {
    AppendEntity(25.0);
    m_database.TakeChangedEntities();
    m_database.SetModified(false);
    Unregister();
    EXPECT_FALSE(m_database.IsModified());
    Register();
    EXPECT_FALSE(m_database.IsModified());
    EXPECT_TRUE(m_database.TakeChangedEntities().empty());
}

TEST_F(DbProxyTest, StandsForErasedEntitiesToo) {
    const AcDbObjectId id = AppendEntity(25.0);
    m_database.UndoLog().BeginStep();
    CDbOpen<AcDbEntity>(id, AcDb::kForWrite)->erase();
    Unregister();
    EXPECT_TRUE(id.isErased());
    EXPECT_EQ(m_database.UndoLog().Undo(1), 1);
    EXPECT_TRUE(IsProxy(id));
    Register();
    EXPECT_EQ(Length(id), 25.0);
}

TEST_F(DbProxyTest, LetsAChangeFromBeforeBeUndone) {
    const AcDbObjectId id = AppendEntity(25.0);
    m_database.UndoLog().BeginStep();
    SetLength(id, 40.0);
    Unregister();
    EXPECT_EQ(m_database.UndoLog().Undo(1), 1);
    EXPECT_TRUE(IsProxy(id));
    Register();
    EXPECT_EQ(Length(id), 25.0);
    EXPECT_EQ(m_database.UndoLog().Redo(1), 1);
    EXPECT_EQ(Length(id), 40.0);
}

TEST_F(DbProxyTest, StaysWhenTheClassReadsMoreThanThereIs) {
    const AcDbObjectId id = AppendEntity(25.0);
    Unregister();
    g_bReadsMore = true;
    Register();
    EXPECT_TRUE(IsProxy(id));
    Unregister();
    g_bReadsMore = false;
    Register();
    EXPECT_EQ(Length(id), 25.0);
}

TEST_F(DbProxyTest, StaysWhenAnotherClassComes) {
    const AcDbObjectId id = AppendEntity(25.0);
    Unregister();
    AcRxClass* const pOther = newAcRxClass(L"COtherEntity", L"AcDbEntity");
    EXPECT_TRUE(IsProxy(id));
    deleteAcRxClass(pOther);
}

TEST_F(DbProxyTest, StaysWhenTheClassOfThatNameMakesNoEntity) {
    const AcDbObjectId id = AppendEntity(25.0);
    Unregister();
    g_pClass = newAcRxClass(L"CModuleEntity", L"AcDbObject", 0, 0, 0,
                            []() -> AcRxObject* { return new CModuleObject; });
    EXPECT_TRUE(IsProxy(id));
}

TEST_F(DbProxyTest, StandsInEveryOpenDrawing) {
    AcDbDatabase other;
    const AcDbObjectId idHere = AppendEntity(1.0);
    const AcDbObjectId idThere = Append(other, new CModuleEntity);
    Unregister();
    EXPECT_TRUE(IsProxy(idHere));
    EXPECT_TRUE(IsProxy(idThere));
    Register();
    EXPECT_EQ(Length(idThere), 10.0);
}

TEST_F(DbProxyTest, StandsForAnObjectThatIsNoEntity) {
    Unregister();
    const auto make = []() -> AcRxObject* { return new CModuleObject; };
    g_pClass = newAcRxClass(L"CModuleObject", L"AcDbObject", 0, 0, 0, make, L"MODULEOBJECT");
    AcDbObjectId id;
    auto* const pObject = new CModuleObject;
    m_database.AddObject(id, pObject, m_database.blockTableId());
    pObject->close();
    Unregister();
    {
        const CDbOpen<AcDbProxyObject> proxy(id);
        ASSERT_TRUE(proxy);
        EXPECT_STREQ(proxy->originalDxfName(), L"MODULEOBJECT");
    }
    g_pClass = newAcRxClass(L"CModuleObject", L"AcDbObject", 0, 0, 0, make, L"MODULEOBJECT");
    const CDbOpen<AcDbObject> object(id);
    const auto* const pBack = dynamic_cast<const CModuleObject*>(object.Get());
    ASSERT_TRUE(pBack);
    EXPECT_EQ(pBack->m_nValue, 7);
}

TEST_F(DbProxyTest, MayNotReplaceAnObjectThatIsOpen) {
    const AcDbObjectId id = AppendEntity(25.0);
    const CDbOpen<AcDbEntity> entity(id);
    EXPECT_DEATH(Unregister(), "is not open");
}
