#include "tests/fuzz/dwg_sums.h"

#include "host/files/bit_reader.h"
#include "host/files/dwg_crc.h"
#include "host/files/dwg_file_header.h"

namespace {

constexpr std::size_t g_nCountAt = 0x15, g_nLocatorsAt = 0x19, g_nLocator = 9; // of the file header
constexpr std::size_t g_nMark = 16, g_nSize = 4, g_nPageSize = 2, g_nSum = 2;

class CSums {
public:
    explicit CSums(CInput& file)
        : m_file(file) {}

    void SetRight() {
        const std::uint32_t nSections = Long(g_nCountAt);
        if (nSections < 3 || nSections > g_nDwgSections) return;
        for (std::size_t i = 0; i < nSections; ++i) {
            const std::size_t nAt = g_nLocatorsAt + i * g_nLocator;
            if (nAt + g_nLocator > m_file.size()) return;
            const std::size_t nAddress = Long(nAt + 1);
            if (m_file[nAt] <= g_nDwgClassSection) SetMarkedSection(nAddress);
            if (m_file[nAt] == g_nDwgObjectMapSection) SetObjectMap(nAddress);
        }
        constexpr std::uint16_t s_arMasks[] = {0xA598, 0x8101, 0x3CC4, 0x8461};
        const std::size_t nEnd = g_nLocatorsAt + nSections * g_nLocator;
        Set(nEnd,
            static_cast<std::uint16_t>(DwgCrc(CByteView(m_file).first(nEnd), 0) ^ s_arMasks[nSections - 3]));
    }

private:
    std::uint32_t Long(std::size_t nAt) const {
        std::uint32_t n = 0;
        if (nAt < m_file.size()) CBitReader(CByteView(m_file).subspan(nAt)).RL(n);
        return n;
    }
    void Set(std::size_t nAt, std::uint16_t nSum) {
        if (nAt + g_nSum > m_file.size()) return;
        m_file[nAt] = static_cast<std::uint8_t>(nSum);
        m_file[nAt + 1] = static_cast<std::uint8_t>(nSum >> 8);
    }

    void SetMarkedSection(std::size_t nAddress) {
        const std::size_t nCovered = g_nSize + Long(nAddress + g_nMark), nAt = nAddress + g_nMark;
        if (nAt + nCovered <= m_file.size())
            Set(nAt + nCovered, DwgCrc(CByteView(m_file).subspan(nAt, nCovered)));
    }

    void SetObjectMap(std::size_t nAddress) {
        while (nAddress + g_nPageSize < m_file.size()) {
            std::uint16_t nSize = 0;
            CBitReader(CByteView(m_file).subspan(nAddress)).RSBig(nSize);
            if (nSize < g_nPageSize || nAddress + nSize > m_file.size()) return;
            SetObjects({m_file.begin() + static_cast<std::ptrdiff_t>(nAddress + g_nPageSize),
                        m_file.begin() + static_cast<std::ptrdiff_t>(nAddress + nSize)});
            const std::uint16_t nSum = DwgCrc(CByteView(m_file).subspan(nAddress, nSize));
            Set(nAddress + nSize, static_cast<std::uint16_t>(nSum << 8 | nSum >> 8));
            nAddress += nSize + g_nSum;
        }
    }

    /// Those of a page of the map.
    void SetObjects(const CBytes& page) {
        CBitReader bits(page);
        std::int64_t nAddress = 0;
        while (bits.Left()) {
            std::uint64_t nHandleStep = 0;
            std::int64_t nStep = 0;
            bits.MC(nHandleStep);
            bits.MC(nStep);
            nAddress += nStep;
            if (nAddress < 0 || nAddress >= static_cast<std::int64_t>(m_file.size())) return;
            SetObject(static_cast<std::size_t>(nAddress));
        }
    }

    void SetObject(std::size_t nAddress) {
        CBitReader bits(CByteView(m_file).subspan(nAddress));
        std::uint32_t nSize = 0;
        bits.MS(nSize);
        const std::size_t nCovered = bits.At() / 8 + nSize;
        // Objects that share bytes are refused for that; together they are no longer than the file.
        if (nCovered > m_file.size() - nAddress || nCovered > m_nLeft) return;
        m_nLeft -= nCovered;
        Set(nAddress + nCovered, DwgCrc(CByteView(m_file).subspan(nAddress, nCovered)));
    }

    CInput& m_file;
    std::size_t m_nLeft = m_file.size(); ///< bytes of objects still to be summed
};

} // namespace

CInput WithSumsRight(CInput file) {
    CSums(file).SetRight();
    return file;
}
