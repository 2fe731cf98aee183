#include "host/files/dwg_crc.h"

#include <gtest/gtest.h>

#include <string_view>

namespace {
CBytes BytesOf(std::string_view text) {
    return {text.begin(), text.end()};
}
} // namespace

TEST(DwgCrc, GivesTheKnownSumsOfTheNineDigits) {
    EXPECT_EQ(DwgCrc(BytesOf("123456789"), 0), 0xBB3D);
    EXPECT_EQ(DwgCrc(BytesOf("123456789")), 0x7E6C);
}

TEST(DwgCrc, OfNothingIsItsSeed) {
    EXPECT_EQ(DwgCrc({}), g_nDwgCrcSeed);
}

TEST(DwgCrc, GoesOnFromAnEarlierSum) {
    EXPECT_EQ(DwgCrc(BytesOf("56789"), DwgCrc(BytesOf("1234"))), 0x7E6C);
}
