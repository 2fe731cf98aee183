#include "host/files/dwg_writing.h"

#include "tests/host/files/dwg_sample_drawing.h"

#include <gtest/gtest.h>

TEST(DwgReactorsOf, LeavesOutThoseThatAreNotInTheFile) {
    AcDbDatabase database;
    const AcDbObjectId idLine = AppendTo(database.ModelSpaceId(), new AcDbLine),
                       idGone = AppendTo(database.ModelSpaceId(), new AcDbLine),
                       idTold = AppendTo(database.ModelSpaceId(), new AcDbLine);
    const CDbOpen<AcDbLine> line(idLine, AcDb::kForWrite);
    line->addPersistentReactor(idGone);
    line->addPersistentReactor(idTold);
    CDbOpen<AcDbLine>(idGone, AcDb::kForWrite)->erase();
    const CDrawingText text(g_nChinesePage);
    CDwgHandleMap handles(database);
    std::vector<CDwgClass> classes;
    EXPECT_EQ(DwgReactorsOf(*line.Get(), {database, nullptr, text, g_nDwgAnsi936, handles, classes}),
              std::vector(1, SoftPointer(handles.Of(idTold))));
}

TEST(DwgExtendedDataOf, PacksEachApplicationsValuesUnderItsHandle) {
    AcDbDatabase database;
    const AcDbObjectId idApp = AddRecord(database.regAppTableId(), L"APP", new AcDbRegAppTableRecord);
    AcDbLine line;
    line.PutXData({idApp, {{1000, L"text"}, {1003, L"0"}}});
    const CDrawingText text(g_nChinesePage);
    CDwgHandleMap handles(database);
    std::vector<CDwgClass> classes;
    const auto extended = DwgExtendedDataOf(line, {database, nullptr, text, g_nDwgAnsi936, handles, classes});
    ASSERT_EQ(extended.size(), 1u);
    EXPECT_EQ(extended[0].m_hApp, HardPointer(handles.Of(idApp)));
    EXPECT_EQ(extended[0].m_arBytes.back(), CStandardHandles::s_nLayer0);
}
