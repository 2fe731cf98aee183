#include "host/files/dwg_table_reader.h"

#include "host/files/dwg_drawing_reader.h"
#include "host/files/dwg_drawing_writer.h"
#include "host/files/dwg_handle_map.h"
#include "platform/acad/db_stub.h"
#include "platform/acad/standard_handles.h"
#include "tests/host/files/dwg_refusal.h"
#include "tests/host/files/dwg_sample_drawing.h"

#include <gtest/gtest.h>

namespace {

std::unique_ptr<AcDbDatabase> ReadBack(const AcDbDatabase& database) {
    return DrawingOfDwg(DwgFileOf(database));
}

template <class Record>
const Record& RecordOf(AcDbObjectId idTable, const ACHAR* name) {
    return *PeekObject<Record>(RecordNamed(idTable, name));
}

} // namespace

TEST(ReadDwgTables, BringsEveryRecordInTheOrderOfTheFile) {
    AcDbDatabase database;
    for (const ACHAR* name : {L"B", L"A", L"\u571F"})
        AddRecord(database.layerTableId(), name, new AcDbLayerTableRecord);
    const auto pBack = ReadBack(database);
    std::vector<std::string> names;
    for (const AcDbObjectId& id : PeekObject<AcDbLayerTable>(pBack->layerTableId())->RecordIds())
        names.push_back(SymbolName(id));
    EXPECT_EQ(names, (std::vector<std::string>{"0", "B", "A", "土"}));
}

TEST(ReadDwgTables, ChangesTheRecordsThatEveryDrawingHas) {
    AcDbDatabase database;
    CDbOpen<AcDbLayerTableRecord>(database.clayer(), AcDb::kForWrite)->SetColorIndex(3);
    const auto pBack = ReadBack(database);
    EXPECT_EQ(RecordOf<AcDbLayerTableRecord>(pBack->layerTableId(), L"0").ColorIndex(), 3);
    EXPECT_TRUE(RecordOf<AcDbLayerTableRecord>(pBack->layerTableId(), L"0").linetypeObjectId().isNull());
}

TEST(ReadDwgTables, KeepsLinetypesAndTheLayersThatHaveThem) {
    AcDbDatabase database;
    auto* const pLinetype = new AcDbLinetypeTableRecord;
    pLinetype->SetPattern(L"Dashed", {1.0, -0.5});
    const AcDbObjectId idLinetype = AddRecord(database.linetypeTableId(), L"DASHED", pLinetype);
    CDbOpen<AcDbLayerTableRecord>(database.clayer(), AcDb::kForWrite)->setLinetypeObjectId(idLinetype);
    const auto pBack = ReadBack(database);
    const auto& linetype = RecordOf<AcDbLinetypeTableRecord>(pBack->linetypeTableId(), L"DASHED");
    EXPECT_EQ(linetype.Comments(), L"Dashed");
    EXPECT_EQ(linetype.Dashes(), (std::vector{1.0, -0.5}));
    EXPECT_EQ(SymbolName(RecordOf<AcDbLayerTableRecord>(pBack->layerTableId(), L"0").linetypeObjectId()),
              "DASHED");
}

TEST(ReadDwgTables, KeepsBothKindsOfFonts) {
    AcDbDatabase database;
    auto* const pNamed = new AcDbTextStyleTableRecord;
    pNamed->setFont(L"\u4EFF\u5B8B", Adesk::kTrue, Adesk::kFalse, 134, 2);
    AddRecord(database.textStyleTableId(), L"named", pNamed);
    auto* const pShapes = new AcDbTextStyleTableRecord;
    pShapes->setFileName(L"txt.shx");
    pShapes->setBigFontFileName(L"big.shx");
    pShapes->setXScale(0.7);
    AddRecord(database.textStyleTableId(), L"shapes", pShapes);
    const auto pBack = ReadBack(database);
    const CDbOpen<AcDbTextStyleTableRecord> named(RecordNamed(pBack->textStyleTableId(), L"named"));
    std::wstring strTypeface;
    Adesk::Boolean bBold = 0, bItalic = 1;
    int nCharset = 0, nPitchAndFamily = 0;
    named->font(strTypeface, bBold, bItalic, nCharset, nPitchAndFamily);
    EXPECT_EQ(strTypeface, L"\u4EFF\u5B8B");
    EXPECT_TRUE(bBold && !bItalic);
    EXPECT_EQ(nCharset, 134);
    EXPECT_EQ(nPitchAndFamily, 2);
    EXPECT_TRUE(named->XData().Apps().empty());
    const auto& shapes = RecordOf<AcDbTextStyleTableRecord>(pBack->textStyleTableId(), L"shapes");
    EXPECT_EQ(shapes.FileName(), L"txt.shx");
    EXPECT_EQ(shapes.BigFontFileName(), L"big.shx");
    EXPECT_EQ(shapes.xScale(), 0.7);
}

TEST(ReadDwgTables, RefusesATableThatHoldsWhatIsNoneOfIts) {
    CDwgFile file = DwgFileOf(AcDbDatabase());
    file.m_variables.m_roots.m_hLayers.m_nValue = CStandardHandles::s_nStyles;
    EXPECT_EQ(RefusalOf([&] { DrawingOfDwg(file); }),
              "Object 3: a table refers to it, but it is none of that table's.");
    file.m_variables.m_roots.m_hLayers.m_nValue = 0;
    EXPECT_EQ(RefusalOf([&] { DrawingOfDwg(file); }),
              "Object 0: a table refers to it, but it is none of that table's.");
}
