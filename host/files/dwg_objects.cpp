#include "host/files/dwg_objects.h"

#include "host/files/bit_reader.h"
#include "host/files/bit_writer.h"
#include "host/files/dwg_crc.h"
#include "host/files/dwg_record.h"

#include <algorithm>

namespace {

constexpr std::size_t g_nObjectSumField = 2;

/// The object at an address with its size and its check sum, and how many of these bytes the size takes.
struct CPacked {
    CByteView m_bytes;
    std::size_t m_nSizeField = 0;
    CByteView Content() const {
        return m_bytes.subspan(m_nSizeField, m_bytes.size() - m_nSizeField - g_nObjectSumField);
    }
};

CPacked PackedAt(CByteView file, std::uint64_t nHandle, std::uint32_t nAddress) {
    if (nAddress > file.size()) RefuseDwgObject(nHandle, "it lies beyond the end of the file.");
    CBitReader bits(file.subspan(nAddress));
    std::uint32_t nSize = 0;
    std::uint16_t nSum = 0;
    bits.MS(nSize);
    const std::size_t nSizeField = bits.At() / 8;
    if (bits.Failed() || bits.Left() / 8 < nSize + g_nObjectSumField)
        RefuseDwgObject(nHandle, "it reaches beyond the end of the file.");
    const CByteView packed = file.subspan(nAddress, nSizeField + nSize + g_nObjectSumField);
    CBitReader(packed.last(g_nObjectSumField)).RS(nSum);
    if (nSum != DwgCrc(packed.first(nSizeField + nSize))) RefuseDwgObject(nHandle, "the check sum is wrong.");
    return {packed, nSizeField};
}

} // namespace

CDwgContents ReadDwgContents(CByteView file, const CDwgObjectMap& map) {
    std::vector<std::pair<std::uint32_t, std::uint64_t>> places; // by address
    places.reserve(map.size());
    for (const auto& [nHandle, nAddress] : map)
        places.emplace_back(nAddress, nHandle);
    std::sort(places.begin(), places.end());
    CDwgContents contents;
    std::size_t nTaken = 0; // else a small file could stand for any number of large objects
    for (const auto& [nAddress, nHandle] : places) {
        if (nAddress < nTaken) RefuseDwgObject(nHandle, "it shares bytes with another object.");
        const CPacked packed = PackedAt(file, nHandle, nAddress);
        const CByteView content = packed.Content();
        contents.emplace(nHandle, CBytes(content.begin(), content.end()));
        nTaken = nAddress + packed.m_bytes.size();
    }
    return contents;
}

CDwgObjectMap AppendDwgContents(const CDwgContents& contents, CBytes& file) {
    CDwgObjectMap map;
    for (const auto& [nHandle, content] : contents) {
        const std::size_t nAddress = file.size();
        CBitWriter size, sum;
        size.MS(static_cast<std::uint32_t>(content.size()));
        if (size.Failed()) RefuseDwgObject(nHandle, "it is too large.");
        file.insert(file.end(), size.Bytes().begin(), size.Bytes().end());
        file.insert(file.end(), content.begin(), content.end());
        sum.RS(DwgCrc(CByteView(file).subspan(nAddress)));
        file.insert(file.end(), sum.Bytes().begin(), sum.Bytes().end());
        map.emplace_hint(map.end(), nHandle, static_cast<std::uint32_t>(nAddress));
    }
    return map;
}
