#include "host/files/dwg_record.h"

#include "host/files/bit_reader.h"
#include "host/files/bit_writer.h"
#include "host/files/dwg_error.h"
#include "platform/acad/db_object_id.h"

#include <limits>

namespace {

constexpr std::size_t g_nShortestHandle = 8; ///< bits

std::vector<CDwgExtendedData> ReadExtended(CBitReader& bits) {
    std::vector<CDwgExtendedData> all;
    for (;;) {
        std::uint16_t nBytes = 0;
        bits.BS(nBytes);
        if (nBytes == 0) return all; // so too once the reader failed
        CDwgExtendedData& data = all.emplace_back();
        bits.H(data.m_hApp);
        bits.Raw(data.m_arBytes, nBytes);
    }
}

void WriteExtended(CBitWriter& bits, const CDwgRecord& record) {
    for (const CDwgExtendedData& data : record.m_arExtended) {
        if (data.m_arBytes.size() > std::numeric_limits<std::uint16_t>::max())
            RefuseDwgObject(record.m_nHandle, "its extended data are too large for a file.");
        bits.BS(static_cast<std::uint16_t>(data.m_arBytes.size()));
        bits.H(data.m_hApp);
        bits.Raw(data.m_arBytes, data.m_arBytes.size());
    }
    bits.BS(std::uint16_t{0});
}

} // namespace

void RefuseDwgObject(std::uint64_t nHandle, const char* pWhy) {
    throw CDwgError("Object " + AcDbHandle(nHandle).Hex() + ": " + pWhy);
}

CDwgRecord ReadDwgRecord(CByteView content, std::uint64_t nHandle) {
    CDwgRecord record;
    CBitReader front(content);
    std::uint32_t nFrontBits = 0;
    CDwgHandle own;
    front.BS(record.m_nType);
    front.RL(nFrontBits);
    front.H(own);
    if (front.Failed() || nFrontBits < front.At() || nFrontBits > content.size() * 8)
        RefuseDwgObject(nHandle, "its references are not where it says.");
    if (own != CDwgHandle{CDwgHandle::s_nOwn, nHandle})
        RefuseDwgObject(nHandle, "it has another handle than the object map says.");
    record.m_nHandle = nHandle;
    CBitReader data(content, front.At(), nFrontBits);
    record.m_arExtended = ReadExtended(data);
    if (data.Failed()) RefuseDwgObject(nHandle, "it ends within its extended data.");
    record.m_data.m_nCount = data.Left();
    data.RawBits(record.m_data.m_arBytes, record.m_data.m_nCount);
    CBitReader handles(content, nFrontBits, content.size() * 8);
    while (handles.Left() >= g_nShortestHandle) // less is the filling of the last byte
        handles.H(record.m_arHandles.emplace_back());
    if (handles.Failed()) RefuseDwgObject(nHandle, "it ends within its references.");
    return record;
}

CBytes WriteDwgRecord(const CDwgRecord& record) {
    CBitWriter bits;
    bits.BS(record.m_nType);
    const std::size_t nSizeAt = bits.At();
    bits.RL(0u); // bits up to the references
    bits.H({CDwgHandle::s_nOwn, record.m_nHandle});
    WriteExtended(bits, record);
    bits.RawBits(record.m_data.m_arBytes, record.m_data.m_nCount);
    if (bits.At() > std::numeric_limits<std::uint32_t>::max())
        RefuseDwgObject(record.m_nHandle, "it is too large for a file.");
    bits.OverwriteRL(nSizeAt, static_cast<std::uint32_t>(bits.At()));
    for (const CDwgHandle& handle : record.m_arHandles)
        bits.H(handle);
    return bits.Take();
}
