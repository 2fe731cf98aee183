#include "host/files/dxf_xdata.h"

#include "platform/acad/result_buffer.h"

#include <gtest/gtest.h>

namespace {

/// What stands behind a line in a text file, as its extended data; how much is lost on the way.
class CRead {
public:
    explicit CRead(const std::string& strGroups)
        : m_strBytes("0\nLINE\n" + strGroups)
        , m_pReader(OpenDxf(m_strBytes))
        , m_records(*m_pReader) {
        CDxfRecord record;
        EXPECT_TRUE(m_records.Next(&record));
        const CResbufChain chain(ReadDxfXData(record, m_drawing));
        for (const resbuf* pBuffer = chain.Get(); pBuffer; pBuffer = pBuffer->rbnext)
            m_arCodes.push_back(pBuffer->restype);
        m_nLost = m_drawing.Losses().contains("extended data") ? m_drawing.Losses().at("extended data") : 0;
    }
    std::vector<int> m_arCodes;
    int m_nLost = 0;

private:
    std::string m_strBytes;
    std::unique_ptr<CDxfReader> m_pReader;
    CDxfRecords m_records;
    AcDbDatabase m_database;
    CDxfDrawing m_drawing{m_database};
};

} // namespace

TEST(ReadDxfXData, MakesOneValueOfThePartsOfAPoint) {
    const CRead read("1001\nGEO\n1010\n1.0\n1020\n2.0\n1030\n3.0\n1070\n4\n");
    EXPECT_EQ(read.m_arCodes, (std::vector{1001, 1010, 1070}));
    EXPECT_EQ(read.m_nLost, 0);
}

TEST(ReadDxfXData, CountsWhatHasNoPlaceAsLost) {
    EXPECT_EQ(CRead("1001\nGEO\n1004\n00FF\n1020\n2.0\n1000\nx\n").m_nLost, 2);
    EXPECT_EQ(CRead("1000\nof nobody\n").m_nLost, 1);
    EXPECT_TRUE(CRead("1000\nof nobody\n").m_arCodes.empty());
}

TEST(ReadDxfXData, RegistersApplications) {
    AcDbDatabase database;
    CDxfDrawing drawing(database);
    constexpr std::string_view bytes = "0\nLINE\n1001\nGEO\n1000\nx\n";
    const std::unique_ptr<CDxfReader> pReader = OpenDxf(bytes);
    CDxfRecords records(*pReader);
    CDxfRecord record;
    ASSERT_TRUE(records.Next(&record));
    const CResbufChain chain(ReadDxfXData(record, drawing));
    EXPECT_TRUE(CDbOpen<AcDbRegAppTable>(database.regAppTableId())->has(L"GEO"));
}

TEST(WriteDxfXData, WritesEachApplicationWithItsValues) {
    AcDbDatabase database;
    const ads_point point = {1.0, 2.0, 3.0};
    const CResbufChain chain(acutBuildList(1001, L"ACAD", 1000, L"固结", 1010, point, 1040, 0.5, RTNONE));
    ASSERT_EQ(CDbOpen<AcDbObject>(database.clayer(), AcDb::kForWrite)->setXData(chain.Get()), Acad::eOk);
    CDxfWriter writer;
    WriteDxfXData(writer, *CDbOpen<AcDbObject>(database.clayer()).Get());
    EXPECT_EQ(writer.Bytes(), "1001\nACAD\n1000\n固结\n1010\n1.0\n1020\n2.0\n1030\n3.0\n1040\n0.5\n");
}
