#include "host/files/dwg_reading.h"

#include "host/files/dwg_extended_data.h"
#include "host/files/dwg_handle_map.h"
#include "tests/host/files/dwg_refusal.h"
#include "tests/host/files/dwg_sample_drawing.h"

#include <gtest/gtest.h>

namespace {

const CDrawingText g_text(g_nChinesePage);

/// A file with one object, whose content does not matter.
std::shared_ptr<const CDwgOrigin> OriginWith(std::uint64_t nHandle) {
    CDwgFile file;
    CDwgRecord record;
    record.m_nHandle = nHandle;
    file.m_contents[nHandle] = WriteDwgRecord(record);
    return std::make_shared<const CDwgOrigin>(file);
}

} // namespace

TEST(IdentifyDwg, GivesAnObjectTheHandleOfTheFileAndOnlyTheFirst) {
    AcDbDatabase database;
    CDwgReading reading{database, OriginWith(0x100), {}};
    const AcDbObjectId id = AppendTo(database.ModelSpaceId(), new AcDbLine);
    IdentifyDwg(reading, id, 0x100);
    EXPECT_EQ(id.handle(), AcDbHandle(0x100));
    IdentifyDwg(reading, id, 0x101);
    EXPECT_EQ(id.handle(), AcDbHandle(0x100));
    EXPECT_EQ(reading.IdOf(0x100), id);
    EXPECT_EQ(reading.IdOf(HardPointer(0x101)), id);
    EXPECT_TRUE(reading.IdOf(0x102).isNull());
}

TEST(ReadDwgExtendedData, GivesAnObjectWhatKnownApplicationsHungOnIt) {
    AcDbDatabase database;
    CDwgReading reading{database, std::make_shared<const CDwgOrigin>(CDwgFile()), {}};
    reading.m_ids[0x12] = RecordNamed(database.regAppTableId(), L"ACAD");
    reading.m_ids[0x10] = database.clayer();
    CDwgRecord record;
    const CDwgExtendedContext context{
        g_text, g_nDwgAnsi936, [](const std::wstring&) { return std::uint64_t{0x10}; }, {}};
    const CBytes packed = PackExtendedData({{1000, L"text"}, {1003, L"0"}}, context);
    record.m_arExtended = {{HardPointer(0x12), packed}, {HardPointer(0x99), packed}};
    AcDbLine line;
    ReadDwgExtendedData(line, record, reading);
    ASSERT_EQ(line.XData().Apps().size(), 1u);
    const CXDataOfApp& app = line.XData().Apps()[0];
    EXPECT_EQ(app.m_idApp, reading.m_ids[0x12]);
    ASSERT_EQ(app.m_arItems.size(), 2u);
    EXPECT_EQ(std::get<std::wstring>(app.m_arItems[0].m_value), L"text");
    EXPECT_EQ(std::get<std::wstring>(app.m_arItems[1].m_value), L"0");
}

TEST(ReadDwgValue, RefusesARecordThatIsShorterOrLonger) {
    const auto file = [](auto& io, auto& value) { io.RC(value); };
    CDwgRecord record;
    record.m_nHandle = 0x60;
    record.m_data = {{7}, 8};
    EXPECT_EQ(ReadDwgValue<std::uint8_t>(record, file), 7);
    const auto refusal = [&] { return RefusalOf([&] { ReadDwgValue<std::uint8_t>(record, file); }); };
    record.m_data = {{7, 0}, 9};
    EXPECT_EQ(refusal(), "Object 60: its data are not those of its class.");
    record.m_data = {{7}, 7};
    EXPECT_EQ(refusal(), "Object 60: its data are not those of its class.");
}
