#include "host/files/dwg_aux_header.h"

#include "tests/host/files/dwg_refusal.h"

#include <gtest/gtest.h>

TEST(DwgAuxHeader, KeepsSavesTimesAndSeed) {
    const CDwgAuxHeader header{70000, {2451545, 1}, {2451546, 2}, 0x53};
    const CBytes section = WriteDwgAuxHeader(header, {});
    ASSERT_EQ(section.size(), g_nDwgAuxHeaderSize);
    const CDwgAuxHeader back = ReadDwgAuxHeader(section);
    EXPECT_EQ(back.m_nSaves, 70000u);
    EXPECT_EQ(back.m_tdcreate.m_nDay, 2451545u);
    EXPECT_EQ(back.m_tdcreate.m_nMilliseconds, 1u);
    EXPECT_EQ(back.m_tdupdate.m_nDay, 2451546u);
    EXPECT_EQ(back.m_tdupdate.m_nMilliseconds, 2u);
    EXPECT_EQ(back.m_nHandseed, 0x53u);
}

TEST(DwgAuxHeader, BeginsWithItsMarkAndTheWritersVersion) {
    const CBytes section = WriteDwgAuxHeader({}, {});
    EXPECT_EQ(CBytes(section.begin(), section.begin() + 7), (CBytes{0xFF, 0x77, 0x01, 0x17, 0, 0x06, 0}));
}

TEST(DwgAuxHeader, MayBeMissingButNotDamaged) {
    EXPECT_EQ(ReadDwgAuxHeader({}).m_nSaves, 0u);
    CBytes section = WriteDwgAuxHeader({}, {});
    EXPECT_EQ(RefusalOf([&] { ReadDwgAuxHeader(CByteView(section).first(122)); }),
              "Auxiliary header: the section is too short.");
    section[1] = 0;
    EXPECT_EQ(RefusalOf([&] { ReadDwgAuxHeader(section); }), "Auxiliary header: the start mark is missing.");
}
