#include "host/files/bit_reader.h"

#include <array>
#include <bit>
#include <cstring>

CBitReader::CBitReader(CByteView bytes, std::size_t nBegin, std::size_t nEnd)
    : m_bytes(bytes)
    , m_nAt(nBegin)
    , m_nEnd(nEnd) {
    if (nBegin <= nEnd && nEnd <= bytes.size() * 8) return;
    m_nAt = m_nEnd = 0;
    m_bFailed = true;
}

void CBitReader::Fail() {
    m_bFailed = true;
    m_nAt = m_nEnd;
}

bool CBitReader::Has(std::size_t nBits) {
    if (nBits <= Left()) return true;
    Fail();
    return false;
}

std::uint8_t CBitReader::Bits(unsigned nCount) {
    unsigned nValue = 0;
    if (!Has(nCount)) return 0;
    for (unsigned i = 0; i < nCount; ++i, ++m_nAt)
        nValue = nValue << 1 | (m_bytes[m_nAt / 8] >> (7 - m_nAt % 8) & 1u);
    return static_cast<std::uint8_t>(nValue);
}

void CBitReader::B(bool& b) {
    b = Bits(1) != 0;
}

void CBitReader::RC(std::uint8_t& n) {
    n = 0;
    if (!Has(8)) return;
    const std::size_t nByte = m_nAt / 8, nShift = m_nAt % 8;
    unsigned nValue = m_bytes[nByte] << nShift;
    if (nShift) nValue |= m_bytes[nByte + 1] >> (8 - nShift);
    n = static_cast<std::uint8_t>(nValue);
    m_nAt += 8;
}

void CBitReader::Copy(std::uint8_t* pTo, std::size_t nCount) {
    const std::uint8_t* const pFrom = m_bytes.data() + m_nAt / 8;
    const std::size_t nShift = m_nAt % 8;
    m_nAt += nCount * 8;
    if (nShift == 0) {
        if (nCount) std::memcpy(pTo, pFrom, nCount);
        return;
    }
    for (std::size_t i = 0; i < nCount; ++i)
        pTo[i] = static_cast<std::uint8_t>(pFrom[i] << nShift | pFrom[i + 1] >> (8 - nShift));
}

template <class Value>
void CBitReader::LittleEndian(Value& value, unsigned nBytes) {
    value = 0;
    if (!Has(std::size_t{nBytes} * 8)) return;
    std::array<std::uint8_t, sizeof(Value)> bytes{};
    Copy(bytes.data(), nBytes);
    for (unsigned i = 0; i < nBytes; ++i)
        value = static_cast<Value>(value | static_cast<Value>(bytes[i]) << 8 * i);
}

void CBitReader::RS(std::uint16_t& n) {
    LittleEndian(n, 2);
}

void CBitReader::RSBig(std::uint16_t& n) {
    RS(n);
    n = static_cast<std::uint16_t>(n << 8 | n >> 8);
}

void CBitReader::RL(std::uint32_t& n) {
    LittleEndian(n, 4);
}

void CBitReader::RL(std::int32_t& n) {
    std::uint32_t nBits = 0;
    RL(nBits);
    n = static_cast<std::int32_t>(nBits);
}

void CBitReader::RD(double& d) {
    std::uint64_t nBits = 0;
    LittleEndian(nBits, 8);
    d = std::bit_cast<double>(nBits);
}

void CBitReader::BS(std::uint16_t& n) {
    switch (Bits(2)) {
    case 0:
        return RS(n);
    case 1:
        return LittleEndian(n, 1);
    case 2:
        n = 0;
        return;
    default:
        n = 256;
    }
}

void CBitReader::BS(std::int16_t& n) {
    std::uint16_t nBits = 0;
    BS(nBits);
    n = static_cast<std::int16_t>(nBits);
}

void CBitReader::BL(std::uint32_t& n) {
    n = 0;
    switch (Bits(2)) {
    case 0:
        return RL(n);
    case 1:
        return LittleEndian(n, 1);
    case 2:
        return;
    default:
        Fail();
    }
}

void CBitReader::BL(std::int32_t& n) {
    std::uint32_t nBits = 0;
    BL(nBits);
    n = static_cast<std::int32_t>(nBits);
}

void CBitReader::BD(double& d) {
    d = 0.0;
    switch (Bits(2)) {
    case 0:
        return RD(d);
    case 1:
        d = 1.0;
        return;
    case 2:
        return;
    default:
        Fail();
    }
}

void CBitReader::DD(double& d, double dDefault) {
    std::uint64_t nBits = std::bit_cast<std::uint64_t>(dDefault);
    std::uint16_t nMiddle = 0;
    std::uint32_t nLow = 0;
    switch (Bits(2)) {
    case 0:
        break;
    case 1:
        RL(nLow);
        nBits = (nBits & ~0xFFFFFFFFull) | nLow;
        break;
    case 2:
        RS(nMiddle);
        RL(nLow);
        nBits = (nBits & ~0xFFFFFFFFFFFFull) | static_cast<std::uint64_t>(nMiddle) << 32 | nLow;
        break;
    default:
        return RD(d);
    }
    d = m_bFailed ? 0.0 : std::bit_cast<double>(nBits);
}

void CBitReader::BT(double& dThickness) {
    bool bNone = false;
    B(bNone);
    dThickness = 0.0;
    if (!bNone) BD(dThickness);
}

void CBitReader::H(CDwgHandle& handle) {
    handle = {};
    const std::uint8_t nCode = Bits(4), nBytes = Bits(4);
    if (nBytes > sizeof handle.m_nValue) return Fail();
    if (!Has(std::size_t{nBytes} * 8)) return;
    handle.m_nCode = nCode;
    for (unsigned i = 0; i < nBytes; ++i) {
        std::uint8_t byte = 0;
        RC(byte);
        handle.m_nValue = handle.m_nValue << 8 | byte;
    }
}

void CBitReader::T(std::string& strText) {
    std::uint16_t nBytes = 0;
    CBytes bytes;
    BS(nBytes);
    Raw(bytes, nBytes);
    while (!bytes.empty() && !bytes.back())
        bytes.pop_back();
    strText.assign(bytes.begin(), bytes.end());
}

void CBitReader::MC(std::uint64_t& n) {
    n = 0;
    for (unsigned nShift = 0; nShift < 64; nShift += 7) {
        std::uint8_t byte = 0;
        RC(byte);
        n |= static_cast<std::uint64_t>(byte & 0x7F) << nShift;
        if (!(byte & 0x80)) return;
    }
    n = 0;
    Fail(); // too long for any number
}

void CBitReader::MC(std::int64_t& n) {
    std::uint64_t nValue = 0;
    for (unsigned nShift = 0; nShift < 63; nShift += 7) {
        std::uint8_t byte = 0;
        RC(byte);
        if (byte & 0x80) {
            nValue |= static_cast<std::uint64_t>(byte & 0x7F) << nShift;
            continue;
        }
        nValue |= static_cast<std::uint64_t>(byte & 0x3F) << nShift;
        n = static_cast<std::int64_t>(byte & 0x40 ? 0 - nValue : nValue);
        return;
    }
    n = 0;
    Fail();
}

void CBitReader::MS(std::uint32_t& n) {
    n = 0;
    for (unsigned nShift = 0; nShift <= 15; nShift += 15) {
        std::uint16_t nWord = 0;
        RS(nWord);
        n |= static_cast<std::uint32_t>(nWord & 0x7FFF) << nShift;
        if (!(nWord & 0x8000)) return;
    }
    n = 0;
    Fail(); // no object is of a gigabyte
}

void CBitReader::Raw(CBytes& bytes, std::size_t nCount) {
    bytes.clear();
    if (nCount > Left() / 8) return Fail();
    bytes.resize(nCount);
    Copy(bytes.data(), nCount);
}

void CBitReader::RawBits(CBytes& bytes, std::size_t nBits) {
    Raw(bytes, nBits / 8);
    const auto nLast = static_cast<unsigned>(nBits % 8);
    if (nLast == 0) return;
    const std::uint8_t last = Bits(nLast);
    if (!m_bFailed) bytes.push_back(static_cast<std::uint8_t>(last << (8 - nLast)));
}
