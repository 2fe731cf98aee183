#include "host/files/dwg_table_records.h"

#include "tests/host/files/dwg_round_trip.h"
#include "tests/host/files/hex_bytes.h"

TEST(DwgApp, IsWrittenAsAKnownOneIs) {
    CDwgAppRecord app;
    app.m_strName = "ACAD";
    app.m_hOwner = SoftPointer(9);
    CDwgRecordWriter writer;
    FileApp(writer, app);
    EXPECT_EQ(WriteDwgRecord(writer.TakeRecord(g_nDwgApp, 0x12)),
              HexBytes("50 DD 00 00 00 00 44 A9 04 41 43 41 44 C0 04 10 93 05 00"));
    EXPECT_EQ(ThroughRecord(app, DWG_FILED(FileApp)).m_strName, "ACAD");
}

TEST(DwgControl, ListsItsRecordsAndThoseThatEveryDrawingHas) {
    CDwgControl control;
    control.m_arRecords = {{CDwgHandle::s_nSoftOwner, 0x16}, {CDwgHandle::s_nSoftOwner, 0}};
    for (const std::uint16_t nType : {g_nDwgLayerControl, g_nDwgDimstyleControl, g_nDwgLinetypeControl}) {
        if (nType == g_nDwgLinetypeControl) control.m_arFixed = {HardOwner(0x14), HardOwner(0x15)};
        const auto file = [nType](auto& io, auto& value) { FileControl(io, value, nType); };
        const CDwgControl back = ThroughRecord(control, file);
        EXPECT_EQ(back.m_arRecords, control.m_arRecords);
        EXPECT_EQ(back.m_arFixed, control.m_arFixed);
    }
}

TEST(DwgLayer, KeepsFlagsColorAndLinetype) {
    CDwgLayerRecord layer;
    layer.m_strName = "图层";
    layer.m_nFlags |= CDwgLayerRecord::s_nLocked;
    layer.m_nColor = 3;
    layer.m_hPlotStyle = HardPointer(0xF);
    layer.m_hLinetype = HardPointer(0x16);
    const CDwgLayerRecord back = ThroughRecord(layer, DWG_FILED(FileLayer));
    EXPECT_EQ(back.m_strName, "图层");
    EXPECT_EQ(back.m_nFlags, 0x3F8);
    EXPECT_EQ(back.m_nColor, 3);
    EXPECT_EQ(back.m_hPlotStyle, HardPointer(0xF));
    EXPECT_EQ(back.m_hLinetype, HardPointer(0x16));
    EXPECT_TRUE(back.m_bReferenced);
}

TEST(DwgStyle, KeepsFontsAndSizes) {
    CDwgStyleRecord style;
    style.m_strName = "Standard";
    style.m_dHeight = 2.5;
    style.m_dWidthFactor = 0.7;
    style.m_dOblique = 0.1;
    style.m_strFont = "txt.shx";
    style.m_strBigFont = "big.shx";
    const CDwgStyleRecord back = ThroughRecord(style, DWG_FILED(FileStyle));
    EXPECT_EQ(back.m_dHeight, 2.5);
    EXPECT_EQ(back.m_dWidthFactor, 0.7);
    EXPECT_EQ(back.m_dOblique, 0.1);
    EXPECT_EQ(back.m_strFont, "txt.shx");
    EXPECT_EQ(back.m_strBigFont, "big.shx");
}

TEST(DwgLinetype, KeepsDashesWithTheirShapesAndTexts) {
    CDwgLinetypeRecord linetype;
    linetype.m_strDescription = "Gas line";
    linetype.m_dLength = 1.5;
    linetype.m_arDashes = {{1.0, 0, 0.0, 0.0, 1.0, 0.0, 0}, {-0.5, 0, -0.1, -0.05, 0.1, 0.5, 2}};
    linetype.m_arTexts[0] = 'G';
    linetype.m_arStyles = {HardPointer(0), HardPointer(0x11)};
    const CDwgLinetypeRecord back = ThroughRecord(linetype, DWG_FILED(FileLinetype));
    EXPECT_EQ(back.m_strDescription, "Gas line");
    ASSERT_EQ(back.m_arDashes.size(), 2u);
    EXPECT_EQ(back.m_arDashes[1].m_dLength, -0.5);
    EXPECT_EQ(back.m_arDashes[1].m_dY, -0.05);
    EXPECT_EQ(back.m_arDashes[1].m_nFlags, 2);
    EXPECT_EQ(back.m_arTexts, linetype.m_arTexts);
    EXPECT_EQ(back.m_arStyles, linetype.m_arStyles);
}

TEST(DwgDimstyle, KeepsItsVariables) {
    CDwgDimstyleRecord dimstyle;
    dimstyle.m_strName = "Standard";
    dimstyle.m_dimension.m_dDimtxt = 2.5;
    dimstyle.m_dimension.m_nDimlwe = 25;
    dimstyle.m_arParts[0] = HardPointer(0x11);
    const CDwgDimstyleRecord back = ThroughRecord(dimstyle, DWG_FILED(FileDimstyle));
    EXPECT_EQ(back.m_dimension.m_dDimtxt, 2.5);
    EXPECT_EQ(back.m_dimension.m_nDimlwd, -2);
    EXPECT_EQ(back.m_dimension.m_nDimlwe, 25);
    EXPECT_EQ(back.m_arParts, dimstyle.m_arParts);
}
