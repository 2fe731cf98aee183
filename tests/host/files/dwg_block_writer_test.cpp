#include "host/files/dwg_block_writer.h"

#include "host/files/dwg_blocks.h"
#include "host/files/dwg_curves.h"
#include "host/files/dwg_texts.h"
#include "platform/acad/result_buffer.h"
#include "tests/host/files/dwg_sample_drawing.h"
#include "tests/host/files/dwg_written.h"

namespace {

CDwgEntityCommon CommonOf(const CDwgRecord& record) {
    CDwgRecordReader reader(record);
    CDwgEntityCommon common;
    FileEntityCommon(reader, common);
    EXPECT_FALSE(reader.Failed());
    return common;
}

CDwgBlockHeader HeaderOf(const CDwgWritten& written, std::uint64_t nBlock) {
    return Filed<CDwgBlockHeader>(written.Record(nBlock), DWG_FILED(FileBlockHeader));
}

} // namespace

TEST(WriteDwgBlocks, ChainsTheEntitiesOfModelSpace) {
    AcDbDatabase database;
    for (int i = 0; i < 3; ++i)
        AppendTo(database.ModelSpaceId(), new AcDbLine);
    const CDwgWritten written(database);
    const std::vector<CDwgRecord> lines = written.OfType(g_nDwgLine);
    ASSERT_EQ(lines.size(), 3u);
    const CDwgBlockHeader header = HeaderOf(written, CStandardHandles::s_nModelSpace);
    EXPECT_EQ(header.m_hFirst, SoftPointer(lines[0].m_nHandle));
    EXPECT_EQ(header.m_hLast, SoftPointer(lines[2].m_nHandle));
    EXPECT_EQ(CommonOf(lines[0]).m_hPrevious, SoftPointer(0));
    EXPECT_EQ(CommonOf(lines[0]).m_hNext, SoftPointer(lines[1].m_nHandle));
    EXPECT_EQ(CommonOf(lines[1]).m_hPrevious, SoftPointer(lines[0].m_nHandle));
    EXPECT_EQ(CommonOf(lines[2]).m_hNext, SoftPointer(0));
    EXPECT_EQ(CommonOf(lines[1]).m_nPlace, g_nDwgInModelSpace);
}

TEST(WriteDwgBlocks, GivesTheSpacesTheirEndsAndLayouts) {
    const AcDbDatabase database;
    const CDwgWritten written(database);
    const CDwgBlockHeader model = HeaderOf(written, CStandardHandles::s_nModelSpace);
    EXPECT_EQ(model.m_strName, "*Model_Space");
    EXPECT_EQ(model.m_hFirst, SoftPointer(0));
    EXPECT_EQ(model.m_hBlock, HardOwner(0x20));
    EXPECT_EQ(model.m_hBlockEnd, HardOwner(0x21));
    EXPECT_EQ(model.m_hLayout, HardPointer(0x22));
    EXPECT_FALSE(model.m_bAnonymous);
    EXPECT_EQ(CommonOf(written.Record(0x1C)).m_nPlace, g_nDwgInPaperSpace);
    EXPECT_EQ(written.Record(0x20).m_nType, g_nDwgBlock);
    EXPECT_EQ(written.Record(0x21).m_nType, g_nDwgBlockEnd);
    const auto control =
        Filed<CDwgControl>(written.Record(CStandardHandles::s_nBlocks),
                           [](auto& io, auto& value) { FileControl(io, value, g_nDwgBlockControl); });
    EXPECT_TRUE(control.m_arRecords.empty());
    EXPECT_EQ(control.m_arFixed, (std::vector{HardOwner(0x1F), HardOwner(0x1B)}));
}

TEST(WriteDwgBlocks, GivesABlockItsOwnEntitiesAndNamesItsInsertions) {
    AcDbDatabase database;
    const AcDbObjectId idBlock = AddBlock(database, L"\u56FE\u6846");
    AppendTo(idBlock, new AcDbAttributeDefinition({1.0, 2.0, 0.0}, L"text", L"TAG", L"Prompt"));
    AppendTo(database.ModelSpaceId(), new AcDbBlockReference({7.0, 7.0, 0.0}, idBlock));
    const CDwgWritten written(database);
    const std::uint64_t nBlock = CDwgHandleMap(database).Of(idBlock);
    const CDwgBlockHeader header = HeaderOf(written, nBlock);
    EXPECT_EQ(header.m_strName, "图框");
    EXPECT_TRUE(header.m_bAttributes);
    const CDwgRecord insert = written.OfType(g_nDwgInsert).at(0);
    EXPECT_EQ(header.m_arInserts, std::vector(1, SoftPointer(insert.m_nHandle)));
    const CDwgEntityCommon common = CommonOf(written.OfType(g_nDwgAttributeDefinition).at(0));
    EXPECT_EQ(common.m_nPlace, g_nDwgOwnerGiven);
    EXPECT_EQ(common.m_hOwner, SoftPointer(nBlock));
}

TEST(WriteDwgBlocks, ChainsTheAttributesOfAnInsertion) {
    AcDbDatabase database;
    const AcDbObjectId idReference =
        AppendTo(database.ModelSpaceId(), new AcDbBlockReference({}, AddBlock(database, L"B")));
    for (const ACHAR* tag : {L"ONE", L"TWO"})
        AppendAttribute(idReference, new AcDbAttribute({}, L"value", tag));
    const CDwgWritten written(database);
    const std::vector<CDwgRecord> attributes = written.OfType(g_nDwgAttribute);
    ASSERT_EQ(attributes.size(), 2u);
    const std::uint64_t nReference = CDwgHandleMap(database).Of(idReference);
    EXPECT_EQ(CommonOf(attributes[0]).m_hOwner, SoftPointer(nReference));
    EXPECT_EQ(CommonOf(attributes[0]).m_hNext, SoftPointer(attributes[1].m_nHandle));
    const CDwgRecord end = written.OfType(g_nDwgSequenceEnd).at(0);
    EXPECT_EQ(CommonOf(end).m_hOwner, SoftPointer(nReference));
    const CDwgRecord insert = written.Record(nReference);
    EXPECT_EQ(insert.m_arHandles[insert.m_arHandles.size() - 3], SoftPointer(attributes[0].m_nHandle));
    EXPECT_EQ(insert.m_arHandles[insert.m_arHandles.size() - 2], SoftPointer(attributes[1].m_nHandle));
    EXPECT_EQ(insert.m_arHandles.back(), HardOwner(end.m_nHandle));
}

TEST(WriteDwgBlocks, GivesEntitiesTheirColorLayerLinetypeAndExtendedData) {
    AcDbDatabase database;
    auto* const pLine = new AcDbLine;
    pLine->setColorIndex(5);
    pLine->setLinetype(RecordNamed(database.linetypeTableId(), L"ByBlock"));
    const AcDbObjectId id = AppendTo(database.ModelSpaceId(), pLine);
    {
        const CDbOpen<AcDbLine> line(id, AcDb::kForWrite);
        resbuf* const pChain = acutBuildList(1001, L"ACAD", 1000, L"text", 0);
        EXPECT_EQ(line->setXData(pChain), Acad::eOk);
        acutRelRb(pChain);
    }
    const CDwgRecord record = CDwgWritten(database).OfType(g_nDwgLine).at(0);
    const CDwgEntityCommon common = CommonOf(record);
    EXPECT_EQ(common.m_nColor, 5);
    EXPECT_EQ(common.m_nLinetype, g_nDwgByBlock);
    EXPECT_EQ(common.m_hLayer, HardPointer(CStandardHandles::s_nLayer0));
    ASSERT_EQ(record.m_arExtended.size(), 1u);
    EXPECT_EQ(record.m_arExtended[0].m_hApp, HardPointer(CStandardHandles::s_nAcadApp));
}

TEST(WriteDwgBlocks, LeavesErasedEntitiesOut) {
    AcDbDatabase database;
    const AcDbObjectId id = AppendTo(database.ModelSpaceId(), new AcDbLine);
    CDbOpen<AcDbLine>(id, AcDb::kForWrite)->erase();
    const CDwgWritten written(database);
    EXPECT_TRUE(written.OfType(g_nDwgLine).empty());
    EXPECT_EQ(HeaderOf(written, CStandardHandles::s_nModelSpace).m_hFirst, SoftPointer(0));
}
