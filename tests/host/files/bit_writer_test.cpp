#include "host/files/bit_writer.h"

#include "host/files/bit_reader.h"
#include "platform/acad/geometry.h"

#include <gtest/gtest.h>

#include <bit>
#include <limits>

namespace {

/// What comes back of a value that goes through a code and what it took, with a bit before it so that nothing
/// is aligned.
template <class Value, class Write, class Read>
Value Through(const Value& value, Write write, Read read, std::size_t nBits) {
    CBitWriter writer;
    writer.B(true);
    write(writer, value);
    EXPECT_EQ(writer.At(), nBits + 1);
    EXPECT_FALSE(writer.Failed());
    CBitReader reader(writer.Bytes(), 1, writer.At());
    Value back{};
    read(reader, back);
    EXPECT_FALSE(reader.Failed());
    EXPECT_EQ(reader.Left(), 0u);
    return back;
}

std::uint64_t BitsOf(double d) {
    return std::bit_cast<std::uint64_t>(d);
}

#define THROUGH(code, value, bits)                                                                           \
    Through(                                                                                                 \
        value, [](CBitWriter& writer, const auto& v) { writer.code(v); },                                    \
        [](CBitReader& reader, auto& v) { reader.code(v); }, bits)

const double g_arDoubles[] = {-1.0,
                              2.5,
                              -0.0,
                              std::numeric_limits<double>::max(),
                              std::numeric_limits<double>::denorm_min(),
                              std::numeric_limits<double>::infinity(),
                              std::numeric_limits<double>::quiet_NaN()};

} // namespace

TEST(BitWriter, PutsTheMostSignificantBitFirst) {
    CBitWriter writer;
    writer.B(true);
    writer.BB(2);
    writer.B4(0x9);
    EXPECT_EQ(writer.Bytes(), CBytes{0xD2});
    writer.RC(0xFF);
    EXPECT_EQ(writer.Bytes(), (CBytes{0xD3, 0xFE}));
    EXPECT_EQ(writer.At(), 15u);
}

TEST(BitWriter, KeepsSmallNumbersAndBytes) {
    for (const std::uint8_t n : {0, 1, 2, 3})
        EXPECT_EQ(THROUGH(BB, n, 2), n);
    EXPECT_EQ(THROUGH(B4, std::uint8_t{15}, 4), 15);
    EXPECT_EQ(THROUGH(RC, std::uint8_t{0xA7}, 8), 0xA7);
    EXPECT_EQ(THROUGH(RS, std::uint16_t{0xFFFE}, 16), 0xFFFE);
    EXPECT_EQ(THROUGH(RSBig, std::uint16_t{0x1234}, 16), 0x1234);
    EXPECT_EQ(THROUGH(RL, std::uint32_t{0xFFFFFFFE}, 32), 0xFFFFFFFE);
    EXPECT_EQ(THROUGH(RL, std::int32_t{-2}, 32), -2);
}

TEST(BitWriter, WritesRawNumbersWithTheLeastSignificantByteFirst) {
    CBitWriter writer;
    writer.RS(0x1234);
    writer.RSBig(0x1234);
    writer.RL(std::uint32_t{0x12345678});
    EXPECT_EQ(writer.Bytes(), (CBytes{0x34, 0x12, 0x12, 0x34, 0x78, 0x56, 0x34, 0x12}));
}

TEST(BitWriter, ShortensShortsByTheirPrefix) {
    EXPECT_EQ(THROUGH(BS, std::uint16_t{0}, 2), 0);
    EXPECT_EQ(THROUGH(BS, std::uint16_t{256}, 2), 256);
    EXPECT_EQ(THROUGH(BS, std::uint16_t{1}, 10), 1);
    EXPECT_EQ(THROUGH(BS, std::uint16_t{255}, 10), 255);
    EXPECT_EQ(THROUGH(BS, std::uint16_t{257}, 18), 257);
    EXPECT_EQ(THROUGH(BS, std::uint16_t{0xFFFF}, 18), 0xFFFF);
    EXPECT_EQ(THROUGH(BS, std::int16_t{-1}, 18), -1);
    EXPECT_EQ(THROUGH(BS, std::numeric_limits<std::int16_t>::min(), 18), -32768);
    EXPECT_EQ(THROUGH(CMC, std::uint16_t{256}, 2), 256);
}

TEST(BitWriter, ShortensLongsByTheirPrefix) {
    EXPECT_EQ(THROUGH(BL, std::uint32_t{0}, 2), 0u);
    EXPECT_EQ(THROUGH(BL, std::uint32_t{255}, 10), 255u);
    EXPECT_EQ(THROUGH(BL, std::uint32_t{256}, 34), 256u);
    EXPECT_EQ(THROUGH(BL, std::numeric_limits<std::uint32_t>::max(), 34), 0xFFFFFFFFu);
    EXPECT_EQ(THROUGH(BL, std::numeric_limits<std::int32_t>::min(), 34), -2147483647 - 1);
}

TEST(BitWriter, ShortensZeroAndOneAndKeepsEveryOtherDoubleToTheBit) {
    EXPECT_EQ(BitsOf(THROUGH(BD, 0.0, 2)), BitsOf(0.0));
    EXPECT_EQ(THROUGH(BD, 1.0, 2), 1.0);
    for (const double d : g_arDoubles) {
        EXPECT_EQ(BitsOf(THROUGH(BD, d, 66)), BitsOf(d));
        EXPECT_EQ(BitsOf(THROUGH(RD, d, 64)), BitsOf(d));
    }
}

TEST(BitWriter, LeavesOutADoubleThatIsItsDefaultToTheBit) {
    const auto through = [](double d, double dDefault, std::size_t nBits) {
        return Through(
            d, [dDefault](CBitWriter& writer, double v) { writer.DD(v, dDefault); },
            [dDefault](CBitReader& reader, double& v) { reader.DD(v, dDefault); }, nBits);
    };
    EXPECT_EQ(through(12.5, 12.5, 2), 12.5);
    EXPECT_EQ(through(12.5, 13.5, 66), 12.5);
    EXPECT_EQ(BitsOf(through(-0.0, 0.0, 66)), BitsOf(-0.0));
    for (const double d : g_arDoubles)
        EXPECT_EQ(BitsOf(through(d, d, 2)), BitsOf(d));
}

TEST(BitWriter, SaysInOneBitThatThereIsNoThickness) {
    EXPECT_EQ(BitsOf(THROUGH(BT, 0.0, 1)), BitsOf(0.0));
    EXPECT_EQ(THROUGH(BT, 1.0, 3), 1.0);
    EXPECT_EQ(BitsOf(THROUGH(BT, -0.0, 67)), BitsOf(-0.0));
}

TEST(BitWriter, SaysInOneBitThatTheDirectionIsTheZAxis) {
    EXPECT_EQ(THROUGH(BE, AcGeVector3d(0.0, 0.0, 1.0), 1), AcGeVector3d(0.0, 0.0, 1.0));
    EXPECT_EQ(THROUGH(BE, AcGeVector3d(0.0, 1.0, 0.0), 7), AcGeVector3d(0.0, 1.0, 0.0));
    const AcGeVector3d vec = THROUGH(BE, AcGeVector3d(-0.0, 0.0, 1.0), 1 + 66 + 2 + 2);
    EXPECT_EQ(BitsOf(vec.x), BitsOf(-0.0));
}

TEST(BitWriter, KeepsPoints) {
    EXPECT_EQ(THROUGH(BD3, AcGePoint3d(1.0, 0.0, 3.0), 70), AcGePoint3d(1.0, 0.0, 3.0));
    EXPECT_EQ(THROUGH(RD3, AcGePoint3d(1.0, 0.0, 3.0), 192), AcGePoint3d(1.0, 0.0, 3.0));
    const AcGePoint2d bits = THROUGH(BD2, AcGePoint2d(1.0, 0.0), 4);
    const AcGePoint2d raw = THROUGH(RD2, AcGePoint2d(3.0, 4.0), 128);
    EXPECT_TRUE(bits.x == 1.0 && bits.y == 0.0);
    EXPECT_TRUE(raw.x == 3.0 && raw.y == 4.0);
}

TEST(BitWriter, WritesAHandleInAsManyBytesAsItNeeds) {
    EXPECT_EQ(THROUGH(H, HardPointer(0), 8), HardPointer(0));
    EXPECT_EQ(THROUGH(H, SoftOwner(0xFF), 16), SoftOwner(0xFF));
    EXPECT_EQ(THROUGH(H, HardOwner(0x100), 24), HardOwner(0x100));
    EXPECT_EQ(THROUGH(H, SoftPointer(0xFFFFFFFFFFFFFFFF), 72), SoftPointer(0xFFFFFFFFFFFFFFFF));
    CBitWriter writer;
    writer.H(HardPointer(0x1234));
    EXPECT_EQ(writer.Bytes(), (CBytes{0x52, 0x12, 0x34}));
}

TEST(BitWriter, WritesATextByItsBytes) {
    EXPECT_EQ(THROUGH(T, std::string(), 2), "");
    EXPECT_EQ(THROUGH(T, std::string("abc"), 34), "abc");
    EXPECT_EQ(THROUGH(T, std::string(0xFFFF, 'x'), 18 + 8 * 0xFFFF), std::string(0xFFFF, 'x'));
}

TEST(BitWriter, FailsForATextThatIsTooLong) {
    CBitWriter writer;
    writer.T(std::string(0x10000, 'x'));
    EXPECT_TRUE(writer.Failed());
}

TEST(BitWriter, GivesASignedModularNumberRoomForItsSign) {
    EXPECT_EQ(THROUGH(MC, std::int64_t{0x3F}, 8), 0x3F);
    EXPECT_EQ(THROUGH(MC, std::int64_t{0x40}, 16), 0x40);
    EXPECT_EQ(THROUGH(MC, std::int64_t{-0x3F}, 8), -0x3F);
    EXPECT_EQ(THROUGH(MC, std::int64_t{-0x40}, 16), -0x40);
    const std::int64_t nMost = (std::int64_t{1} << 62) - 1;
    EXPECT_EQ(THROUGH(MC, nMost, 72), nMost);
    EXPECT_EQ(THROUGH(MC, -nMost, 72), -nMost);
    CBitWriter writer;
    writer.MC(std::int64_t{1630});
    EXPECT_EQ(writer.Bytes(), (CBytes{0xDE, 0x0C}));
    writer.MC(nMost + 1);
    EXPECT_TRUE(writer.Failed());
}

TEST(BitWriter, WritesUnsignedModularNumbersInSevenBitGroups) {
    EXPECT_EQ(THROUGH(MC, std::uint64_t{0x7F}, 8), 0x7Fu);
    EXPECT_EQ(THROUGH(MC, std::uint64_t{0x80}, 16), 0x80u);
    EXPECT_EQ(THROUGH(MC, std::numeric_limits<std::uint64_t>::max(), 80), 0xFFFFFFFFFFFFFFFFu);
}

TEST(BitWriter, WritesModularShortsInFifteenBitGroups) {
    EXPECT_EQ(THROUGH(MS, std::uint32_t{0x7FFF}, 16), 0x7FFFu);
    EXPECT_EQ(THROUGH(MS, std::uint32_t{0x8000}, 32), 0x8000u);
    EXPECT_EQ(THROUGH(MS, (std::uint32_t{1} << 30) - 1, 32), 0x3FFFFFFFu);
    CBitWriter writer;
    writer.MS(std::uint32_t{1} << 30);
    EXPECT_TRUE(writer.Failed());
}

TEST(BitWriter, TakesBytesAndBitsOfAnotherStreamAsTheyAre) {
    const CBytes bytes{0xAB, 0xCD, 0xE0};
    CBitWriter writer;
    writer.B(false);
    writer.RawBits(bytes, 19);
    EXPECT_EQ(writer.At(), 20u);
    EXPECT_EQ(writer.Bytes(), (CBytes{0x55, 0xE6, 0xF0}));
    writer.FillByte();
    writer.Raw(bytes, 2);
    EXPECT_EQ(writer.Bytes(), (CBytes{0x55, 0xE6, 0xF0, 0xAB, 0xCD}));
}

TEST(BitWriter, OverwritesANumberWhereverItStands) {
    for (unsigned nShift = 0; nShift < 8; ++nShift) {
        CBitWriter writer, expected;
        for (CBitWriter* const pWriter : {&writer, &expected}) {
            for (unsigned i = 0; i < nShift; ++i)
                pWriter->B(i % 2 == 0);
            pWriter->RL(pWriter == &writer ? 0xFFFF00FFu : 0x12345678u);
            pWriter->Raw(CBytes{0xA5, 0x5A, 0xFF}, 3);
        }
        writer.OverwriteRL(nShift, 0x12345678u);
        EXPECT_EQ(writer.Bytes(), expected.Bytes()) << nShift;
        CBitReader reader(writer.Bytes(), nShift, writer.At());
        std::uint32_t nValue = 0;
        CBytes raw;
        reader.RL(nValue);
        reader.Raw(raw, 3);
        EXPECT_EQ(nValue, 0x12345678u);
        EXPECT_EQ(raw, (CBytes{0xA5, 0x5A, 0xFF})) << nShift;
    }
}
