#include "host/files/dwg_table_writer.h"

#include "host/files/dwg_dictionaries.h"
#include "host/files/dwg_viewport.h"
#include "tests/host/files/dwg_refusal.h"
#include "tests/host/files/dwg_sample_drawing.h"
#include "tests/host/files/dwg_written.h"

namespace {

template <class Record, class File>
std::map<std::string, Record> Named(const std::vector<CDwgRecord>& records, File file) {
    std::map<std::string, Record> named;
    for (const CDwgRecord& record : records) {
        Record value = Filed<Record>(record, file);
        named.emplace(value.m_strName, std::move(value));
    }
    return named;
}

} // namespace

TEST(WriteDwgTables, GivesLayersTheirColorAndLinetype) {
    AcDbDatabase database;
    auto* const pLayer = new AcDbLayerTableRecord;
    pLayer->SetColorIndex(3);
    AddRecord(database.layerTableId(), L"\u571F\u5C42", pLayer);
    const CDwgWritten written(database);
    const auto layers = Named<CDwgLayerRecord>(written.OfType(g_nDwgLayer), DWG_FILED(FileLayer));
    ASSERT_EQ(layers.size(), 2u);
    EXPECT_EQ(layers.at("土层").m_nColor, 3);
    EXPECT_EQ(layers.at("0").m_nColor, 7);
    EXPECT_EQ(layers.at("0").m_hLinetype, HardPointer(CStandardHandles::s_nContinuous));
    EXPECT_EQ(layers.at("0").m_hOwner, SoftPointer(CStandardHandles::s_nLayers));
    const auto control =
        Filed<CDwgControl>(written.Record(CStandardHandles::s_nLayers),
                           [](auto& io, auto& value) { FileControl(io, value, g_nDwgLayerControl); });
    EXPECT_EQ(control.m_arRecords.size(), 2u);
    EXPECT_EQ(control.m_arRecords[0], SoftOwner(CStandardHandles::s_nLayer0));
}

TEST(WriteDwgTables, LeavesErasedRecordsOut) {
    AcDbDatabase database;
    const AcDbObjectId id = AddRecord(database.layerTableId(), L"gone", new AcDbLayerTableRecord);
    CDbOpen<AcDbLayerTableRecord>(id, AcDb::kForWrite)->erase();
    EXPECT_EQ(CDwgWritten(database).OfType(g_nDwgLayer).size(), 1u);
}

TEST(WriteDwgTables, GivesLinetypesTheirDashesAndLength) {
    AcDbDatabase database;
    auto* const pLinetype = new AcDbLinetypeTableRecord;
    pLinetype->SetPattern(L"Dashed", {1.0, -0.5, 0.0, -0.5});
    AddRecord(database.linetypeTableId(), L"DASHDOT", pLinetype);
    const CDwgWritten written(database);
    const auto linetypes = Named<CDwgLinetypeRecord>(written.OfType(g_nDwgLinetype), DWG_FILED(FileLinetype));
    ASSERT_EQ(linetypes.size(), 4u);
    const CDwgLinetypeRecord& dashed = linetypes.at("DASHDOT");
    EXPECT_EQ(dashed.m_strDescription, "Dashed");
    EXPECT_EQ(dashed.m_dLength, 2.0);
    ASSERT_EQ(dashed.m_arDashes.size(), 4u);
    EXPECT_EQ(dashed.m_arDashes[1].m_dLength, -0.5);
    const auto control =
        Filed<CDwgControl>(written.Record(CStandardHandles::s_nLinetypes),
                           [](auto& io, auto& value) { FileControl(io, value, g_nDwgLinetypeControl); });
    EXPECT_EQ(control.m_arRecords.size(), 2u);
    EXPECT_EQ(control.m_arFixed, (std::vector{HardOwner(0x14), HardOwner(0x15)}));
}

TEST(WriteDwgTables, RefusesALinetypeOfMoreDashesThanAFileHolds) {
    AcDbDatabase database;
    auto* const pLinetype = new AcDbLinetypeTableRecord;
    pLinetype->SetPattern(L"", std::vector<double>(256, 1.0));
    AddRecord(database.linetypeTableId(), L"long", pLinetype);
    EXPECT_NE(RefusalOf([&] { DwgFileOf(database); }).find("too many dashes"), std::string::npos);
}

TEST(WriteDwgTables, GivesStylesTheirFontsAndNamedOnesAsExtendedData) {
    AcDbDatabase database;
    auto* const pStyle = new AcDbTextStyleTableRecord;
    pStyle->setFont(L"\u4EFF\u5B8B", Adesk::kTrue, Adesk::kFalse, 134, 2);
    pStyle->setXScale(0.7);
    AddRecord(database.textStyleTableId(), L"named", pStyle);
    const std::vector<CDwgRecord> records = CDwgWritten(database).OfType(g_nDwgStyle);
    const auto styles = Named<CDwgStyleRecord>(records, DWG_FILED(FileStyle));
    EXPECT_EQ(styles.at("Standard").m_strFont, "txt.shx");
    EXPECT_EQ(styles.at("named").m_dWidthFactor, 0.7);
    ASSERT_EQ(records.size(), 2u);
    EXPECT_TRUE(records[0].m_arExtended.empty());
    ASSERT_EQ(records[1].m_arExtended.size(), 1u);
    EXPECT_EQ(records[1].m_arExtended[0].m_hApp, HardPointer(CStandardHandles::s_nAcadApp));
    const CDrawingText text(g_nChinesePage);
    const auto items =
        UnpackExtendedData(records[1].m_arExtended[0].m_arBytes, {text, g_nDwgAnsi936, {}, {}});
    ASSERT_EQ(items.size(), 2u);
    EXPECT_EQ(std::get<std::wstring>(items[0].m_value), L"\u4EFF\u5B8B");
    EXPECT_EQ(std::get<Adesk::Int32>(items[1].m_value), 0x02008602);
}

TEST(WriteDwgTables, ShowsTheDrawingsView) {
    AcDbDatabase database;
    database.SetView({{10.0, 20.0}, 594.0});
    const auto view = Filed<CDwgViewportRecord>(CDwgWritten(database).Record(CStandardHandles::s_nViewport),
                                                DWG_FILED(FileViewport));
    EXPECT_EQ(view.m_ptCenter.x, 10.0);
    EXPECT_EQ(view.m_dHeight, 594.0);
    EXPECT_EQ(view.m_dWidth, 840.0);
}

TEST(WriteDwgTables, NamesTheDictionariesThatEveryFileHas) {
    const AcDbDatabase database;
    const auto named = Filed<CDwgDictionary>(CDwgWritten(database).Record(CStandardHandles::s_nNamedObjects),
                                             DWG_FILED(FileDictionary));
    EXPECT_EQ(named.m_arNames, (std::vector<std::string>{"ACAD_GROUP", "ACAD_LAYOUT", "ACAD_MLINESTYLE",
                                                         "ACAD_PLOTSETTINGS", "ACAD_PLOTSTYLENAME"}));
    EXPECT_EQ(named.m_hOwner, SoftPointer(0));
}
