#include "host/files/bit_writer.h"

#include <array>
#include <bit>

bool CBitWriter::IsSame(double a, double b) {
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

void CBitWriter::Bits(unsigned nValue, unsigned nCount) {
    for (unsigned i = nCount; i-- > 0; ++m_nBits) {
        if (m_nBits % 8 == 0) m_bytes.push_back(0);
        if (nValue >> i & 1) m_bytes.back() |= static_cast<std::uint8_t>(0x80u >> m_nBits % 8);
    }
}

void CBitWriter::RC(std::uint8_t n) {
    const std::size_t nShift = m_nBits % 8;
    if (nShift) m_bytes.back() |= static_cast<std::uint8_t>(n >> nShift);
    m_bytes.push_back(static_cast<std::uint8_t>(n << (nShift ? 8 - nShift : 0)));
    m_nBits += 8;
}

void CBitWriter::LittleEndian(std::uint64_t nValue, unsigned nBytes) {
    std::array<std::uint8_t, sizeof nValue> bytes{};
    for (unsigned i = 0; i < nBytes; ++i)
        bytes[i] = static_cast<std::uint8_t>(nValue >> 8 * i);
    Raw(bytes, nBytes);
}

void CBitWriter::RD(double d) {
    LittleEndian(std::bit_cast<std::uint64_t>(d), 8);
}

void CBitWriter::BS(std::uint16_t n) {
    if (n == 0) return Bits(2, 2);
    if (n == 256) return Bits(3, 2);
    Bits(n < 256, 2);
    LittleEndian(n, n < 256 ? 1 : 2);
}

void CBitWriter::BL(std::uint32_t n) {
    if (n == 0) return Bits(2, 2);
    Bits(n < 256, 2);
    LittleEndian(n, n < 256 ? 1 : 4);
}

void CBitWriter::BD(double d) {
    if (IsSame(d, 0.0)) return Bits(2, 2);
    if (d == 1.0) return Bits(1, 2);
    Bits(0, 2);
    RD(d);
}

void CBitWriter::DD(double d, double dDefault) {
    if (IsSame(d, dDefault)) return Bits(0, 2);
    Bits(3, 2);
    RD(d);
}

void CBitWriter::BT(double dThickness) {
    const bool bNone = IsSame(dThickness, 0.0);
    B(bNone);
    if (!bNone) BD(dThickness);
}

void CBitWriter::H(const CDwgHandle& handle) {
    const unsigned nBytes = (static_cast<unsigned>(std::bit_width(handle.m_nValue)) + 7) / 8;
    Bits(handle.m_nCode, 4);
    Bits(nBytes, 4);
    for (unsigned i = nBytes; i-- > 0;)
        RC(static_cast<std::uint8_t>(handle.m_nValue >> 8 * i));
}

void CBitWriter::T(std::string_view text) {
    if (text.size() > 0xFFFF) {
        m_bFailed = true;
        text = {};
    }
    BS(static_cast<std::uint16_t>(text.size()));
    Raw({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()}, text.size());
}

void CBitWriter::MC(std::uint64_t n) {
    for (; n > 0x7F; n >>= 7)
        RC(static_cast<std::uint8_t>(n | 0x80));
    RC(static_cast<std::uint8_t>(n));
}

void CBitWriter::MC(std::int64_t n) {
    const bool bNegative = n < 0;
    std::uint64_t nLeft = bNegative ? 0 - static_cast<std::uint64_t>(n) : static_cast<std::uint64_t>(n);
    m_bFailed |= nLeft >> 62 != 0;
    for (; nLeft > 0x3F; nLeft >>= 7)
        RC(static_cast<std::uint8_t>(nLeft | 0x80));
    RC(static_cast<std::uint8_t>(nLeft | (bNegative ? 0x40 : 0)));
}

void CBitWriter::MS(std::uint32_t n) {
    m_bFailed |= n >> 30 != 0;
    if (n > 0x7FFF) RS(static_cast<std::uint16_t>(n | 0x8000));
    RS(static_cast<std::uint16_t>((n > 0x7FFF ? n >> 15 : n) & 0x7FFF));
}

void CBitWriter::Raw(CByteView bytes, std::size_t nCount) {
    const std::size_t nShift = m_nBits % 8, nOld = m_bytes.size();
    m_bytes.insert(m_bytes.end(), bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(nCount));
    m_nBits += nCount * 8;
    if (nShift == 0) return;
    std::uint8_t* const pTo = m_bytes.data() + nOld - 1; // the byte that is begun
    for (std::size_t i = 0; i < nCount; ++i) {
        pTo[i] |= static_cast<std::uint8_t>(bytes[i] >> nShift);
        pTo[i + 1] = static_cast<std::uint8_t>(bytes[i] << (8 - nShift));
    }
}

void CBitWriter::OverwriteRL(std::size_t nAt, std::uint32_t n) {
    for (unsigned i = 0; i < 32; ++i, ++nAt) {
        const unsigned nMask = 0x80u >> nAt % 8, nBit = i / 8 * 8 + 7 - i % 8;
        std::uint8_t& byte = m_bytes[nAt / 8];
        byte = static_cast<std::uint8_t>(n >> nBit & 1 ? byte | nMask : byte & ~nMask);
    }
}

void CBitWriter::RawBits(CByteView bytes, std::size_t nBits) {
    Raw(bytes, nBits / 8);
    if (nBits % 8) Bits(bytes[nBits / 8] >> (8 - nBits % 8), nBits % 8);
}

void CBitWriter::FillByte() {
    m_nBits = m_bytes.size() * 8;
}
