#include "host/files/bit_reader.h"

#include "host/files/bit_writer.h"

#include <gtest/gtest.h>

#include <bit>

namespace {

/// A stream of a two-bit prefix and then bytes.
CBytes Prefixed(std::uint8_t nPrefix, const CBytes& bytes) {
    CBitWriter writer;
    writer.BB(nPrefix);
    writer.Raw(bytes, bytes.size());
    return writer.Take();
}

} // namespace

TEST(BitReader, ReadsBitsTheMostSignificantFirst) {
    const CBytes bytes{0xD2, 0x80};
    CBitReader reader(bytes);
    bool b = false;
    std::uint8_t nTwo = 0, nFour = 0, nByte = 0;
    reader.B(b);
    reader.BB(nTwo);
    reader.B4(nFour);
    reader.RC(nByte);
    EXPECT_TRUE(b);
    EXPECT_EQ(nTwo, 2);
    EXPECT_EQ(nFour, 9);
    EXPECT_EQ(nByte, 0x40);
    EXPECT_EQ(reader.Left(), 1u);
}

TEST(BitReader, FailsForGoodWhenAskedForWhatIsNotThere) {
    const CBytes bytes{0xFF, 0xFF, 0xFF};
    CBitReader reader(bytes);
    std::uint32_t nLong = 1;
    std::uint8_t nByte = 1;
    reader.RL(nLong);
    EXPECT_TRUE(reader.Failed());
    EXPECT_EQ(nLong, 0u);
    reader.RC(nByte);
    EXPECT_EQ(nByte, 0);
    EXPECT_EQ(reader.Left(), 0u);
}

TEST(BitReader, GivesZeroForEveryCodeOnceItFailed) {
    CBitReader reader(CByteView{});
    reader.Fail();
    double d = 1.0;
    std::uint16_t n = 1;
    std::string strText = "x";
    CDwgHandle handle = HardPointer(1);
    reader.BD(d);
    EXPECT_EQ(d, 0.0);
    reader.DD(d = 1.0, 7.0);
    EXPECT_EQ(d, 0.0);
    reader.BS(n);
    EXPECT_EQ(n, 0);
    reader.T(strText);
    EXPECT_EQ(strText, "");
    reader.H(handle);
    EXPECT_EQ(handle, CDwgHandle{});
}

TEST(BitReader, FailsAtOnceForARangeThatIsNotWithinTheBytes) {
    const CBytes bytes{0, 0};
    EXPECT_TRUE(CBitReader(bytes, 0, 17).Failed());
    EXPECT_TRUE(CBitReader(bytes, 9, 8).Failed());
    EXPECT_FALSE(CBitReader(bytes, 16, 16).Failed());
}

TEST(BitReader, StopsAtTheEndOfItsRangeThoughThereAreMoreBytes) {
    const CBytes bytes{0xFF, 0xFF};
    CBitReader reader(bytes, 4, 11);
    std::uint8_t nByte = 0;
    reader.RC(nByte);
    EXPECT_TRUE(reader.Failed());
}

TEST(BitReader, RefusesThePrefixesThatAreNone) {
    const CBytes bytes{0xC0, 0, 0, 0, 0, 0, 0, 0, 0};
    CBitReader longs(bytes), doubles(bytes);
    std::uint32_t n = 0;
    double d = 0.0;
    longs.BL(n);
    doubles.BD(d);
    EXPECT_TRUE(longs.Failed());
    EXPECT_TRUE(doubles.Failed());
}

TEST(BitReader, ReplacesTheLowBytesOfADefault) {
    const double dDefault = std::bit_cast<double>(std::uint64_t{0x4011223344556677});
    double d = 0.0;
    const CBytes four = Prefixed(1, {1, 2, 3, 4}), six = Prefixed(2, {5, 6, 1, 2, 3, 4});
    CBitReader fourReader(four), sixReader(six);
    fourReader.DD(d, dDefault);
    EXPECT_EQ(std::bit_cast<std::uint64_t>(d), 0x4011223304030201u);
    sixReader.DD(d, dDefault);
    EXPECT_EQ(std::bit_cast<std::uint64_t>(d), 0x4011060504030201u);
}

TEST(BitReader, TakesEndingZerosOffATextAndNoOthers) {
    CBitWriter writer;
    writer.T(std::string_view("a\0b\0\0", 5));
    CBitReader reader(writer.Bytes());
    std::string strText;
    reader.T(strText);
    EXPECT_EQ(strText, std::string("a\0b", 3));
}

TEST(BitReader, RefusesAHandleOfMoreThanEightBytes) {
    const CBytes bytes(12, 0x59);
    CBitReader reader(bytes);
    CDwgHandle handle;
    reader.H(handle);
    EXPECT_TRUE(reader.Failed());
}

TEST(BitReader, RefusesModularNumbersThatNeverEnd) {
    const CBytes bytes(32, 0xFF);
    CBitReader unsignedOnes(bytes), signedOnes(bytes), shorts(bytes);
    std::uint64_t nUnsigned = 0;
    std::int64_t nSigned = 0;
    std::uint32_t nShort = 0;
    unsignedOnes.MC(nUnsigned);
    signedOnes.MC(nSigned);
    shorts.MS(nShort);
    EXPECT_TRUE(unsignedOnes.Failed() && signedOnes.Failed() && shorts.Failed());
}

TEST(BitReader, MakesNoRoomForMoreThanCanBeThere) {
    const CBytes bytes(4, 0);
    CBitReader raw(bytes), list(bytes);
    CBytes target;
    raw.Raw(target, std::size_t{1} << 60);
    EXPECT_TRUE(raw.Failed());
    EXPECT_TRUE(target.empty());
    std::vector<double> items;
    list.List(items, std::size_t{1} << 60, [&](double& d) { list.BD(d); });
    EXPECT_TRUE(list.Failed());
    EXPECT_TRUE(items.empty());
}

TEST(BitReader, ReadsBytesAlignedOrNot) {
    const CBytes bytes{0xAB, 0xCD, 0xEF};
    CBytes target;
    CBitReader aligned(bytes, 8, 24), shifted(bytes, 4, 20);
    aligned.Raw(target, 2);
    EXPECT_EQ(target, (CBytes{0xCD, 0xEF}));
    shifted.Raw(target, 2);
    EXPECT_EQ(target, (CBytes{0xBC, 0xDE}));
}
