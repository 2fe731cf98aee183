#include "host/files/dwg_marked_section.h"

#include "host/files/bit_reader.h"
#include "host/files/bit_writer.h"
#include "host/files/dwg_crc.h"
#include "host/files/dwg_error.h"

#include <algorithm>
#include <string>

namespace {

constexpr std::size_t g_nMark = 16, g_nSize = 4, g_nSum = 2;
constexpr std::size_t g_nAround = g_nMark + g_nSize + g_nSum + g_nMark; ///< bytes beside the data

} // namespace

CByteView ReadMarkedSection(CByteView section, const CDwgMarks& marks) {
    const auto refuse = [&](const char* pWhy) -> CByteView {
        throw CDwgError(std::string(marks.m_pName) + ": " + pWhy);
    };
    if (section.size() < g_nAround) return refuse("the section is missing or too short.");
    if (!std::ranges::equal(section.first(g_nMark), marks.m_start))
        return refuse("the start mark is missing.");
    CBitReader size(section.subspan(g_nMark));
    std::uint32_t nData = 0;
    size.RL(nData);
    if (nData > section.size() - g_nAround) return refuse("the data reach beyond the section.");
    const CByteView covered = section.subspan(g_nMark, g_nSize + nData);
    CBitReader rest(section.subspan(g_nMark + covered.size()));
    std::uint16_t nSum = 0;
    rest.RS(nSum);
    if (nSum != DwgCrc(covered)) return refuse("the check sum is wrong.");
    if (!std::ranges::equal(section.subspan(g_nMark + covered.size() + g_nSum, g_nMark), marks.m_end))
        return refuse("the end mark is missing.");
    return covered.subspan(g_nSize);
}

CBytes WriteMarkedSection(CByteView data, const CDwgMarks& marks) {
    CBitWriter bits;
    bits.Raw(marks.m_start, g_nMark);
    bits.RL(static_cast<std::uint32_t>(data.size()));
    bits.Raw(data, data.size());
    bits.RS(DwgCrc(CByteView(bits.Bytes()).subspan(g_nMark)));
    bits.Raw(marks.m_end, g_nMark);
    return bits.Take();
}
