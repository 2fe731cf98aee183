#include "host/files/dwg_record.h"

#include "tests/host/files/dwg_refusal.h"
#include "tests/host/files/hex_bytes.h"

#include <gtest/gtest.h>

namespace {

const CBytes g_app = HexBytes("50 DD 00 00 00 00 44 A9 04 41 43 41 44 C0 04 10 93 05 00");

CDwgRecord SomeRecord() {
    CDwgRecord record;
    record.m_nType = 0x43;
    record.m_nHandle = 0x1234;
    record.m_arExtended = {{HardPointer(0x12), {1, 2, 3}}, {HardPointer(0x40), CBytes(300, 7)}};
    record.m_data = {{0xAB, 0xC0}, 11};
    record.m_arHandles = {SoftPointer(0x9), {0xC, 0x10}, HardPointer(0)};
    return record;
}

std::string RefusalOfContent(CByteView content, std::uint64_t nHandle) {
    return RefusalOf([&] { ReadDwgRecord(content, nHandle); });
}

} // namespace

TEST(DwgRecord, TakesAKnownObjectApart) {
    const CDwgRecord record = ReadDwgRecord(g_app, 0x12);
    EXPECT_EQ(record.m_nType, 0x43);
    EXPECT_TRUE(record.m_arExtended.empty());
    EXPECT_EQ(record.m_data.m_nCount, 0x74u - 10 - 32 - 16 - 2);
    EXPECT_EQ(record.m_arHandles, (std::vector{SoftPointer(9), HardOwner(0), HardPointer(0)}));
    EXPECT_EQ(WriteDwgRecord(record), g_app);
}

TEST(DwgRecord, KeepsExtendedDataAndBitsThatEndWithinAByte) {
    const CDwgRecord record = SomeRecord();
    EXPECT_EQ(ReadDwgRecord(WriteDwgRecord(record), 0x1234), record);
}

TEST(DwgRecord, HasTheHandleThatTheMapSays) {
    EXPECT_EQ(RefusalOfContent(g_app, 0x13), "Object 13: it has another handle than the object map says.");
}

TEST(DwgRecord, IsRefusedWhenItsPartsReachBeyondIt) {
    EXPECT_EQ(RefusalOfContent({}, 0x12), "Object 12: its references are not where it says.");
    CBytes content = g_app;
    content[2] = 0x3D; // the references would begin at bit 244
    EXPECT_EQ(RefusalOfContent(content, 0x12), "Object 12: its references are not where it says.");
    EXPECT_EQ(RefusalOfContent(CByteView(g_app).first(g_app.size() - 1), 0x12), "");
    content = g_app;
    content[15] = 0xC0; // its first reference would be of twelve bytes
    EXPECT_NE(RefusalOfContent(content, 0x12), "");
}

TEST(DwgRecord, IsRefusedWhenItsExtendedDataReachBeyondIt) {
    CDwgRecord record = SomeRecord();
    CBytes content = WriteDwgRecord(record);
    for (std::size_t nBit = 0; nBit < 64; ++nBit) {
        CBytes damaged = content;
        damaged[nBit / 8] ^= static_cast<std::uint8_t>(0x80 >> nBit % 8);
        RefusalOfContent(damaged, 0x1234); // ends, whatever it says
    }
    record.m_arExtended = {{HardPointer(0x12), CBytes(0x10000)}};
    EXPECT_EQ(RefusalOf([&] { WriteDwgRecord(record); }),
              "Object 1234: its extended data are too large for a file.");
}
