#include "host/files/dwg_object_map.h"

#include "host/files/bit_writer.h"
#include "host/files/dwg_crc.h"
#include "tests/host/files/dwg_refusal.h"
#include "tests/host/files/hex_bytes.h"

#include <gtest/gtest.h>

namespace {

/// A section of one page with these entries.
CBytes SectionOf(const CBytes& entries) {
    CBitWriter section;
    section.RSBig(static_cast<std::uint16_t>(entries.size() + 2));
    section.Raw(entries, entries.size());
    section.RSBig(DwgCrc(section.Bytes()));
    section.Raw(HexBytes("00 02 01 D0"), 4);
    return section.Take();
}

std::string RefusalOfMap(const CBytes& section) {
    return RefusalOf([&] { ReadDwgObjectMap(section); });
}

} // namespace

TEST(DwgObjectMap, OfNothingIsAnEmptyPage) {
    EXPECT_EQ(WriteDwgObjectMap({}), HexBytes("00 02 01 D0"));
    EXPECT_TRUE(ReadDwgObjectMap(HexBytes("00 02 01 D0")).empty());
}

TEST(DwgObjectMap, StandsInStepsFromObjectToObject) {
    EXPECT_EQ(WriteDwgObjectMap({{1, 1630}, {2, 1651}}), SectionOf(HexBytes("01 DE 0C 01 15")));
    EXPECT_EQ(WriteDwgObjectMap({{0x100, 60}, {0x101, 50}}), SectionOf(HexBytes("80 02 3C 01 4A")));
}

TEST(DwgObjectMap, GoesOnFromPageToPage) {
    CDwgObjectMap map;
    for (std::uint64_t i = 1; i <= 5000; ++i)
        map[i * 3] = static_cast<std::uint32_t>((i * 7919) % 4000000000u);
    const CBytes section = WriteDwgObjectMap(map);
    EXPECT_EQ(ReadDwgObjectMap(section), map);
    std::size_t nPages = 0;
    for (std::size_t nAt = 0; nAt < section.size(); ++nPages) {
        const std::size_t nSize = static_cast<std::size_t>(section[nAt] << 8 | section[nAt + 1]);
        EXPECT_LE(nSize, 2032u);
        nAt += nSize + 2;
    }
    EXPECT_GT(nPages, 5u);
}

TEST(DwgObjectMap, TakesHandlesAndAddressesOfAnySize) {
    const CDwgObjectMap map = {{1, 0xFFFFFFFF}, {0xFFFFFFFFFFFFFFFF, 0}};
    EXPECT_EQ(ReadDwgObjectMap(WriteDwgObjectMap(map)), map);
}

TEST(DwgObjectMap, RefusesHandlesThatDoNotRise) {
    EXPECT_EQ(RefusalOfMap(SectionOf(HexBytes("01 05 00 05"))), "Object map: the handles do not rise.");
    EXPECT_EQ(RefusalOfMap(SectionOf(HexBytes("00 05"))), "Object map: the handles do not rise.");
}

TEST(DwgObjectMap, RefusesAddressesBeyondAnyFile) {
    EXPECT_EQ(RefusalOfMap(SectionOf(HexBytes("01 41"))), "Object map: an address lies beyond any file.");
    EXPECT_EQ(RefusalOfMap(SectionOf(HexBytes("01 FF FF FF FF FF FF FF FF 3F"))),
              "Object map: an address lies beyond any file.");
}

TEST(DwgObjectMap, RefusesWhatEndsTooEarly) {
    EXPECT_EQ(RefusalOfMap({}), "Object map: the section ends within a page.");
    EXPECT_EQ(RefusalOfMap(HexBytes("00 01 00 00")), "Object map: the section ends within a page.");
    EXPECT_EQ(RefusalOfMap(SectionOf(HexBytes("01"))), "Object map: a page ends within an entry.");
    CBytes section = SectionOf(HexBytes("01 05"));
    section.resize(6);
    EXPECT_EQ(RefusalOfMap(section), "Object map: the section ends within a page.");
    section[2] ^= 1;
    EXPECT_EQ(RefusalOfMap(section), "Object map: the check sum of a page is wrong.");
}
