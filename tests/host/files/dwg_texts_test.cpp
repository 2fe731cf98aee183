#include "host/files/dwg_texts.h"

#include "tests/host/files/dwg_round_trip.h"

#include <cmath>

TEST(DwgTextEntity, LeavesUsualValuesOut) {
    CDwgTextEntity text;
    text.m_ptPosition = {1.5, 2.5};
    text.m_dHeight = 3.5;
    text.m_strText = "ab";
    EXPECT_EQ(text.UsualValues(), 0xFF);
    CDwgRecordWriter writer;
    FileText(writer, text);
    EXPECT_EQ(writer.At(), 8u + 128 + 1 + 1 + 64 + 10 + 16);
    const CDwgTextEntity back = ThroughRecord(text, DWG_FILED(FileText));
    EXPECT_EQ(back.m_strText, "ab");
    EXPECT_EQ(back.m_dHeight, 3.5);
    EXPECT_EQ(back.m_dWidthFactor, 1.0);
}

TEST(DwgTextEntity, KeepsUnusualValues) {
    CDwgTextEntity text;
    text.m_dElevation = -0.0;
    text.m_ptPosition = {1.5, 2.5};
    text.m_ptAlignment = {1.5, 7.5};
    text.m_dOblique = 0.25;
    text.m_dRotation = 1.25;
    text.m_dWidthFactor = 0.5;
    text.m_strText = "固结";
    text.m_nGeneration = 2;
    text.m_nHorizontal = 4;
    text.m_nVertical = 3;
    text.m_hStyle = HardPointer(0x11);
    EXPECT_EQ(text.UsualValues(), 0);
    const CDwgTextEntity back = ThroughRecord(text, DWG_FILED(FileText));
    EXPECT_TRUE(std::signbit(back.m_dElevation));
    EXPECT_EQ(back.m_ptAlignment.x, 1.5);
    EXPECT_EQ(back.m_ptAlignment.y, 7.5);
    EXPECT_EQ(back.m_dOblique, 0.25);
    EXPECT_EQ(back.m_dRotation, 1.25);
    EXPECT_EQ(back.m_dWidthFactor, 0.5);
    EXPECT_EQ(back.m_strText, "固结");
    EXPECT_EQ(back.m_nGeneration, 2);
    EXPECT_EQ(back.m_nHorizontal, 4);
    EXPECT_EQ(back.m_nVertical, 3);
    EXPECT_EQ(back.m_hStyle, HardPointer(0x11));
}

TEST(DwgAttributeEntity, IsATextWithTagAndFlags) {
    CDwgAttributeEntity attribute;
    attribute.m_strText = "12";
    attribute.m_strTag = "BOREHOLE";
    attribute.m_nFieldLength = 5;
    attribute.m_nFlags = CDwgAttributeEntity::s_nInvisible | CDwgAttributeEntity::s_nPreset;
    const CDwgAttributeEntity back = ThroughRecord(attribute, DWG_FILED(FileAttribute));
    EXPECT_EQ(back.m_strText, "12");
    EXPECT_EQ(back.m_strTag, "BOREHOLE");
    EXPECT_EQ(back.m_nFieldLength, 5);
    EXPECT_EQ(back.m_nFlags, 9);
}

TEST(DwgAttributeDefinitionEntity, AsksByItsPrompt) {
    CDwgAttributeDefinitionEntity definition;
    definition.m_strTag = "BOREHOLE";
    definition.m_strPrompt = "Number?";
    const CDwgAttributeDefinitionEntity back = ThroughRecord(definition, DWG_FILED(FileAttributeDefinition));
    EXPECT_EQ(back.m_strTag, "BOREHOLE");
    EXPECT_EQ(back.m_strPrompt, "Number?");
}
