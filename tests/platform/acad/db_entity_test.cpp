#include "platform/acad/db_entity.h"

#include "platform/acad/db_polyline.h"
#include "platform/acad/display_recorder.h"
#include "platform/acad/rx_class.h"
#include "platform/acad/rx_registry.h"
#include "tests/platform/acad/sample_entity.h"

#include <gtest/gtest.h>

TEST(AcDbEntity, BeginsByLayer) {
    const AcDbPolyline polyline;
    EXPECT_EQ(polyline.colorIndex(), 256);
    EXPECT_EQ(polyline.LinetypeName(), "ByLayer");
    EXPECT_EQ(polyline.LayerName(), "0");
    EXPECT_EQ(polyline.Picture(), nullptr);
}

TEST(AcDbEntity, TakesColoursAndRecordsOfItsDrawingOnly) {
    AcDbDatabase database, other;
    CDbOpen<AcDbPolyline> polyline(Append(database, new AcDbPolyline), AcDb::kForWrite);
    EXPECT_EQ(polyline->setColorIndex(2), Acad::eOk);
    EXPECT_EQ(polyline->setColorIndex(257), Acad::eInvalidInput);
    EXPECT_EQ(polyline->colorIndex(), 2);
    const auto continuous = [](AcDbDatabase& drawing) {
        AcDbObjectId id;
        CDbOpen<AcDbLinetypeTable>(drawing.linetypeTableId())->getAt(L"Continuous", id);
        return id;
    };
    EXPECT_EQ(polyline->setLinetype(continuous(database)), Acad::eOk);
    EXPECT_EQ(polyline->setLinetype(continuous(other)), Acad::eWrongDatabase);
    EXPECT_EQ(polyline->setLinetype(database.clayer()), Acad::eNotThatKindOfClass);
    EXPECT_EQ(polyline->LinetypeName(), "Continuous");
    EXPECT_EQ(polyline->setLinetype(AcDbObjectId::kNull), Acad::eOk);
    EXPECT_EQ(polyline->LinetypeName(), "ByLayer");
    EXPECT_EQ(polyline->setLayer(other.clayer()), Acad::eWrongDatabase);
    EXPECT_EQ(polyline->setLayer(AcDbObjectId::kNull), Acad::eNullObjectId);
    EXPECT_EQ(polyline->setLayer(database.textstyle()), Acad::eNotThatKindOfClass);
}

TEST(AcDbEntity, TakesThePropertiesOfAnother) {
    AcDbDatabase database, other;
    const AcDbObjectId idSource = Append(database, new AcDbPolyline),
                       idForeign = Append(other, new AcDbPolyline);
    {
        const CDbOpen<AcDbPolyline> source(idSource, AcDb::kForWrite);
        source->setColorIndex(3);
        AcDbObjectId idLinetype;
        CDbOpen<AcDbLinetypeTable>(database.linetypeTableId())->getAt(L"Continuous", idLinetype);
        source->setLinetype(idLinetype);
    }
    const CDbOpen<AcDbPolyline> source(idSource);
    AcDbPolyline free;
    EXPECT_EQ(free.setPropertiesFrom(source.Get()), Acad::eOk);
    EXPECT_EQ(free.colorIndex(), 3);
    EXPECT_EQ(free.LinetypeName(), "Continuous");
    EXPECT_EQ(free.layerId(), database.clayer());
    EXPECT_EQ(free.setPropertiesFrom(nullptr), Acad::eNullObjectPointer);
    const CDbOpen<AcDbPolyline> foreign(idForeign, AcDb::kForWrite);
    EXPECT_EQ(foreign->setPropertiesFrom(source.Get()), Acad::eWrongDatabase);
    EXPECT_EQ(foreign->setPropertiesFrom(&free), Acad::eWrongDatabase);
    EXPECT_EQ(foreign->layerId(), other.clayer());
    EXPECT_EQ(foreign->colorIndex(), 256);
}

TEST(AcDbEntity, OfACustomClassExtendsAsFarAsThePictureItDrewLast) {
    CSampleEntity entity;
    AcDbExtents extents;
    EXPECT_EQ(entity.getGeomExtents(extents), Acad::eInvalidExtents);
    DrawEntity(entity);
    ASSERT_EQ(entity.getGeomExtents(extents), Acad::eOk);
    EXPECT_EQ(extents.maxPoint().x, 10.0);
    entity.m_dLength = 30.0;
    entity.getGeomExtents(extents);
    EXPECT_EQ(extents.maxPoint().x, 10.0); // not drawn since
    DrawEntity(entity);
    entity.getGeomExtents(extents);
    EXPECT_EQ(extents.maxPoint().x, 30.0);
}

TEST(AcDbEntity, OfACustomClassLeavesWhatItDoesNotKnow) {
    CSampleEntity entity;
    AcDbVoidPtrArray parts;
    AcGePoint3dArray grips;
    AcDbIntArray osnapModes, geomIds;
    EXPECT_EQ(entity.transformBy(AcGeMatrix3d()), Acad::eNotApplicable);
    EXPECT_EQ(entity.explode(parts), Acad::eNotApplicable);
    EXPECT_EQ(entity.getGripPoints(grips, osnapModes, geomIds), Acad::eNotApplicable);
    EXPECT_EQ(entity.moveGripPointsAt(geomIds, AcGeVector3d::kXAxis), Acad::eNotApplicable);
}

TEST(AcDbEntity, DrawsItselfForTheFileThatKeepsItsPicture) {
    CSampleEntity entity;
    CDisplayRecorder recorder(entity);
    entity.saveAs(&recorder, AcDb::kR14Save);
    EXPECT_EQ(recorder.Take().size(), 1U);
    EXPECT_EQ(entity.Picture(), nullptr) << "what the host shows stays";
}

TEST(AcDbEntity, IsStretchedByItsGripsUnlessItHasOtherPoints) {
    AcDbPolyline polyline;
    polyline.addVertexAt(0, {1, 2});
    AcGePoint3dArray points;
    AcDbIntArray indices;
    ASSERT_EQ(polyline.getStretchPoints(points), Acad::eOk);
    ASSERT_EQ(points.length(), 1);
    EXPECT_EQ(points[0], AcGePoint3d(1, 2, 0));
    indices.append(0);
    EXPECT_EQ(polyline.moveStretchPointsAt(indices, {1, 0, 0}), Acad::eOk);
    EXPECT_EQ(polyline.Vertices()[0].m_pt.x, 2.0);
    EXPECT_EQ(CSampleEntity().getStretchPoints(points), Acad::eNotApplicable);
}

TEST(AcDbEntity, IsHighlightedUntilTakenBackWithoutAChangeOfTheDrawing) {
    AcDbDatabase database;
    const AcDbObjectId id = Append(database, new AcDbPolyline);
    database.TakeChangedEntities();
    {
        const CDbOpen<AcDbPolyline> polyline(id);
        EXPECT_FALSE(polyline->IsHighlighted());
        EXPECT_EQ(polyline->highlight(), Acad::eOk);
        EXPECT_TRUE(polyline->IsHighlighted());
        EXPECT_EQ(polyline->unhighlight(), Acad::eOk);
        EXPECT_FALSE(polyline->IsHighlighted());
    }
    EXPECT_TRUE(database.TakeChangedEntities().empty());
}

TEST(AcDbEntity, IsAParentThatModulesDeriveTheirClassesFrom) {
    AcRxClass* const pClass = newAcRxClass(L"CEntityOfModule", L"AcDbEntity", 31, 55, 255);
    ASSERT_NE(pClass, nullptr);
    EXPECT_EQ(pClass->myParent(), AcDbEntity::desc());
    EXPECT_TRUE(pClass->isDerivedFrom(AcDbObject::desc()));
    deleteAcRxClass(pClass);
    auto* const pClasses = static_cast<AcRxDictionary*>(acrxSysRegistry()->at(ACDB_CLASS_DICTIONARY));
    for (const wchar_t* name : {L"AcDbText", L"AcDbPolyline", L"AcDbSpline", L"AcDbBlockTableRecord"}) {
        auto* const pPlatform = static_cast<AcRxClass*>(pClasses->at(name));
        ASSERT_NE(pPlatform, nullptr);
        AcRxObject* const pObject = pPlatform->create();
        ASSERT_NE(pObject, nullptr);
        EXPECT_EQ(pObject->isA(), pPlatform);
        EXPECT_STRNE(pPlatform->dxfName(), L"");
        delete pObject;
    }
    EXPECT_EQ(AcDbEntity::desc()->create(), nullptr);
    EXPECT_STREQ(AcDbPolyline::desc()->dxfName(), L"LWPOLYLINE");
    EXPECT_EQ(AcDbEntity::cast(nullptr), nullptr);
}
