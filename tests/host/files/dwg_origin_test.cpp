#include "host/files/dwg_origin.h"

#include "host/files/dwg_blocks.h"
#include "host/files/dwg_curves.h"
#include "host/files/dwg_drawing_reader.h"
#include "host/files/dwg_drawing_writer.h"
#include "host/files/dwg_table_records.h"
#include "host/files/dwg_unknown.h"
#include "platform/acad/db_proxy.h"
#include "platform/acad/db_stub.h"
#include "tests/host/files/dwg_foreign_file.h"
#include "tests/host/files/dwg_sample_drawing.h"
#include "tests/host/files/dwg_written.h"

namespace {

CDwgFile SavedAgain(const CDwgFile& file) {
    return ReadDwgFile(WriteDwgFile(DwgFileOf(*DrawingOfDwg(ReadDwgFile(WriteDwgFile(file))))));
}

AcDbObjectId IdOf(const AcDbDatabase& database, std::uint64_t nHandle) {
    AcDbObjectId id;
    database.getAcDbObjectId(id, AcDbHandle(nHandle));
    return id;
}

void Erase(AcDbObjectId id) {
    CDbOpen<AcDbObject>(id, AcDb::kForWrite)->erase();
}

} // namespace

/// Whether the chain is told by handles alone or by references.
class DwgOrigin : public testing::TestWithParam<bool> {};
INSTANTIATE_TEST_SUITE_P(Chains, DwgOrigin, testing::Bool());

TEST_P(DwgOrigin, LetsEveryObjectOfAnotherProgramsFileBeWrittenBackToTheBit) {
    const CDwgFile file = ForeignFile(GetParam());
    auto expected = RecordsOf(file);
    const auto again = RecordsOf(SavedAgain(file));
    // The line that only its owner knew of stands at the end of the chain now.
    for (const std::uint64_t nChanged : {CForeign::s_nModelSpace, CForeign::s_nPolyline, CForeign::s_nLoose})
        expected.erase(nChanged);
    for (const auto& [nHandle, record] : expected) {
        ASSERT_TRUE(again.contains(nHandle)) << std::hex << nHandle;
        EXPECT_EQ(again.at(nHandle), record) << std::hex << nHandle;
    }
    EXPECT_EQ(again.size(), expected.size() + 3);
    const auto header = Filed<CDwgBlockHeader>(again.at(CForeign::s_nModelSpace), DWG_FILED(FileBlockHeader));
    EXPECT_EQ(header.m_hLast, SoftPointer(CForeign::s_nLoose));
    EXPECT_EQ(header.m_strDescription, "All");
    EXPECT_EQ(header.m_arPreview, (CBytes{4, 5}));
    EXPECT_EQ(RecordsOf(SavedAgain(SavedAgain(file))), again);
}

TEST(DwgOriginOf, KeepsHeaderClassesAndWhatElseAFileHas) {
    const CDwgFile file = ForeignFile(false), again = SavedAgain(file);
    EXPECT_EQ(again.m_identity, file.m_identity);
    EXPECT_EQ(again.m_nSaves, file.m_nSaves);
    EXPECT_EQ(again.m_arPreview, file.m_arPreview);
    EXPECT_EQ(again.m_bMetric, file.m_bMetric);
    EXPECT_EQ(again.m_arClasses, file.m_arClasses);
    EXPECT_EQ(WriteDwgVariables(again.m_variables), WriteDwgVariables(file.m_variables));
    EXPECT_EQ(DwgOriginOf(AcDbDatabase()), nullptr);
}

TEST(DwgOriginOf, LetsTextsBeWrittenInTheCodePageOfTheFile) {
    const auto pDrawing = DrawingOfDwg(ForeignFile(false));
    AddRecord(pDrawing->layerTableId(), L"\u00E9\u571F", new AcDbLayerTableRecord);
    const CDwgWritten written(*pDrawing);
    const auto layer = Filed<CDwgLayerRecord>(written.OfType(g_nDwgLayer).back(), DWG_FILED(FileLayer));
    EXPECT_EQ(layer.m_strName, "\xE9\\U+571F");
    EXPECT_GE(written.OfType(g_nDwgLayer).back().m_nHandle, 0x400u);
    const auto groups = CDbOpen<AcDbDictionary>(IdOf(*pDrawing, 0x2E))->Entries();
    ASSERT_EQ(groups.size(), 1u);
    EXPECT_EQ(groups[0].first, L"Gr\u00FCn");
    EXPECT_EQ(groups[0].second, IdOf(*pDrawing, CForeign::s_nGroup));
}

TEST(DwgOriginOf, KeepsWhatADrawingDoesNotHoldOfAnEntityThatIsChanged) {
    const auto pDrawing = DrawingOfDwg(ForeignFile(false));
    CDbOpen<AcDbLine>(IdOf(*pDrawing, CForeign::s_nLine), AcDb::kForWrite)->setEndPoint({9.0, 9.0, 0.0});
    CDbOpen<AcDbEntity>(IdOf(*pDrawing, CForeign::s_nCircle), AcDb::kForWrite)->setColorIndex(4);
    const CDwgWritten written(*pDrawing);
    CDwgEntityCommon common;
    const auto line = Filed<CDwgLine>(written.Record(CForeign::s_nLine), [&](auto& io, auto& value) {
        FileEntityCommon(io, common);
        FileLine(io, value);
    });
    EXPECT_EQ(line.m_ptEnd, AcGePoint3d(9.0, 9.0, 0.0));
    EXPECT_EQ(line.m_dThickness, 3.0);
    EXPECT_EQ(line.m_vecExtrusion, AcGeVector3d(0.0, 1.0, 0.0));
    EXPECT_EQ(common.m_nLineweight, 7);
    EXPECT_EQ(common.m_hExtensions, HardOwner(CForeign::s_nExtensions));
    const CDwgRecord circle = written.Record(CForeign::s_nCircle);
    CDwgRecordReader reader(circle);
    FileEntityCommon(reader, common);
    EXPECT_EQ(common.m_nColor, 4);
    EXPECT_EQ(common.m_dLinetypeScale, 0.5);
}

TEST(DwgOriginOf, LetsWhatBelongsToAnErasedEntityGoWithIt) {
    const auto pDrawing = DrawingOfDwg(ForeignFile(false));
    Erase(IdOf(*pDrawing, CForeign::s_nLine));
    Erase(IdOf(*pDrawing, CForeign::s_nPolyline));
    const CDwgWritten written(*pDrawing);
    for (const std::uint64_t nGone : {CForeign::s_nLine, CForeign::s_nExtensions, CForeign::s_nXrecord,
                                      CForeign::s_nPolyline, CForeign::s_nVertex1, CForeign::s_nSequenceEnd})
        EXPECT_FALSE(written.File().m_contents.contains(nGone)) << std::hex << nGone;
    const CDwgRecord hatch = written.Record(CForeign::s_nHatch);
    ASSERT_GE(hatch.m_arHandles.size(), 4u);
    EXPECT_EQ(hatch.m_arHandles[hatch.m_arHandles.size() - 4], SoftPointer(0));     // to the line
    EXPECT_EQ(hatch.m_arHandles[hatch.m_arHandles.size() - 2], SoftPointer(0x3F0)); // to what never was
}

TEST(DwgOriginOf, LosesNoEntityToABlockWhoseEndsAreWronglyLinked) {
    CDwgFile file = ForeignFile(false);
    CBytes& content = file.m_contents.at(CForeign::s_nModelSpace);
    auto header =
        Filed<CDwgBlockHeader>(ReadDwgRecord(content, CForeign::s_nModelSpace), DWG_FILED(FileBlockHeader));
    header.m_hBlock = HardOwner(CForeign::s_nLine);
    header.m_hBlockEnd = HardOwner(0);
    content = WriteDwgRecord(
        DwgRecordOf(g_nDwgBlockHeader, CForeign::s_nModelSpace, header, DWG_FILED(FileBlockHeader)));
    const auto again = RecordsOf(SavedAgain(file));
    EXPECT_EQ(again.at(CForeign::s_nLine), RecordsOf(file).at(CForeign::s_nLine));
    const auto mended = Filed<CDwgBlockHeader>(again.at(CForeign::s_nModelSpace), DWG_FILED(FileBlockHeader));
    EXPECT_EQ(again.at(mended.m_hBlock.m_nValue).m_nType, g_nDwgBlock);
    EXPECT_EQ(again.at(mended.m_hBlockEnd.m_nValue).m_nType, g_nDwgBlockEnd);
}

TEST(DwgOriginOf, IsLeftBehindByACopyInAnotherDrawing) {
    const auto pDrawing = DrawingOfDwg(ForeignFile(false));
    AcDbDatabase other;
    AcDbIdMapping mapping;
    AcDbObjectIdArray ids;
    for (const std::uint64_t nHandle : {CForeign::s_nHatch, CForeign::s_nPolyline})
        ids.append(IdOf(*pDrawing, nHandle));
    ASSERT_EQ(pDrawing->wblockCloneObjects(ids, other.ModelSpaceId(), mapping, AcDb::kDrcIgnore), Acad::eOk);
    const CDwgWritten written(other);
    const CDwgRecord hatch = written.OfType(0x4E).at(0), polyline = written.OfType(0x0F).at(0);
    EXPECT_EQ(hatch.m_arHandles[hatch.m_arHandles.size() - 2], SoftPointer(0));
    ASSERT_EQ(written.OfType(0x0A).size(), 2u);
    const std::uint64_t nFirst = written.OfType(0x0A)[0].m_nHandle, nEnd = written.OfType(6).at(0).m_nHandle;
    const std::vector own(polyline.m_arHandles.end() - 3, polyline.m_arHandles.end());
    EXPECT_EQ(own, (std::vector{SoftPointer(nFirst), SoftPointer(nFirst + 1), HardOwner(nEnd)}));
}

TEST(UnknownInDwg, TellsEachKindOnceWithItsNumber) {
    const auto pDrawing = DrawingOfDwg(ForeignFile(false));
    std::vector<CDwgUnknown> entities;
    for (const CDwgUnknown& kind : UnknownInDwg(*pDrawing))
        if (kind.m_bEntities) entities.push_back(kind);
    EXPECT_EQ(entities, (std::vector<CDwgUnknown>{{L"SEQEND", 6, true, 1},
                                                  {L"VERTEX", 0x0A, true, 2},
                                                  {L"POLYLINE", 0x0F, true, 1},
                                                  {L"CIRCLE", 0x12, true, 1},
                                                  {L"HATCH", 0x4E, true, 1},
                                                  {L"FMARK", CForeign::s_nMarkClass, true, 1}}));
    EXPECT_TRUE(UnknownInDwg(AcDbDatabase()).empty());
}
