#include "host/files/dwg_preview.h"

#include "host/files/bit_reader.h"
#include "host/files/bit_writer.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array<std::uint8_t, 16> g_startMark = {0x1F, 0x25, 0x6D, 0x07, 0xD4, 0x36, 0x28, 0x28,
                                                      0x9D, 0x57, 0xCA, 0x3F, 0x9D, 0x44, 0x10, 0x2B};
constexpr std::array<std::uint8_t, 16> g_endMark = {0xE0, 0xDA, 0x92, 0xF8, 0x2B, 0xC9, 0xD7, 0xD7,
                                                    0x62, 0xA8, 0x35, 0xC0, 0x62, 0xBB, 0xEF, 0xD4};
constexpr std::size_t g_nSizeField = 4, g_nCountField = 1, g_nEntry = 9; ///< bytes

} // namespace

std::vector<CDwgPreviewItem> ReadDwgPreview(CByteView file, std::uint32_t nAddress) {
    std::vector<CDwgPreviewItem> items;
    if (nAddress == 0 || nAddress > file.size()) return items;
    CBitReader bits(file.subspan(nAddress));
    CBytes mark;
    std::uint32_t nLeft = 0;
    std::uint8_t nItems = 0;
    bits.Raw(mark, g_startMark.size());
    if (!std::ranges::equal(mark, g_startMark)) return items;
    bits.RL(nLeft); // for all items together, so that no bytes are taken twice
    bits.RC(nItems);
    for (unsigned i = 0; i < nItems; ++i) {
        CDwgPreviewItem item;
        std::uint32_t nAt = 0, nSize = 0;
        bits.RC(item.m_nKind);
        bits.RL(nAt);
        bits.RL(nSize);
        if (bits.Failed() || nSize > nLeft || nSize > file.size() || nAt > file.size() - nSize) return items;
        nLeft -= nSize;
        const CByteView bytes = file.subspan(nAt, nSize);
        item.m_arBytes.assign(bytes.begin(), bytes.end());
        items.push_back(std::move(item));
    }
    return items;
}

CBytes WriteDwgPreview(const std::vector<CDwgPreviewItem>& items, std::uint32_t nAddress) {
    std::size_t nBytes = 0;
    for (const CDwgPreviewItem& item : items)
        nBytes += item.m_arBytes.size();
    const std::size_t nHead = g_nCountField + g_nEntry * items.size();
    std::size_t nAt = nAddress + g_startMark.size() + g_nSizeField + nHead;
    CBitWriter bits;
    bits.Raw(g_startMark, g_startMark.size());
    bits.RL(static_cast<std::uint32_t>(nHead + nBytes));
    bits.RC(static_cast<std::uint8_t>(items.size()));
    for (const CDwgPreviewItem& item : items) {
        bits.RC(item.m_nKind);
        bits.RL(static_cast<std::uint32_t>(nAt));
        bits.RL(static_cast<std::uint32_t>(item.m_arBytes.size()));
        nAt += item.m_arBytes.size();
    }
    for (const CDwgPreviewItem& item : items)
        bits.Raw(item.m_arBytes, item.m_arBytes.size());
    bits.Raw(g_endMark, g_endMark.size());
    return bits.Take();
}
