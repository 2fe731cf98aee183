#include "host/files/dwg_block_reader.h"

#include "host/files/dwg_blocks.h"
#include "host/files/dwg_curves.h"
#include "host/files/dwg_drawing_reader.h"
#include "host/files/dwg_drawing_writer.h"
#include "host/files/dwg_handle_map.h"
#include "platform/acad/standard_handles.h"
#include "tests/host/files/dwg_refusal.h"
#include "tests/host/files/dwg_sample_drawing.h"

#include <gtest/gtest.h>

namespace {

/// A line in a chain in model space.
CBytes LineContent(std::uint64_t nHandle, const CDwgHandle& hNext, bool bNeighbours = false) {
    CDwgEntityCommon common;
    common.m_nPlace = g_nDwgInModelSpace;
    common.m_bNeighbours = bNeighbours;
    common.m_hNext = hNext;
    common.m_hLayer = HardPointer(CStandardHandles::s_nLayer0);
    return WriteDwgRecord(DwgRecordOf(g_nDwgLine, nHandle, CDwgLine(), [&](auto& io, auto& line) {
        FileEntityCommon(io, common);
        FileLine(io, line);
    }));
}

/// An empty drawing whose model space claims to have entities from one to another.
CDwgFile FileWithChain(std::uint64_t nFirst, std::uint64_t nLast) {
    CDwgFile file = DwgFileOf(AcDbDatabase());
    const CDwgRecord record =
        ReadDwgRecord(file.m_contents.at(CStandardHandles::s_nModelSpace), CStandardHandles::s_nModelSpace);
    CDwgRecordReader reader(record);
    CDwgBlockHeader header;
    FileBlockHeader(reader, header);
    header.m_hFirst = SoftPointer(nFirst);
    header.m_hLast = SoftPointer(nLast);
    file.m_contents[CStandardHandles::s_nModelSpace] = WriteDwgRecord(
        DwgRecordOf(g_nDwgBlockHeader, CStandardHandles::s_nModelSpace, header, DWG_FILED(FileBlockHeader)));
    return file;
}

std::vector<std::uint64_t> HandlesRead(const CDwgFile& file) {
    const auto pDatabase = DrawingOfDwg(file);
    std::vector<std::uint64_t> handles;
    for (const AcDbObjectId& id : CDbOpen<AcDbBlockTableRecord>(pDatabase->ModelSpaceId())->EntityIds())
        handles.push_back(id.handle().Value());
    return handles;
}

} // namespace

TEST(ReadDwgBlocks, FollowsTheChainFromEntityToEntity) {
    CDwgFile file = FileWithChain(0x70, 0x61);
    file.m_contents[0x61] = LineContent(0x61, SoftPointer(0));
    file.m_contents[0x70] = LineContent(0x70, {0xC, 0xF}); // 15 below its own
    EXPECT_EQ(HandlesRead(file), (std::vector<std::uint64_t>{0x70, 0x61}));
}

TEST(ReadDwgBlocks, GoesOnToTheNextHandleWhereNeighboursAreNotNamed) {
    CDwgFile file = FileWithChain(0x60, 0x62);
    for (std::uint64_t nHandle = 0x60; nHandle <= 0x62; ++nHandle)
        file.m_contents[nHandle] = LineContent(nHandle, SoftPointer(0), true);
    EXPECT_EQ(HandlesRead(file), (std::vector<std::uint64_t>{0x60, 0x61, 0x62}));
}

TEST(ReadDwgBlocks, ReadsEachEntityOfAChainThatRunsInACircleOnce) {
    CDwgFile file = FileWithChain(0x60, 0x99);
    file.m_contents[0x60] = LineContent(0x60, SoftPointer(0x61));
    file.m_contents[0x61] = LineContent(0x61, SoftPointer(0x60));
    EXPECT_EQ(HandlesRead(file), (std::vector<std::uint64_t>{0x60, 0x61}));
}

TEST(ReadDwgBlocks, EndsAChainThatLeadsToNothing) {
    CDwgFile file = FileWithChain(0x60, 0x61);
    file.m_contents[0x60] = LineContent(0x60, SoftPointer(0x99));
    EXPECT_EQ(HandlesRead(file), (std::vector<std::uint64_t>{0x60}));
}

TEST(ReadDwgBlocks, EndsAChainThatLeadsToTheEndOfABlockOrToWhatIsNoEntity) {
    EXPECT_TRUE(HandlesRead(FileWithChain(0x1D, 0x1D)).empty()); // of paper space
    EXPECT_TRUE(HandlesRead(FileWithChain(CStandardHandles::s_nGroups, CStandardHandles::s_nGroups)).empty());
}

TEST(ReadDwgBlocks, PutsEntitiesThatNoChainLeadsToIntoTheBlockThatTheyName) {
    CDwgFile file = FileWithChain(0x61, 0x61);
    file.m_contents[0x60] = LineContent(0x60, SoftPointer(0));
    file.m_contents[0x61] = LineContent(0x61, SoftPointer(0));
    EXPECT_EQ(HandlesRead(file), (std::vector<std::uint64_t>{0x61, 0x60}));
}

TEST(ReadDwgBlocks, KeepsAnEntityOfATypeThatIsNone) {
    CDwgFile file = FileWithChain(0x60, 0x60);
    CDwgRecord record = ReadDwgRecord(LineContent(0x60, SoftPointer(0)), 0x60);
    record.m_nType = 0x1F0;
    file.m_contents[0x60] = WriteDwgRecord(record);
    const auto pDatabase = DrawingOfDwg(file);
    EXPECT_EQ(ReadDwgRecord(DwgFileOf(*pDatabase).m_contents.at(0x60), 0x60), record);
}

TEST(ReadDwgBlocks, TakesABlocksNameOfItsEntity) {
    AcDbDatabase database;
    const AcDbObjectId idBlock = AddBlock(database, L"*U7");
    CDbOpen<AcDbBlockTableRecord>(idBlock, AcDb::kForWrite)->setOrigin({1.0, 2.0, 3.0});
    const CDwgHandleMap handles(database);
    const std::uint64_t nBlock = handles.Of(idBlock);
    CDwgFile file = DwgFileOf(database);
    const CDwgRecord record = ReadDwgRecord(file.m_contents.at(nBlock), nBlock);
    CDwgRecordReader reader(record);
    CDwgBlockHeader header;
    FileBlockHeader(reader, header);
    EXPECT_TRUE(header.m_bAnonymous);
    header.m_strName = "*U";
    file.m_contents[nBlock] =
        WriteDwgRecord(DwgRecordOf(g_nDwgBlockHeader, nBlock, header, DWG_FILED(FileBlockHeader)));
    const auto pBack = DrawingOfDwg(file);
    const CDbOpen<AcDbBlockTableRecord> block(RecordNamed(pBack->blockTableId(), L"*U7"));
    ASSERT_TRUE(block);
    EXPECT_EQ(block->origin(), AcGePoint3d(1.0, 2.0, 3.0));
}
