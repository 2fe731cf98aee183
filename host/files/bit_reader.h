#pragma once
// Values out of a drawing file's bit stream. The reader and the writer (bit_writer.h) have the same
// operations, named as the codes of the format are, so that one description of a record serves both ways.

#include "host/files/bytes.h"
#include "host/files/dwg_handle.h"

#include <cstddef>
#include <string>

/// Reads bits, the most significant of each byte first. What is not there, or is no legal code, gives zero
/// and makes the reader fail for good: nothing is ever read past the end. The bytes must outlive the reader.
class CBitReader {
public:
    static constexpr bool s_bReads = true;

    explicit CBitReader(CByteView bytes)
        : CBitReader(bytes, 0, bytes.size() * 8) {}
    /// Reads from bit nBegin to before bit nEnd; it fails at once when these are not within the bytes.
    CBitReader(CByteView bytes, std::size_t nBegin, std::size_t nEnd);

    bool Failed() const { return m_bFailed; }
    void Fail();
    std::size_t At() const { return m_nAt; }            ///< bits, from the first of the bytes
    std::size_t Left() const { return m_nEnd - m_nAt; } ///< bits; 0 once failed

    void B(bool& b);
    void BB(std::uint8_t& n) { n = Bits(2); }
    void B4(std::uint8_t& n) { n = Bits(4); } ///< four bits
    void RC(std::uint8_t& n);
    void RS(std::uint16_t& n);
    void RSBig(std::uint16_t& n); ///< the most significant byte first
    void RL(std::uint32_t& n);
    void RL(std::int32_t& n);
    void RD(double& d);
    void BS(std::uint16_t& n);
    void BS(std::int16_t& n);
    void BL(std::uint32_t& n);
    void BL(std::int32_t& n);
    void BD(double& d);
    void DD(double& d, double dDefault);
    void BT(double& dThickness);
    void H(CDwgHandle& handle);
    void T(std::string& strText); ///< in the drawing's code page; ending zeros are none of the text
    void CMC(std::uint16_t& nColor) { BS(nColor); }
    void MC(std::uint64_t& n);
    void MC(std::int64_t& n);
    void MS(std::uint32_t& n);

    template <class Point>
    void RD2(Point& pt) {
        RD(pt.x), RD(pt.y);
    }
    template <class Point>
    void RD3(Point& pt) {
        RD(pt.x), RD(pt.y), RD(pt.z);
    }
    template <class Point>
    void BD2(Point& pt) {
        BD(pt.x), BD(pt.y);
    }
    template <class Point>
    void BD3(Point& pt) {
        BD(pt.x), BD(pt.y), BD(pt.z);
    }
    template <class Vector>
    void BE(Vector& vec) {
        bool bUsual = false;
        B(bUsual);
        if (bUsual) {
            vec.x = vec.y = 0.0;
            vec.z = 1.0;
        } else {
            BD3(vec);
        }
    }

    /// So many bytes, aligned or not.
    void Raw(CBytes& bytes, std::size_t nCount);
    /// So many bits; zero bits fill the last byte.
    void RawBits(CBytes& bytes, std::size_t nBits);
    /// So many items, each read by a function and at least a bit long.
    template <class Item, class Each>
    void List(std::vector<Item>& items, std::size_t nCount, Each each) {
        items.clear();
        if (nCount > Left()) return Fail();
        for (std::size_t i = 0; i < nCount && !m_bFailed; ++i)
            each(items.emplace_back());
    }

private:
    bool Has(std::size_t nBits); ///< else fails
    std::uint8_t Bits(unsigned nCount);
    void Copy(std::uint8_t* pTo, std::size_t nCount); ///< bytes that are there, aligned or not
    template <class Value>
    void LittleEndian(Value& value, unsigned nBytes);

    CByteView m_bytes;
    std::size_t m_nAt, m_nEnd;
    bool m_bFailed = false;
};
