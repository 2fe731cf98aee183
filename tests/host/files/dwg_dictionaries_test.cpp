#include "host/files/dwg_dictionaries.h"

#include "tests/host/files/dwg_round_trip.h"
#include "tests/host/files/hex_bytes.h"

TEST(DwgDictionary, IsWrittenAsAKnownEmptyOneIs) {
    CDwgDictionary dictionary;
    dictionary.m_hOwner = SoftPointer(0xC);
    dictionary.m_arReactors = {SoftPointer(0xC)};
    CDwgRecordWriter writer;
    FileDictionary(writer, dictionary);
    EXPECT_EQ(WriteDwgRecord(writer.TakeRecord(g_nDwgDictionary, 0xD)),
              HexBytes("4A 96 80 00 00 00 43 64 06 40 40 10 43 10 43 0C 00"));
}

TEST(DwgDictionary, KeepsNamesAndObjects) {
    CDwgDefaultDictionary dictionary;
    dictionary.m_nHard = 1;
    dictionary.m_arNames = {"Normal", "样式"};
    dictionary.m_arItems = {SoftOwner(0xF), SoftOwner(0x40)};
    dictionary.m_hDefault = HardPointer(0xF);
    const CDwgDefaultDictionary back = ThroughRecord(dictionary, DWG_FILED(FileDefaultDictionary));
    EXPECT_EQ(back.m_nHard, 1);
    EXPECT_EQ(back.m_arNames, dictionary.m_arNames);
    EXPECT_EQ(back.m_arItems, dictionary.m_arItems);
    EXPECT_EQ(back.m_hDefault, HardPointer(0xF));
}

TEST(DwgMlineStyle, KeepsItsLines) {
    CDwgMlineStyle style;
    style.m_strName = "STANDARD";
    style.m_arElements = {{0.5}, {-0.5, 3, 7}};
    const CDwgMlineStyle back = ThroughRecord(style, DWG_FILED(FileMlineStyle));
    ASSERT_EQ(back.m_arElements.size(), 2u);
    EXPECT_EQ(back.m_arElements[1].m_dOffset, -0.5);
    EXPECT_EQ(back.m_arElements[1].m_nColor, 3);
    EXPECT_EQ(back.m_arElements[1].m_nLinetype, 7);
}

TEST(DwgLayout, KeepsNamesPaperAndBlock) {
    CDwgLayout layout;
    layout.m_strName = "Model";
    layout.m_nPlotFlags = CDwgLayout::s_nModel;
    layout.m_dPaperWidth = 594.0;
    layout.m_nTab = 2;
    layout.m_hBlock = SoftPointer(0x1F);
    const CDwgLayout back = ThroughRecord(layout, DWG_FILED(FileLayout));
    EXPECT_EQ(back.m_strName, "Model");
    EXPECT_EQ(back.m_nPlotFlags, 1712);
    EXPECT_EQ(back.m_dPaperWidth, 594.0);
    EXPECT_EQ(back.m_nTab, 2u);
    EXPECT_EQ(back.m_hBlock, SoftPointer(0x1F));
}
