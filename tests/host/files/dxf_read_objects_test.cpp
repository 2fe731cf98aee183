#include "host/files/dxf_read_objects.h"

#include "host/files/dxf_read.h"
#include "host/files/dxf_write.h"
#include "platform/acad/db_line.h"
#include "platform/windows/file_bytes.h"
#include "tests/host/files/dwg_sample_drawing.h"

#include <gtest/gtest.h>

namespace {

CDxfLosses LossesOf(const std::string& strSections) {
    AcDbDatabase drawing;
    return ReadDxf(strSections + "0\nEOF\n", drawing);
}

std::string Objects(const std::string& strRecords) {
    return "0\nSECTION\n2\nOBJECTS\n0\nDICTIONARY\n5\nC\n3\nACAD_GROUP\n350\nD\n3\nMINE\n350\n1e\n3\n"
           "ACAD_PLOTSTYLENAME\n360\nE\n" +
           strRecords + "0\nENDSEC\n";
}

} // namespace

TEST(DxfObjects, PassOverWhatEveryDrawingHas) {
    EXPECT_EQ(
        LossesOf(Objects("0\nDICTIONARY\n5\nD\n102\n{ACAD_REACTORS\n330\nC\n102\n}\n3\nA\n350\n30\n"
                         "0\nACDBDICTIONARYWDFLT\n5\nE\n0\nACDBPLACEHOLDER\n0\nLAYOUT\n0\nMLINESTYLE\n")),
        CDxfLosses());
}

TEST(DxfObjects, AreLostWhenTheyAreOfOthers) {
    EXPECT_EQ(LossesOf(Objects(
                  "0\nDICTIONARY\n5\n1E\n3\nDATA\n350\n1F\n0\nXRECORD\n5\n1F\n90\n1\n0\nXRECORD\n5\n20\n"
                  "0\nDICTIONARY\n5\n21\n")), // which holds nothing
              (CDxfLosses{{"DICTIONARY", 1}, {"XRECORD", 2}}));
}

TEST(DxfObjects, ReadsTheRootsHandle) {
    AcDbDatabase drawing;
    ReadDxf(Objects("") + "0\nEOF\n", drawing);
    EXPECT_EQ(drawing.namedObjectsDictionaryId().handle(), AcDbHandle(0xC));
}

TEST(DxfObjects, ReactorsAndOtherDataOfApplicationsAreToldOfEntitiesAndRecords) {
    const std::string strGroups =
        "102\n{ACAD_REACTORS\n330\n1\n102\n}\n102\n{ACAD_XDICTIONARY\n360\n2\n102\n}\n"
        "102\n{APP\n40\n1.0\n102\n}\n102\n{BLKREFS\n331\n3\n102\n}\n";
    EXPECT_EQ(LossesOf("0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nLAYER\n0\nLAYER\n5\n2A\n" + strGroups +
                       "2\nA\n0\nENDTAB\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n0\nLINE\n5\n2B\n" + strGroups +
                       "8\nA\n0\nENDSEC\n"),
              (CDxfLosses{{"application data", 2}, {"extension dictionary", 2}, {"reactors", 2}}));
}

TEST(DxfObjects, AreToldOfEachVersionThatHasSuch) {
    std::string strBytes;
    ASSERT_TRUE(ReadFileWhole(TERVO_TEST_DATA "/dxf/versions/r2000_text.dxf", &strBytes));
    AcDbDatabase drawing;
    const CDxfLosses losses = ReadDxf(strBytes, drawing);
    EXPECT_EQ(losses.at("MATERIAL"), 3);
    EXPECT_FALSE(losses.contains("LAYOUT"));
    EXPECT_FALSE(losses.contains("reactors"));
}

TEST(DxfObjects, ReactorsOfAnEntityAreLostInTheFile) {
    AcDbDatabase drawing;
    const AcDbObjectId idFirst = AppendTo(drawing.ModelSpaceId(), new AcDbLine);
    const AcDbObjectId idSecond = AppendTo(drawing.ModelSpaceId(), new AcDbLine);
    CDbOpen<AcDbLine>(idFirst, AcDb::kForWrite)->addPersistentReactor(idSecond);
    EXPECT_EQ(WriteDxf(drawing).m_losses, (CDxfLosses{{"reactors", 1}}));
}
