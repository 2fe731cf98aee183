#include "host/files/dxf_style_font.h"

#include "host/files/dxf_read.h"
#include "tests/host/files/drawing_contents.h"

#include <gtest/gtest.h>

namespace {

/// Reads a file with one style, "SONG", that has this extended data.
void ReadStyle(const std::string& strXData, AcDbDatabase& drawing) {
    ReadDxf("0\nSECTION\n2\nTABLES\n0\nSTYLE\n2\nSONG\n3\nsimsun.ttf\n" + strXData + "0\nENDSEC\n0\nEOF\n",
            drawing);
}

} // namespace

TEST(TakeDxfStyleFont, GivesTheStyleItsFontAndLeavesNoExtendedData) {
    AcDbDatabase drawing;
    ReadStyle("1001\nACAD\n1000\nSimSun\n1071\n33588786\n", drawing);
    const CDbOpen<AcDbTextStyleTableRecord> style(Record(drawing.textStyleTableId(), L"SONG"));
    std::wstring strTypeface;
    Adesk::Boolean bBold = 0, bItalic = 0;
    int nCharset = 0, nPitchAndFamily = 0;
    style->font(strTypeface, bBold, bItalic, nCharset, nPitchAndFamily);
    EXPECT_EQ(strTypeface, L"SimSun");
    EXPECT_TRUE(bBold);
    EXPECT_FALSE(bItalic);
    EXPECT_EQ(nCharset, 134);
    EXPECT_EQ(nPitchAndFamily, 50);
    EXPECT_TRUE(style->XData().Apps().empty());
}

TEST(TakeDxfStyleFont, LeavesExtendedDataOfAnotherShape) {
    for (const char* szXData : {"1001\nACAD\n1000\nSimSun\n", "1001\nACAD\n1000\n\n1071\n0\n",
                                "1001\nGEO\n1000\nSimSun\n1071\n0\n"}) {
        AcDbDatabase drawing;
        ReadStyle(szXData, drawing);
        const CDbOpen<AcDbTextStyleTableRecord> style(Record(drawing.textStyleTableId(), L"SONG"));
        EXPECT_EQ(style->FileName(), L"simsun.ttf") << szXData;
        EXPECT_EQ(style->XData().Apps().size(), 1U) << szXData;
    }
}

TEST(WriteDxfStyleFont, WritesTheFontAsItIsRead) {
    AcDbTextStyleTableRecord style;
    CDxfWriter writer;
    WriteDxfStyleFont(writer, style);
    EXPECT_EQ(writer.Bytes(), "");
    style.setFont(L"SimSun", true, false, 134, 50);
    WriteDxfStyleFont(writer, style);
    EXPECT_EQ(writer.Bytes(), "1001\nACAD\n1000\nSimSun\n1071\n33588786\n");
}
