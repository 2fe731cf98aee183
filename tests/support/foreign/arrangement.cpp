#include "tests/support/foreign/arrangement.h"

#include "host/files/dwg_second_header.h"
#include "tests/support/foreign/records.h"
#include "tests/support/foreign/renumbering.h"

#include <algorithm>

namespace {

constexpr std::uint64_t g_nRun = 16, g_nApart = 300; // handles that stay together; from run to run

CDwgHandle RelativeOf(const CDwgHandle& handle, std::uint64_t nOwn) {
    constexpr std::uint8_t nNext = 6, nPrevious = 8, nBehind = 10, nBefore = 12;
    if (handle.m_nCode != CDwgHandle::s_nSoftPointer || handle.m_nValue == 0) return handle;
    if (handle.m_nValue == nOwn + 1) return {nNext, 0};
    if (handle.m_nValue == nOwn - 1) return {nPrevious, 0};
    if (handle.m_nValue > nOwn) return {nBehind, handle.m_nValue - nOwn};
    return {nBefore, nOwn - handle.m_nValue};
}

/// Puts the parts of a written file together once more.
class CReversal {
public:
    explicit CReversal(const CDwgFile& file)
        : m_written(WriteDwgFile(file))
        , m_header(ReadDwgFileHeader(m_written))
        , m_variables(file.m_variables) {}

    CBytes Build() {
        CDwgLocators& sections = m_header.m_arSections;
        const std::vector<CPlace> places = Places();
        m_bytes.assign(m_written.begin(), m_written.begin() + places.front().first);
        Append(CBytes{0xCA, 0x0D, 0x00, 0x00}); // of no object
        const CDwgObjectMap map = AppendObjects(places, sections[g_nDwgObjectMapSection].m_nAddress);
        for (const std::size_t nSection : {g_nDwgTemplateSection, g_nDwgFreeSpaceSection})
            MoveSection(sections[nSection], Section(sections[nSection]));
        MoveSection(sections[g_nDwgObjectMapSection], WriteDwgObjectMap(map));
        Append(WriteDwgSecondHeader(m_header, m_variables, Address()));
        const CBytes header = WriteDwgFileHeader(m_header);
        std::copy(header.begin(), header.end(), m_bytes.begin());
        return std::move(m_bytes);
    }

private:
    using CPlace = std::pair<std::uint32_t, std::uint64_t>; ///< of an object: address and handle

    std::uint32_t Address() const { return static_cast<std::uint32_t>(m_bytes.size()); }
    void Append(const CBytes& bytes) { m_bytes.insert(m_bytes.end(), bytes.begin(), bytes.end()); }
    CBytes Bytes(std::uint32_t nFrom, std::uint32_t nTo) const {
        return {m_written.begin() + nFrom, m_written.begin() + nTo};
    }
    CBytes Section(const CDwgLocator& place) const {
        return Bytes(place.m_nAddress, place.m_nAddress + place.m_nSize);
    }
    void MoveSection(CDwgLocator& place, const CBytes& bytes) {
        place = {Address(), static_cast<std::uint32_t>(bytes.size())};
        Append(bytes);
    }

    std::vector<CPlace> Places() const {
        std::vector<CPlace> places;
        for (const auto& [nHandle, nAddress] :
             ReadDwgObjectMap(Section(m_header.m_arSections[g_nDwgObjectMapSection])))
            places.emplace_back(nAddress, nHandle);
        std::ranges::sort(places);
        return places;
    }

    CDwgObjectMap AppendObjects(const std::vector<CPlace>& places, std::uint32_t nEnd) {
        CDwgObjectMap map;
        for (auto place = places.rbegin(); place != places.rend(); nEnd = (place++)->first) {
            map[place->second] = Address();
            Append(Bytes(place->first, nEnd));
        }
        return map;
    }

    const CBytes m_written;
    CDwgFileHeader m_header;
    const CDwgVariables& m_variables;
    CBytes m_bytes;
};

} // namespace

void SpreadHandles(CDwgFile& file) {
    const std::uint64_t nRuns = file.m_contents.rbegin()->first / g_nRun + 1;
    file = Renumbered(file, [nRuns](std::uint64_t nHandle) {
        return (nRuns - nHandle / g_nRun) * g_nApart + nHandle % g_nRun;
    });
    file.m_variables.m_hHandseed.m_nValue = (nRuns + 1) * g_nApart;
}

void OmitNeighbours(CDwgFile& file) {
    for (const std::uint64_t nHandle : ModelSpaceOf(file)) {
        CEntityRecord entity = EntityAt(file, nHandle);
        entity.m_common.m_bNeighbours = entity.m_common.m_hPrevious.m_nValue == nHandle - 1 &&
                                        entity.m_common.m_hNext.m_nValue == nHandle + 1;
        PutEntity(file, nHandle, entity);
    }
}

void MakeRelative(CDwgFile& file) {
    for (auto& [nHandle, content] : file.m_contents) {
        CDwgRecord record = ReadDwgRecord(content, nHandle);
        for (CDwgHandle& handle : record.m_arHandles)
            handle = RelativeOf(handle, nHandle);
        content = WriteDwgRecord(record);
    }
}

CBytes WriteReversed(const CDwgFile& file) {
    return CReversal(file).Build();
}
