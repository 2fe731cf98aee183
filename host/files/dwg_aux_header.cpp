#include "host/files/dwg_aux_header.h"

#include "host/files/bit_reader.h"
#include "host/files/bit_writer.h"
#include "host/files/dwg_error.h"

#include <algorithm>

namespace {

constexpr std::array<std::uint8_t, 3> g_mark = {0xFF, 0x77, 0x01};
constexpr std::size_t g_nSavesAt = 7, g_nTimesAt = 63;            ///< in the section
constexpr std::uint16_t g_arBuild[] = {5, 0x893, 5, 0x893, 0, 1}; ///< any program's

void WriteLongs(CBitWriter& bits, int nCount, std::uint32_t nValue = 0) {
    for (int i = 0; i < nCount; ++i)
        bits.RL(nValue);
}

/// The two moments and the handle.
template <class Bits, class Header>
void FileTimes(Bits& bits, Header& header) {
    const auto longs = [&bits](auto&... values) { (bits.RL(values), ...); };
    longs(header.m_tdcreate.m_nDay, header.m_tdcreate.m_nMilliseconds, header.m_tdupdate.m_nDay,
          header.m_tdupdate.m_nMilliseconds, header.m_nHandseed);
}

} // namespace

CDwgAuxHeader ReadDwgAuxHeader(CByteView section) {
    CDwgAuxHeader header;
    if (section.empty()) return header;
    if (section.size() < g_nDwgAuxHeaderSize) throw CDwgError("Auxiliary header: the section is too short.");
    if (!std::ranges::equal(section.first(g_mark.size()), g_mark))
        throw CDwgError("Auxiliary header: the start mark is missing.");
    CBitReader(section.subspan(g_nSavesAt)).RL(header.m_nSaves);
    CBitReader times(section.subspan(g_nTimesAt));
    FileTimes(times, header);
    return header;
}

CBytes WriteDwgAuxHeader(const CDwgAuxHeader& header, const CDwgIdentity& identity) {
    const std::uint16_t nVersion = identity.m_nWriter & 0xFF, nMaintenance = identity.m_nWriter >> 8;
    CBitWriter bits;
    bits.Raw(g_mark, g_mark.size());
    bits.RS(nVersion);
    bits.RS(nMaintenance);
    bits.RL(header.m_nSaves);
    bits.RL(std::int32_t{-1});
    bits.RL(header.m_nSaves);
    bits.RL(std::uint32_t{0});
    for (const std::uint16_t nValue : {nVersion, nMaintenance, nVersion, nMaintenance})
        bits.RS(nValue);
    for (const std::uint16_t nValue : g_arBuild)
        bits.RS(nValue);
    WriteLongs(bits, 5);
    FileTimes(bits, header);
    WriteLongs(bits, 1);
    bits.RS(0);
    bits.RS(static_cast<std::uint16_t>(header.m_nSaves));
    WriteLongs(bits, 3);
    WriteLongs(bits, 1, header.m_nSaves);
    WriteLongs(bits, 4);
    return bits.Take();
}
