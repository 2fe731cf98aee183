#include "host/files/dwg_object_map.h"

#include "host/files/bit_reader.h"
#include "host/files/bit_writer.h"
#include "host/files/dwg_crc.h"
#include "host/files/dwg_error.h"

#include <limits>
#include <string>
#include <utility>

namespace {

constexpr std::size_t g_nMapSizeField = 2, g_nMapSumField = 2;
constexpr std::size_t g_nFullPage = 2032;   ///< bytes of size and data that no page exceeds
constexpr std::size_t g_nLongestEntry = 20; ///< of two modular numbers

[[noreturn]] void Refuse(const char* pWhy) {
    throw CDwgError(std::string("Object map: ") + pWhy);
}

/// Reads the entries of one page, which count from zero.
void ReadPage(CByteView data, CDwgObjectMap& map) {
    CBitReader bits(data);
    std::uint64_t nHandle = 0;
    std::int64_t nAddress = 0;
    while (bits.Left()) {
        std::uint64_t nHandleStep = 0;
        std::int64_t nAddressStep = 0;
        bits.MC(nHandleStep);
        bits.MC(nAddressStep);
        if (bits.Failed()) Refuse("a page ends within an entry.");
        nHandle += nHandleStep;
        nAddress += nAddressStep; // of 62 bits at most
        if (nAddress < 0 || nAddress > std::numeric_limits<std::uint32_t>::max())
            Refuse("an address lies beyond any file.");
        if (nHandle == 0 || (!map.empty() && nHandle <= map.rbegin()->first))
            Refuse("the handles do not rise.");
        map.emplace_hint(map.end(), nHandle, static_cast<std::uint32_t>(nAddress));
    }
}

/// A page around its entries.
void WritePage(CBitWriter& section, const CBytes& data) {
    CBitWriter page;
    page.RSBig(static_cast<std::uint16_t>(g_nMapSizeField + data.size()));
    page.Raw(data, data.size());
    page.RSBig(DwgCrc(page.Bytes()));
    section.Raw(page.Bytes(), page.Bytes().size());
}

} // namespace

CDwgObjectMap ReadDwgObjectMap(CByteView section) {
    CDwgObjectMap map;
    for (;;) {
        CBitReader bits(section);
        std::uint16_t nSize = 0, nSum = 0;
        bits.RSBig(nSize);
        if (nSize < g_nMapSizeField || nSize + g_nMapSumField > section.size())
            Refuse("the section ends within a page.");
        CBitReader end(section.subspan(nSize));
        end.RSBig(nSum);
        if (nSum != DwgCrc(section.first(nSize))) Refuse("the check sum of a page is wrong.");
        if (nSize == g_nMapSizeField) return map;
        ReadPage(section.subspan(g_nMapSizeField, nSize - g_nMapSizeField), map);
        section = section.subspan(nSize + g_nMapSumField);
    }
}

CBytes WriteDwgObjectMap(const CDwgObjectMap& map) {
    CBitWriter section, page;
    std::uint64_t nHandle = 0;
    std::int64_t nAddress = 0;
    for (const auto& [nNextHandle, nNextAddress] : map) {
        if (page.Bytes().size() > g_nFullPage - g_nMapSizeField - g_nLongestEntry) {
            WritePage(section, std::exchange(page, {}).Take());
            nHandle = 0;
            nAddress = 0;
        }
        page.MC(nNextHandle - nHandle);
        page.MC(std::int64_t{nNextAddress} - nAddress);
        nHandle = nNextHandle;
        nAddress = nNextAddress;
    }
    if (!map.empty()) WritePage(section, page.Bytes());
    WritePage(section, {});
    return section.Take();
}
