#include "host/files/dwg_common.h"

#include "tests/host/files/dwg_round_trip.h"
#include "tests/host/files/hex_bytes.h"

TEST(DwgEntityCommon, IsThatOfAKnownBlockEnd) {
    CDwgEntityCommon common;
    common.m_nPlace = g_nDwgInModelSpace;
    common.m_hLayer = HardPointer(0x10);
    CDwgRecordWriter writer;
    FileEntityCommon(writer, common);
    EXPECT_EQ(WriteDwgRecord(writer.TakeRecord(5, 0x21)),
              HexBytes("41 55 00 00 00 00 48 65 34 21 D3 04 04 05 11 00"));
}

TEST(DwgEntityCommon, KeepsEveryValue) {
    CDwgEntityCommon common;
    common.m_bGraphics = true;
    common.m_arGraphics = {8, 0, 0, 0, 0, 0, 0, 0};
    common.m_nColor = 3;
    common.m_dLinetypeScale = 2.5;
    common.m_nLinetype = common.m_nPlotStyle = g_nDwgByHandle;
    common.m_nInvisible = 1;
    common.m_nLineweight = 5;
    common.m_hOwner = SoftPointer(0x1F);
    common.m_arReactors = {SoftPointer(0x70), SoftPointer(0x71)};
    common.m_hExtensions = HardOwner(0x72);
    common.m_hPrevious = SoftPointer(0x5F);
    common.m_hNext = SoftPointer(0x61);
    common.m_hLayer = HardPointer(0x10);
    common.m_hLinetype = HardPointer(0x14);
    common.m_hPlotStyle = HardPointer(0xF);
    const CDwgEntityCommon back = ThroughRecord(common, DWG_FILED(FileEntityCommon));
    EXPECT_EQ(back.m_arGraphics, common.m_arGraphics);
    EXPECT_EQ(back.m_nColor, 3);
    EXPECT_EQ(back.m_dLinetypeScale, 2.5);
    EXPECT_EQ(back.m_nInvisible, 1);
    EXPECT_EQ(back.m_nLineweight, 5);
    EXPECT_EQ(back.m_hOwner, common.m_hOwner);
    EXPECT_EQ(back.m_arReactors, common.m_arReactors);
    EXPECT_EQ(back.m_hExtensions, common.m_hExtensions);
    EXPECT_EQ(back.m_hPrevious, common.m_hPrevious);
    EXPECT_EQ(back.m_hNext, common.m_hNext);
    EXPECT_EQ(back.m_hLayer, common.m_hLayer);
    EXPECT_EQ(back.m_hLinetype, common.m_hLinetype);
    EXPECT_EQ(back.m_hPlotStyle, common.m_hPlotStyle);
}

TEST(DwgEntityCommon, HasNoOwnerWhereThePlaceTellsItAndNoNeighboursWhereTheyFollowIt) {
    CDwgEntityCommon common;
    common.m_nPlace = g_nDwgInPaperSpace;
    common.m_bNeighbours = true;
    CDwgRecordWriter writer;
    FileEntityCommon(writer, common);
    EXPECT_EQ(writer.TakeRecord(5, 1).m_arHandles, (std::vector{HardOwner(0), HardPointer(0)}));
    EXPECT_TRUE(ThroughRecord(common, DWG_FILED(FileEntityCommon)).m_bNeighbours);
}

TEST(DwgObjectCommon, NamesOwnerReactorsAndExtensions) {
    const CDwgObjectCommon common{SoftPointer(0xC), {SoftPointer(0xC)}, HardOwner(0x70)};
    const CDwgObjectCommon back = ThroughRecord(common, DWG_FILED(FileObjectCommon));
    EXPECT_EQ(back.m_hOwner, common.m_hOwner);
    EXPECT_EQ(back.m_arReactors, common.m_arReactors);
    EXPECT_EQ(back.m_hExtensions, common.m_hExtensions);
}
