#include "host/files/dwg_blocks.h"

#include "tests/host/files/dwg_round_trip.h"
#include "tests/host/files/hex_bytes.h"

namespace {

struct CWholeInsert {
    CDwgEntityCommon m_common;
    CDwgInsertEntity m_insert;
};
template <class Io, class Whole>
void FileWholeInsert(Io& io, Whole& whole) {
    FileEntityCommon(io, whole.m_common);
    FileInsert(io, whole.m_insert);
}

const CBytes g_knownInsert =
    HexBytes("41 F9 40 00 00 00 59 A5 34 21 D0 00 00 00 00 00 00 71 00 00 00 00 00 00 00 1C 40"
             "BA 99 82 0B 2A 02 88 82 8A 02 0B 3A 0B 39 8B 40");

/// The factors as they are read where they stand in a form.
template <class Write>
AcGeScale3d ScaleRead(Write write) {
    CDwgRecordWriter writer;
    write(writer);
    const CDwgRecord record = writer.TakeRecord(g_nDwgInsert, 0x60);
    CDwgRecordReader reader(record);
    AcGeScale3d scale;
    FileScale(reader, scale);
    EXPECT_TRUE(reader.IsAtEnd());
    return scale;
}

} // namespace

TEST(DwgInsert, IsReadFromAKnownOne) {
    const auto whole = FromContent<CWholeInsert>(g_knownInsert, 0x66, DWG_FILED(FileWholeInsert));
    EXPECT_EQ(whole.m_insert.m_ptPosition, AcGePoint3d(7.0, 7.0, 0.0));
    EXPECT_EQ(whole.m_insert.m_scale, AcGeScale3d());
    EXPECT_TRUE(whole.m_insert.m_bAttributes);
    EXPECT_EQ(whole.m_insert.m_hBlock, HardPointer(0x40));
    EXPECT_EQ(whole.m_insert.m_hFirstAttribute, SoftPointer(0x67));
    EXPECT_EQ(whole.m_insert.m_hLastAttribute, SoftPointer(0x67));
    EXPECT_EQ(whole.m_insert.m_hSequenceEnd, HardOwner(0x68));
    CDwgRecordWriter writer;
    FileWholeInsert(writer, whole);
    EXPECT_EQ(WriteDwgRecord(writer.TakeRecord(g_nDwgInsert, 0x66)), g_knownInsert);
}

TEST(DwgInsert, KeepsItsFactors) {
    CDwgInsertEntity insert;
    insert.m_scale = {2.0, -2.0, 1.0};
    insert.m_dRotation = 0.5;
    const CDwgInsertEntity back = ThroughRecord(insert, DWG_FILED(FileInsert));
    EXPECT_EQ(back.m_scale, insert.m_scale);
    EXPECT_EQ(back.m_dRotation, 0.5);
    EXPECT_FALSE(back.m_bAttributes);
}

TEST(DwgInsert, ReadsFactorsInEveryForm) {
    EXPECT_EQ(ScaleRead([](auto& writer) { writer.BB(3); }), AcGeScale3d());
    EXPECT_EQ(ScaleRead([](auto& writer) { writer.BB(2), writer.RD(5.0); }), AcGeScale3d(5.0));
    EXPECT_EQ(ScaleRead([](auto& writer) { writer.BB(1), writer.DD(2.0, 1.0), writer.DD(1.0, 1.0); }),
              AcGeScale3d(1.0, 2.0, 1.0));
    EXPECT_EQ(ScaleRead([](auto& writer) {
                  writer.BB(0), writer.RD(2.0), writer.DD(2.0, 2.0), writer.DD(3.0, 2.0);
              }),
              AcGeScale3d(2.0, 2.0, 3.0));
}

TEST(DwgBlockHeader, KeepsBaseEntitiesAndInsertions) {
    CDwgBlockHeader header;
    header.m_strName = "Frame";
    header.m_bAttributes = true;
    header.m_ptBase = {1.0, 2.0, 3.0};
    header.m_strDescription = "a frame";
    header.m_arPreview = {1, 2, 3};
    header.m_hBlock = HardOwner(0x41);
    header.m_hFirst = SoftPointer(0x42);
    header.m_hLast = SoftPointer(0x43);
    header.m_hBlockEnd = HardOwner(0x44);
    header.m_arInserts = {SoftPointer(0x50), SoftPointer(0x51)};
    header.m_hLayout = HardPointer(0x22);
    const CDwgBlockHeader back = ThroughRecord(header, DWG_FILED(FileBlockHeader));
    EXPECT_EQ(back.m_strName, "Frame");
    EXPECT_TRUE(back.m_bAttributes);
    EXPECT_EQ(back.m_ptBase, header.m_ptBase);
    EXPECT_EQ(back.m_strDescription, "a frame");
    EXPECT_EQ(back.m_arPreview, header.m_arPreview);
    EXPECT_EQ(back.m_hFirst, header.m_hFirst);
    EXPECT_EQ(back.m_hLast, header.m_hLast);
    EXPECT_EQ(back.m_arInserts, header.m_arInserts);
    EXPECT_EQ(back.m_hLayout, header.m_hLayout);
}

TEST(DwgBlockHeader, OfAnotherFilesBlockHasNoEntities) {
    CDwgBlockHeader header;
    header.m_bXref = true;
    header.m_strPath = "other.dwg";
    header.m_hFirst = SoftPointer(0x42);
    const CDwgBlockHeader back = ThroughRecord(header, DWG_FILED(FileBlockHeader));
    EXPECT_EQ(back.m_strPath, "other.dwg");
    EXPECT_EQ(back.m_hFirst, SoftPointer(0));
}
