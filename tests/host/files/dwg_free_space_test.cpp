#include "host/files/dwg_free_space.h"

#include "tests/host/files/hex_bytes.h"

#include <gtest/gtest.h>

TEST(DwgFreeSpace, TellsHowManyObjectsThereAreAndWhereTheyBegin) {
    const CBytes section = WriteDwgFreeSpace({0x102, {1, 2}, 0x304});
    EXPECT_EQ(section.size(), g_nDwgFreeSpaceSize);
    EXPECT_EQ(section, HexBytes("00 00 00 00 02 01 00 00 01 00 00 00 02 00 00 00 04 03 00 00 04"
                                "32 00 00 00 00 00 00 00 64 00 00 00 00 00 00 00"
                                "00 02 00 00 00 00 00 00 FF FF FF FF 00 00 00 00"));
}
