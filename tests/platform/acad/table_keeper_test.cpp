#include "platform/acad/table_keeper.h"

#include <gtest/gtest.h>

namespace {

AcDbObjectId AddStyle(AcDbDatabase& drawing, const ACHAR* szName) {
    const CDbOpen<AcDbTextStyleTable> table(drawing.textStyleTableId(), AcDb::kForWrite);
    auto* const pRecord = new AcDbTextStyleTableRecord;
    pRecord->setName(szName);
    AcDbObjectId id;
    table->add(id, pRecord);
    pRecord->close();
    return id;
}

bool HasStyle(AcDbDatabase& drawing, const ACHAR* szName) {
    return CDbOpen<AcDbTextStyleTable>(drawing.textStyleTableId())->has(szName);
}

} // namespace

TEST(TableKeeper, PutsVariablesBack) {
    AcDbDatabase drawing;
    drawing.setLtscale(3.0);
    drawing.setInsbase({1, 2, 0});
    const AcDbObjectId idStyle = drawing.textstyle();
    {
        const CTableKeeper keeper(drawing);
        drawing.setLtscale(4.0);
        drawing.setInsbase({7, 7, 0});
        drawing.setTextstyle(AddStyle(drawing, L"New"));
    }
    EXPECT_EQ(drawing.ltscale(), 3.0);
    EXPECT_EQ(drawing.insbase(), AcGePoint3d(1, 2, 0));
    EXPECT_EQ(drawing.textstyle(), idStyle);
    EXPECT_TRUE(drawing.celtype().isNull());
    EXPECT_FALSE(HasStyle(drawing, L"New"));
}

TEST(TableKeeper, PutsTextStylesBackInEitherKindOfFont) {
    AcDbDatabase drawing;
    const AcDbObjectId idShape = drawing.textstyle();
    const AcDbObjectId idNamed = AddStyle(drawing, L"Named");
    CDbOpen<AcDbTextStyleTableRecord>(idNamed, AcDb::kForWrite)->setFont(L"仿宋_GB2312", 1, 0, 134, 49);
    CDbOpen<AcDbTextStyleTableRecord>(idShape, AcDb::kForWrite)->setBigFontFileName(L"hztxt.shx");
    {
        const CTableKeeper keeper(drawing);
        const CDbOpen<AcDbTextStyleTableRecord> shape(idShape, AcDb::kForWrite);
        shape->setFont(L"Arial", 0, 0, 0, 0);
        shape->setXScale(0.7);
        const CDbOpen<AcDbTextStyleTableRecord> named(idNamed, AcDb::kForWrite);
        named->setFileName(L"txt.shx");
        named->setTextSize(9.0);
    }
    const CDbOpen<AcDbTextStyleTableRecord> shape(idShape), named(idNamed);
    EXPECT_EQ(shape->FileName(), L"txt.shx");
    EXPECT_EQ(shape->BigFontFileName(), L"hztxt.shx");
    EXPECT_EQ(shape->xScale(), 1.0);
    std::wstring typeface;
    Adesk::Boolean bold = 0, italic = 0;
    int charset = 0, pitch = 0;
    named->font(typeface, bold, italic, charset, pitch);
    EXPECT_EQ(typeface, L"仿宋_GB2312");
    EXPECT_EQ(charset, 134);
    EXPECT_EQ(pitch, 49);
    EXPECT_EQ(named->textSize(), 0.0);
    EXPECT_EQ(named->FileName(), L"");
}

TEST(TableKeeper, PutsLayersAndLineTypesBack) {
    AcDbDatabase drawing;
    AcDbObjectId idContinuous;
    CDbOpen<AcDbLinetypeTable>(drawing.linetypeTableId())->getAt(L"Continuous", idContinuous);
    {
        const CTableKeeper keeper(drawing);
        CDbOpen<AcDbLayerTableRecord>(drawing.clayer(), AcDb::kForWrite)->SetColorIndex(3);
        CDbOpen<AcDbLinetypeTableRecord>(idContinuous, AcDb::kForWrite)->SetPattern(L"x", {1.0, -1.0});
    }
    EXPECT_EQ(CDbOpen<AcDbLayerTableRecord>(drawing.clayer())->ColorIndex(), 7);
    EXPECT_TRUE(CDbOpen<AcDbLinetypeTableRecord>(idContinuous)->Dashes().empty());
}

TEST(TableKeeper, LeavesTheDrawingUnchanged) {
    AcDbDatabase drawing;
    drawing.SetModified(false);
    {
        const CTableKeeper keeper(drawing);
        drawing.setLtscale(4.0);
    }
    EXPECT_FALSE(drawing.IsModified());
}
