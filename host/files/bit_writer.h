#pragma once
// Values into a drawing file's bit stream: what bit_reader.h reads.

#include "host/files/bytes.h"
#include "host/files/dwg_handle.h"

#include <cstddef>
#include <string_view>

/// Writes bits, the most significant of each byte first, each value in its shortest form that keeps its every
/// bit (a negative zero too). A value that has no form makes the writer fail for good.
class CBitWriter {
public:
    static constexpr bool s_bReads = false;

    bool Failed() const { return m_bFailed; }
    void Fail() { m_bFailed = true; }
    std::size_t At() const { return m_nBits; } ///< bits written
    /// The bytes; zero bits fill the last one.
    const CBytes& Bytes() const { return m_bytes; }
    CBytes Take() { return std::move(m_bytes); }

    void B(bool b) { Bits(b, 1); }
    void BB(std::uint8_t n) { Bits(n, 2); }
    void B4(std::uint8_t n) { Bits(n, 4); } ///< four bits
    void RC(std::uint8_t n);
    void RS(std::uint16_t n) { LittleEndian(n, 2); }
    void RSBig(std::uint16_t n) { RS(static_cast<std::uint16_t>(n << 8 | n >> 8)); }
    void RL(std::uint32_t n) { LittleEndian(n, 4); }
    void RL(std::int32_t n) { RL(static_cast<std::uint32_t>(n)); }
    void RD(double d);
    void BS(std::uint16_t n);
    void BS(std::int16_t n) { BS(static_cast<std::uint16_t>(n)); }
    void BL(std::uint32_t n);
    void BL(std::int32_t n) { BL(static_cast<std::uint32_t>(n)); }
    void BD(double d);
    void DD(double d, double dDefault);
    void BT(double dThickness);
    void H(const CDwgHandle& handle);
    void T(std::string_view text); ///< in the drawing's code page; fails for more than 65535 bytes
    void CMC(std::uint16_t nColor) { BS(nColor); }
    void MC(std::uint64_t n);
    void MC(std::int64_t n);  ///< fails for more than 62 bits and a sign
    void MS(std::uint32_t n); ///< fails for more than 30 bits

    template <class Point>
    void RD2(const Point& pt) {
        RD(pt.x), RD(pt.y);
    }
    template <class Point>
    void RD3(const Point& pt) {
        RD(pt.x), RD(pt.y), RD(pt.z);
    }
    template <class Point>
    void BD2(const Point& pt) {
        BD(pt.x), BD(pt.y);
    }
    template <class Point>
    void BD3(const Point& pt) {
        BD(pt.x), BD(pt.y), BD(pt.z);
    }
    template <class Vector>
    void BE(const Vector& vec) {
        const bool bUsual = IsSame(vec.x, 0.0) && IsSame(vec.y, 0.0) && IsSame(vec.z, 1.0);
        B(bUsual);
        if (!bUsual) BD3(vec);
    }

    /// So many bytes of those given, aligned or not.
    void Raw(CByteView bytes, std::size_t nCount);
    /// The first so many items, each written by a function.
    template <class Items, class Each>
    void List(Items& items, std::size_t nCount, Each each) {
        for (std::size_t i = 0; i < nCount; ++i)
            each(items[i]);
    }
    /// The first so many bits of those given.
    void RawBits(CByteView bytes, std::size_t nBits);
    void FillByte(); ///< with zero bits up to a whole byte
    /// Puts a number in place of what RL wrote at bit nAt.
    void OverwriteRL(std::size_t nAt, std::uint32_t n);

private:
    static bool IsSame(double a, double b); ///< to the bit
    void Bits(unsigned nValue, unsigned nCount);
    void LittleEndian(std::uint64_t nValue, unsigned nBytes);

    CBytes m_bytes;
    std::size_t m_nBits = 0;
    bool m_bFailed = false;
};
