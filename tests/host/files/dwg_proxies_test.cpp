#include "host/files/dwg_proxies.h"

#include "host/files/dwg_drawing_reader.h"
#include "host/files/dwg_drawing_writer.h"
#include "platform/acad/db_stub.h"
#include "tests/host/files/dwg_mark_class.h"
#include "tests/host/files/dwg_refusal.h"

#include <optional>

namespace {

CDwgFile ThroughBytes(const AcDbDatabase& database) {
    return ReadDwgFile(WriteDwgFile(DwgFileOf(database)));
}

AcDbObjectId FirstOf(const AcDbDatabase& database) {
    return CDbOpen<AcDbBlockTableRecord>(database.ModelSpaceId())->EntityIds().at(0);
}

CDwgFile FileWithMark() {
    const CMarkClass markClass;
    AcDbDatabase database;
    FillWithMark(database);
    return ThroughBytes(database);
}

/// The record of the mark in a file.
CDwgRecord MarkIn(const CDwgFile& file) {
    for (const CDwgClass& entry : file.m_arClasses)
        if (entry.m_strClassName == "CMarkEntity")
            for (const auto& [nHandle, content] : file.m_contents)
                if (CDwgRecord record = ReadDwgRecord(content, nHandle); record.m_nType == entry.m_nNumber)
                    return record;
    return {};
}

} // namespace

TEST(DwgProxies, AreEntitiesOfTheirClassWhereItIsKnown) {
    const CMarkClass markClass;
    AcDbDatabase database;
    FillWithMark(database);
    const CDwgFile file = ThroughBytes(database);
    ASSERT_EQ(file.m_arClasses.size(), 4u);
    EXPECT_EQ(file.m_arClasses[3], (CDwgClass{503, 0x401, "Marks", "CMarkEntity", "MARK", false, true}));
    ExpectMark(*DrawingOfDwg(file));
}

TEST(DwgProxies, StandForEntitiesOfAClassThatIsNotKnownAndAreWrittenBackUnchanged) {
    const CDwgFile file = FileWithMark();
    const auto pDrawing = DrawingOfDwg(file);
    {
        const CDbOpen<AcDbProxyEntity> proxy(FirstOf(*pDrawing));
        ASSERT_TRUE(proxy);
        EXPECT_STREQ(proxy->originalClassName(), L"CMarkEntity");
        EXPECT_STREQ(proxy->originalDxfName(), L"MARK");
        EXPECT_STREQ(proxy->applicationDescription(), L"Marks");
        EXPECT_EQ(proxy->colorIndex(), 3);
        ASSERT_TRUE(proxy->Picture());
        EXPECT_EQ(ExtentsOf(*proxy->Picture()).maxPoint().x, 5.0);
    }
    const CDwgFile again = ThroughBytes(*pDrawing);
    EXPECT_EQ(MarkIn(again), MarkIn(file));
    EXPECT_EQ(again.m_arClasses, file.m_arClasses);
    EXPECT_EQ(again.m_contents, file.m_contents);
    const CMarkClass markClass;
    ExpectMark(*DrawingOfDwg(again));
}

TEST(DwgProxies, OfAModuleThatWasUnloadedAreWrittenInTheirClassesOwnCodes) {
    const CDwgFile file = FileWithMark();
    AcDbDatabase database;
    {
        const CMarkClass markClass;
        FillWithMark(database);
    }
    const CDwgFile unloaded = ThroughBytes(database);
    EXPECT_EQ(MarkIn(unloaded).m_data, MarkIn(file).m_data);
    EXPECT_EQ(MarkIn(unloaded).m_arHandles, MarkIn(file).m_arHandles);
    EXPECT_TRUE(unloaded.m_arClasses.at(3).m_bWasProxy);
    const CMarkClass markClass;
    ExpectMark(*DrawingOfDwg(unloaded));
}

TEST(DwgProxies, BecomeEntitiesWhenTheirClassComesToAnOpenDrawing) {
    const auto pDrawing = DrawingOfDwg(FileWithMark());
    const AcDbObjectId idLayer = AddRecord(pDrawing->layerTableId(), L"sheets", new AcDbLayerTableRecord);
    CDbOpen<AcDbEntity>(FirstOf(*pDrawing), AcDb::kForWrite)->setLayer(pDrawing->clayer());
    {
        const CMarkClass markClass;
        ExpectMark(*pDrawing);
    }
    CDbOpen<AcDbEntity>(FirstOf(*pDrawing), AcDb::kForWrite)->setLayer(idLayer);
    const CMarkClass markClass;
    EXPECT_EQ(PeekObject<AcDbEntity>(FirstOf(*pDrawing))->layerId(), idLayer);
    EXPECT_EQ(PeekObject<AcDbEntity>(FirstOf(*pDrawing))->isA(), CMarkEntity::s_pClass);
}

TEST(DwgProxies, SavedAndOpenedWithoutTheClassAreItsEntitiesAgain) {
    AcDbDatabase database;
    {
        const CMarkClass markClass;
        FillWithMark(database);
    }
    const auto pWithout = DrawingOfDwg(ThroughBytes(database));
    const CDwgFile again = ThroughBytes(*pWithout);
    const CMarkClass markClass;
    ExpectMark(*DrawingOfDwg(again));
}

TEST(DwgProxies, LetAChangeThatWasMadeWithoutTheClassBeUndoneWithIt) {
    const auto pDrawing = DrawingOfDwg(FileWithMark());
    pDrawing->UndoLog().BeginStep();
    CDbOpen<AcDbEntity>(FirstOf(*pDrawing), AcDb::kForWrite)->setColorIndex(5);
    const CMarkClass markClass;
    EXPECT_EQ(PeekObject<AcDbEntity>(FirstOf(*pDrawing))->colorIndex(), 5);
    EXPECT_EQ(pDrawing->UndoLog().Undo(1), 1);
    ExpectMark(*pDrawing);
}

TEST(DwgProxies, StayWhereTheClassReadsOtherData) {
    CDwgFile file = FileWithMark();
    CDwgRecord record = MarkIn(file);
    record.m_arHandles.push_back(SoftPointer(0));
    file.m_contents[record.m_nHandle] = WriteDwgRecord(record);
    const CMarkClass markClass;
    const auto pDrawing = DrawingOfDwg(file);
    EXPECT_TRUE(PeekObject<AcDbProxyEntity>(FirstOf(*pDrawing)));
    EXPECT_EQ(MarkIn(ThroughBytes(*pDrawing)), record);
}

TEST(DwgProxies, AreClonedWithTheirReferences) {
    const auto pDrawing = DrawingOfDwg(FileWithMark());
    AcDbDatabase* pOther = nullptr;
    ASSERT_EQ(pDrawing->wblock(pOther), Acad::eOk);
    const std::unique_ptr<AcDbDatabase> pClone(pOther);
    const CDwgFile file = ThroughBytes(*pClone);
    const CMarkClass markClass;
    ExpectMark(*DrawingOfDwg(file));
}

TEST(DwgProxies, AreRefusedWhereTheFileHasNoClassNumberLeft) {
    AcDbDatabase empty;
    CDwgFile file = DwgFileOf(empty);
    file.m_arClasses.push_back({65535, 0, "Last", "CLast", "LAST", false, true});
    const auto pDrawing = DrawingOfDwg(file);
    EXPECT_EQ(RefusalOf([&] { DwgFileOf(*pDrawing); }), "");
    const CMarkClass markClass;
    FillWithMark(*pDrawing);
    EXPECT_EQ(RefusalOf([&] { DwgFileOf(*pDrawing); }),
              "Classes: the last number is taken, another class has no room.");
}
