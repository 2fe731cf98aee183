#include "host/files/dxf_record.h"

#include <gtest/gtest.h>

namespace {

/// The records of a text file.
class CFile {
public:
    explicit CFile(std::string_view bytes)
        : m_pReader(OpenDxf(bytes))
        , m_records(*m_pReader) {}
    CDxfRecord Next() {
        CDxfRecord record;
        EXPECT_TRUE(m_records.Next(&record));
        return record;
    }
    bool AtEnd() {
        CDxfRecord record;
        return !m_records.Next(&record);
    }

private:
    std::unique_ptr<CDxfReader> m_pReader;
    CDxfRecords m_records;
};

} // namespace

TEST(DxfRecords, ReachFromOneTypeToTheNext) {
    CFile file("0\nLINE\n8\nA\n0\nARC\n");
    const CDxfRecord line = file.Next();
    EXPECT_EQ(line.m_type, "LINE");
    EXPECT_EQ(line.m_nPlace, 1U);
    EXPECT_EQ(line.Text(8), L"A");
    const CDxfRecord arc = file.Next();
    EXPECT_EQ(arc.m_type, "ARC");
    EXPECT_EQ(arc.m_nPlace, 5U);
    EXPECT_TRUE(file.AtEnd());
}

TEST(DxfRecords, LeaveOutGroupsOfApplicationsAndEmbeddedObjects) {
    CFile file("0\nLINE\n102\n{APP\n8\nA\n102\n}\n62\n3\n101\nEmbedded Object\n6\nX\n1001\nGEO\n1000\nt\n");
    const CDxfRecord record = file.Next();
    ASSERT_EQ(record.m_arTags.size(), 1U);
    EXPECT_EQ(record.m_arTags[0].m_nCode, 62);
    EXPECT_EQ(record.m_arXData.size(), 2U);
}

TEST(DxfRecord, GivesTheFirstValueOrWhatStandsForIt) {
    const CDxfRecord record = CFile("0\nX\n40\n1.5\n40\n2.5\n70\n5\n").Next();
    EXPECT_EQ(record.Real(40), 1.5);
    EXPECT_EQ(record.Real(41, 7.0), 7.0);
    EXPECT_EQ(record.Whole(70), 5);
    EXPECT_EQ(record.Whole(71, -1), -1);
    EXPECT_TRUE(record.HasFlag(70, 4));
    EXPECT_FALSE(record.HasFlag(70, 2));
    EXPECT_EQ(record.Text(1, L"none"), L"none");
    EXPECT_EQ(record.Find(9), nullptr);
    EXPECT_EQ(record.Reals(40), (std::vector{1.5, 2.5}));
}

TEST(DxfRecord, GivesPointsWithOrWithoutHeight) {
    const CDxfRecord record =
        CFile("0\nX\n10\n1.0\n20\n2.0\n10\n3.0\n20\n4.0\n30\n5.0\n10\n6.0\n11\n7.0\n21\n8.0\n").Next();
    const std::vector<AcGePoint3d> points = record.Points(10);
    ASSERT_EQ(points.size(), 3U);
    EXPECT_EQ(points[0], AcGePoint3d(1, 2, 0));
    EXPECT_EQ(points[1], AcGePoint3d(3, 4, 5));
    EXPECT_EQ(points[2], AcGePoint3d(6, 0, 0));
    EXPECT_EQ(record.Point(11), AcGePoint3d(7, 8, 0));
}
