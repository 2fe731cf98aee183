// The files themselves; the menu's way to them is tested with the window.

#include "host/desktop/exporting.h"

#include "host/console/words.h"
#include "host/files/drawing_storage.h"
#include "platform/acad/db_line.h"
#include "tests/temp_folder.h"

#include <gtest/gtest.h>

namespace {

void AddExportedLine(AcDbDatabase& drawing) {
    auto* const pLine = new AcDbLine({0.0, 0.0, 0.0}, {10.0, 10.0, 0.0});
    CDbOpen<AcDbBlockTableRecord>(drawing.ModelSpaceId(), AcDb::kForWrite)->appendAcDbEntity(pLine);
    pLine->close();
}

} // namespace

TEST(Exporting, ADxfCopyLeavesTheDrawingChangedAndItsFileNameAlone) {
    const CTempFolder folder;
    AcDbDatabase drawing;
    AddExportedLine(drawing);
    drawing.SetFilename(L"/drawings/one.dwg");
    const std::string strPath = folder.Path("copy.dxf");
    EXPECT_EQ(ExportDxf(drawing, strPath), "exported to " + strPath);
    EXPECT_EQ(LoadDrawing(strPath).m_format, CDrawingFormat::Dxf);
    EXPECT_TRUE(drawing.IsModified());
    std::wstring strName;
    ASSERT_EQ(drawing.getFilename(strName), Acad::eOk);
    EXPECT_EQ(strName, L"/drawings/one.dwg");
}

TEST(Exporting, WhatCannotBeWrittenIsToldWithTheReason) {
    EXPECT_EQ(ExportDxf(AcDbDatabase(), "/nowhere/copy.dxf"),
              "/nowhere/copy.dxf cannot be written: No such file or directory");
}

TEST(Exporting, OnlyADxfPathIsOne) {
    EXPECT_TRUE(IsDxfPath("/a/b.DXF"));
    for (const char* const szPath : {"/a/b.pdf", "/a/b.dwg", "/a.dxf/b"})
        EXPECT_FALSE(IsDxfPath(szPath)) << szPath;
}

TEST(Exporting, AQuotedWordIsReadBackAsItWas) {
    for (const std::string strText : {"/a b/c.pdf", "a \"quoted\" name.svg", ""}) {
        std::vector<CWord> arWords;
        std::string strReason;
        ASSERT_TRUE(SplitWords("PLOT " + QuotedWord(strText), &arWords, &strReason)) << strReason;
        ASSERT_EQ(arWords.size(), 2U);
        EXPECT_EQ(arWords[1].m_strText, strText);
    }
}
