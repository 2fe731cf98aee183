#include "tests/host/files/dwg_structure.h"

#include "host/files/bit_reader.h"
#include "host/files/dwg_crc.h"
#include "tests/host/files/hex_bytes.h"

#include <algorithm>

namespace {

const CBytes g_secondStart = HexBytes("D47B21CE28939FBF53244009123CAA01");
const CBytes g_secondEnd = HexBytes("2B84DE31D76C6040ACDBBFF6EDC355FE");

std::uint32_t Number(CByteView bytes, std::size_t nAt, int nBytes, bool bBig = false) {
    std::uint32_t nValue = 0;
    for (int i = 0; i < nBytes; ++i)
        nValue |= std::uint32_t{bytes[nAt + static_cast<std::size_t>(i)]} << 8 * (bBig ? nBytes - 1 - i : i);
    return nValue;
}

bool Holds(CByteView bytes, std::size_t nAt, const CBytes& expected) {
    return nAt + expected.size() <= bytes.size() &&
           std::ranges::equal(bytes.subspan(nAt, expected.size()), expected);
}

/// Faults are collected as lines.
class CFaults {
public:
    explicit CFaults(const CBytes& file)
        : m_file(file) {}

    std::string Find() {
        Check(Holds(m_file, 0, HexBytes("414331303135")), "version");
        Check(Number(m_file, 0x15, 4) == 6, "six records");
        Check(Number(m_file, 0x4F, 2) == DwgCrc(CByteView(m_file).first(0x4F)), "file header sum");
        Check(Holds(m_file, 0x51, HexBytes("95A04E2899821AE55E41E05F9D3A4D00")), "file header mark");
        for (std::size_t i = 0; i < g_nDwgSections; ++i) {
            Check(m_file[0x19 + 9 * i] == i, "record number");
            m_sections[i] = {Number(m_file, 0x1A + 9 * i, 4), Number(m_file, 0x1E + 9 * i, 4)};
            Cover(m_sections[i].m_nAddress, m_sections[i].m_nSize);
        }
        Check(Holds(m_file, Number(m_file, 0x0D, 4), HexBytes("1F256D07D43628289D57CA3F9D44102B")),
              "preview mark");
        CheckMarked(m_sections[0], "CF7B1F23FDDE38A95F7C68B84E6D335F", "3084E0DC0221C756A0839747B192CCA0");
        CheckMarked(m_sections[1], "8DA1C4B8C4A9F8C5C0DCF45FE7CFB68A", "725E3B473B56073A3F230BA018304975");
        CheckMap();
        Check(m_sections[3].m_nSize == 53 && m_sections[4].m_nSize == 4 && m_sections[5].m_nSize == 123,
              "sizes");
        CheckSecondHeader();
        std::sort(m_covered.begin(), m_covered.end());
        for (std::size_t i = 1; i < m_covered.size(); ++i)
            Check(m_covered[i - 1].second <= m_covered[i].first, "parts overlap");
        return m_strFaults;
    }

private:
    void Check(bool bHolds, const std::string& strWhat) {
        if (!bHolds) m_strFaults += strWhat + "\n";
    }
    void Cover(std::size_t nAt, std::size_t nSize) {
        Check(nAt + nSize <= m_file.size(), "part beyond the end");
        m_covered.emplace_back(nAt, nAt + nSize);
    }

    void CheckMarked(const CDwgLocator& place, const char* pStart, const char* pEnd) {
        const std::size_t nAt = place.m_nAddress, nData = Number(m_file, nAt + 16, 4);
        Check(place.m_nSize == nData + 38, "section size");
        Check(Holds(m_file, nAt, HexBytes(pStart)) && Holds(m_file, nAt + nData + 22, HexBytes(pEnd)),
              "section marks");
        Check(Number(m_file, nAt + 20 + nData, 2) == DwgCrc(CByteView(m_file).subspan(nAt + 16, nData + 4)),
              "section sum");
    }

    void CheckMap() {
        std::size_t nAt = m_sections[2].m_nAddress, nSize = 0;
        do {
            nSize = Number(m_file, nAt, 2, true);
            const CByteView page = CByteView(m_file).subspan(nAt, nSize);
            Check(Number(m_file, nAt + nSize, 2, true) == DwgCrc(page), "page sum");
            Check(nSize <= 2034, "page size");
            CheckPage(page.subspan(2));
            nAt += nSize + 2;
        } while (nSize > 2);
        Check(nAt == m_sections[2].m_nAddress + m_sections[2].m_nSize, "map size");
    }

    void CheckPage(CByteView entries) {
        CBitReader bits(entries);
        std::uint64_t nHandle = 0;
        std::int64_t nAddress = 0;
        while (bits.Left()) {
            std::uint64_t nHandleStep = 0;
            std::int64_t nAddressStep = 0;
            bits.MC(nHandleStep);
            bits.MC(nAddressStep);
            CheckObject(nHandle += nHandleStep, static_cast<std::size_t>(nAddress += nAddressStep));
        }
    }

    void CheckObject(std::uint64_t nHandle, std::size_t nAt) {
        std::uint32_t nSize = 0, nBits = 0;
        std::uint16_t nType = 0;
        CDwgHandle own;
        CBitReader bits(CByteView(m_file).subspan(nAt));
        bits.MS(nSize);
        const std::size_t nContent = bits.At() / 8;
        bits.BS(nType);
        bits.RL(nBits);
        bits.H(own);
        Cover(nAt, nContent + nSize + 2);
        const std::string strObject = "object " + std::to_string(nHandle);
        Check(nHandle > m_nLastHandle, strObject + " out of order");
        Check(own == CDwgHandle{0, nHandle}, strObject + " with another handle");
        Check(nBits <= nSize * 8, strObject + " with data beyond its end");
        Check(Number(m_file, nAt + nContent + nSize, 2) ==
                  DwgCrc(CByteView(m_file).subspan(nAt, nContent + nSize)),
              strObject + " sum");
        m_nLastHandle = nHandle;
    }

    void CheckSecondHeader() {
        const CSecondHeader second = FindSecondHeader(m_file);
        Check(second.m_strFault.empty(), second.m_strFault);
        Check(Holds(m_file, second.m_nAddress, g_secondStart), "second header address");
        Check(second.m_arHandles[0] > m_nLastHandle, "handle seed");
        for (const std::size_t i : {0u, 1u, 2u, 3u, 5u})
            Check(second.m_arSections[i] == m_sections[i], "second header records");
    }

    const CBytes& m_file;
    CDwgLocators m_sections;
    std::vector<std::pair<std::size_t, std::size_t>> m_covered;
    std::uint64_t m_nLastHandle = 0;
    std::string m_strFaults;
};

} // namespace

CSecondHeader FindSecondHeader(CByteView bytes) {
    CSecondHeader second;
    const auto found = std::search(bytes.begin(), bytes.end(), g_secondStart.begin(), g_secondStart.end());
    if (found == bytes.end()) return second.m_strFault = "no second header", second;
    const CByteView rest = bytes.subspan(static_cast<std::size_t>(found - bytes.begin()) + 16);
    const std::size_t nSize = Number(rest, 0, 4);
    if (!Holds(rest, nSize, g_secondEnd)) second.m_strFault = "second header mark";
    if (Number(rest, nSize - 10, 2) != DwgCrc(rest.first(nSize - 10)))
        second.m_strFault = "second header sum";
    CBitReader bits(rest.subspan(4));
    CBytes skipped;
    std::uint16_t nShort = 0;
    std::uint8_t nByte = 0, nCount = 0;
    bits.BL(second.m_nAddress);
    bits.Raw(skipped, 13);
    bits.BS(nShort);
    bits.RS(nShort);
    bits.BS(nShort);
    for (CDwgLocator& locator : second.m_arSections)
        bits.RC(nByte), bits.BL(locator.m_nAddress), bits.BL(locator.m_nSize);
    bits.BS(nShort);
    for (std::uint64_t& nHandle : second.m_arHandles) {
        bits.RC(nCount);
        bits.RC(nByte);
        for (bits.Raw(skipped, nCount); const std::uint8_t byte : skipped)
            nHandle = nHandle << 8 | byte;
    }
    if (bits.Failed()) second.m_strFault = "second header content";
    return second;
}

std::string DwgFaults(const CBytes& file) {
    return CFaults(file).Find();
}
