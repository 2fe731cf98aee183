#include "host/files/dwg_objects.h"

#include "tests/host/files/dwg_refusal.h"
#include "tests/host/files/hex_bytes.h"

#include <gtest/gtest.h>

namespace {
const CDwgContents g_contents = {{1, {1, 2, 3}}, {0x12, CBytes(40000, 7)}, {0x13, {}}};
}

TEST(DwgObjects, GiveTheirContentsBack) {
    CBytes file(10);
    const CDwgObjectMap map = AppendDwgContents(g_contents, file);
    EXPECT_EQ(map.at(1), 10u);
    EXPECT_EQ(map.at(0x12), 10u + 2 + 3 + 2);
    EXPECT_EQ(map.at(0x13), 10u + 7 + 4 + 40000 + 2);
    EXPECT_EQ(ReadDwgContents(file, map), g_contents);
}

TEST(DwgObjects, StandBetweenTheirSizeAndTheirSum) {
    CBytes file;
    AppendDwgContents({{0x12, HexBytes("50 DD 00 00 00 00 44 A9 04 41 43 41 44 C0 04 10 93 05 00")}}, file);
    EXPECT_EQ(file, HexBytes("13 00 50 DD 00 00 00 00 44 A9 04 41 43 41 44 C0 04 10 93 05 00 50 3A"));
}

TEST(DwgObjects, AreRefusedWhereTheyAreDamaged) {
    CBytes file;
    const CDwgObjectMap map = AppendDwgContents({{0xAB, {1, 2, 3}}}, file);
    const auto refusal = [&](const CDwgObjectMap& where) {
        return RefusalOf([&] { ReadDwgContents(file, where); });
    };
    EXPECT_EQ(refusal({{0xAB, 8}}), "Object AB: it lies beyond the end of the file.");
    EXPECT_EQ(refusal({{0xAB, 6}}), "Object AB: it reaches beyond the end of the file.");
    file[3] ^= 1;
    EXPECT_EQ(refusal(map), "Object AB: the check sum is wrong.");
}

TEST(DwgObjects, MayNotShareBytes) {
    CBytes file;
    AppendDwgContents({{1, {1, 2, 3}}}, file);
    EXPECT_EQ(RefusalOf([&] {
                  ReadDwgContents(file, {{1, 0}, {2, 0}});
              }),
              "Object 2: it shares bytes with another object.");
}
