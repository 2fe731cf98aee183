#include "platform/acad/db_tables.h"

#include "platform/acad/db_polyline.h"
#include "tests/platform/acad/sample_entity.h"

#include <gtest/gtest.h>

#include <limits>

TEST(AcDbBlockTableRecord, OwnsAnAppendedEntityWhichStaysOpenForWriting) {
    AcDbDatabase database;
    CDbOpen<AcDbBlockTableRecord> space(database.ModelSpaceId(), AcDb::kForWrite);
    auto* const pPolyline = new AcDbPolyline;
    EXPECT_EQ(pPolyline->LayerName(), "0");
    AcDbObjectId id;
    ASSERT_EQ(space->appendAcDbEntity(id, pPolyline), Acad::eOk);
    EXPECT_TRUE(pPolyline->isWriteEnabled());
    EXPECT_EQ(pPolyline->ownerId(), database.ModelSpaceId());
    EXPECT_EQ(pPolyline->database(), &database);
    EXPECT_EQ(pPolyline->layerId(), database.clayer());
    EXPECT_EQ(space->appendAcDbEntity(pPolyline), Acad::eAlreadyInDb);
    EXPECT_EQ(space->appendAcDbEntity(nullptr), Acad::eNullObjectPointer);
    EXPECT_EQ(pPolyline->close(), Acad::eOk);
    AcDbBlockTableRecord free;
    AcDbPolyline polyline;
    EXPECT_EQ(free.appendAcDbEntity(&polyline), Acad::eNoDatabase);
}

TEST(AcDbBlockTableRecord, ListsItsEntitiesInOrderErasedOnesOnDemand) {
    AcDbDatabase database;
    const AcDbObjectId first = Append(database, new AcDbPolyline),
                       second = Append(database, new AcDbPolyline);
    CDbOpen<AcDbPolyline>(first, AcDb::kForWrite)->erase();
    const CDbOpen<AcDbBlockTableRecord> space(database.ModelSpaceId());
    EXPECT_EQ(space->EntityIds(), std::vector{second});
    EXPECT_EQ(space->EntityIds(true), (std::vector{first, second}));
}

TEST(AcDbBlockTableRecord, GivesAnEntityTheCurrentLayerUnlessItHasOne) {
    AcDbDatabase database;
    const AcDbObjectId idLayer =
        AddRecord<AcDbLayerTable>(database.layerTableId(), L"图层", new AcDbLayerTableRecord);
    auto* const pOnZero = new AcDbPolyline;
    EXPECT_EQ(pOnZero->setLayer(database.clayer()), Acad::eOk);
    database.setClayer(idLayer);
    Append(database, pOnZero);
    EXPECT_EQ(pOnZero->LayerName(), "0");
    auto* const pOnCurrent = new AcDbPolyline;
    Append(database, pOnCurrent);
    EXPECT_EQ(pOnCurrent->LayerName(), "图层");
}

TEST(AcDbLayerTableRecord, TakesAColourAndALineTypeOfItsDrawing) {
    AcDbDatabase database, other;
    CDbOpen<AcDbLayerTableRecord> layer(database.clayer(), AcDb::kForWrite);
    EXPECT_EQ(layer->ColorIndex(), 7);
    EXPECT_EQ(layer->SetColorIndex(3), Acad::eOk);
    EXPECT_EQ(layer->SetColorIndex(0), Acad::eInvalidInput);
    EXPECT_EQ(layer->SetColorIndex(256), Acad::eInvalidInput);
    EXPECT_EQ(layer->ColorIndex(), 3);
    const CDbOpen<AcDbLinetypeTable> own(database.linetypeTableId()), foreign(other.linetypeTableId());
    EXPECT_EQ(layer->setLinetypeObjectId(own->RecordIds()[2]), Acad::eOk);
    EXPECT_EQ(layer->setLinetypeObjectId(foreign->RecordIds()[2]), Acad::eWrongDatabase);
    EXPECT_EQ(layer->setLinetypeObjectId(database.textstyle()), Acad::eNotThatKindOfClass);
    EXPECT_EQ(SymbolName(layer->linetypeObjectId()), "Continuous");
}

TEST(AcDbLinetypeTableRecord, KeepsAFinitePattern) {
    AcDbLinetypeTableRecord record;
    EXPECT_EQ(record.SetPattern(L"- -", {1.0, -0.5, 0.0}), Acad::eOk);
    EXPECT_EQ(record.SetPattern(L"", {std::numeric_limits<double>::infinity()}), Acad::eInvalidInput);
    EXPECT_EQ(record.Dashes(), (std::vector<double>{1.0, -0.5, 0.0}));
    EXPECT_EQ(record.Comments(), L"- -");
}

TEST(AcDbTextStyleTableRecord, HasAFontByNameOrShapeFontFiles) {
    AcDbTextStyleTableRecord style;
    EXPECT_EQ(style.setFileName(L"ComFont.shx"), Acad::eOk);
    EXPECT_EQ(style.setBigFontFileName(L"Hztxt12a.shx"), Acad::eOk);
    EXPECT_EQ(style.Font().m_strFont, "ComFont.shx");
    EXPECT_EQ(style.Font().m_strBigFont, "Hztxt12a.shx");
    EXPECT_EQ(style.setFont(L"仿宋_GB2312", 0, 1, 134, 4), Acad::eOk);
    EXPECT_EQ(style.FileName(), L"");
    EXPECT_EQ(style.BigFontFileName(), L"");
    EXPECT_EQ(style.Font().m_strFont, "仿宋_GB2312");
    EXPECT_EQ(style.Font().m_strBigFont, "");
    std::wstring typeface;
    Adesk::Boolean bold = 1, italic = 0;
    int charset = 0, pitchAndFamily = 0;
    EXPECT_EQ(style.font(typeface, bold, italic, charset, pitchAndFamily), Acad::eOk);
    EXPECT_EQ(typeface, L"仿宋_GB2312");
    EXPECT_EQ(bold, 0);
    EXPECT_EQ(italic, 1);
    EXPECT_EQ(charset, 134);
    EXPECT_EQ(pitchAndFamily, 4);
    EXPECT_EQ(style.setFileName(L"txt.shx"), Acad::eOk);
    style.font(typeface, bold, italic, charset, pitchAndFamily);
    EXPECT_EQ(typeface, L"");
    EXPECT_EQ(charset, 0);
}

TEST(AcDbTextStyleTableRecord, RefusesSizesThatAreNone) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    AcDbTextStyleTableRecord style;
    EXPECT_EQ(style.setTextSize(2.5), Acad::eOk);
    EXPECT_EQ(style.setTextSize(-1.0), Acad::eInvalidInput);
    EXPECT_EQ(style.setTextSize(nan), Acad::eInvalidInput);
    EXPECT_EQ(style.setXScale(0.7), Acad::eOk);
    EXPECT_EQ(style.setXScale(0.0), Acad::eInvalidInput);
    EXPECT_EQ(style.setXScale(nan), Acad::eInvalidInput);
    EXPECT_EQ(style.setObliquingAngle(0.2), Acad::eOk);
    EXPECT_EQ(style.setObliquingAngle(nan), Acad::eInvalidInput);
    EXPECT_EQ(style.textSize(), 2.5);
    EXPECT_EQ(style.xScale(), 0.7);
    EXPECT_EQ(style.obliquingAngle(), 0.2);
}
