#include "host/files/dwg_record_io.h"

#include <utility>

void CDwgRecordReader::Handle(CDwgHandle& handle) {
    handle = {};
    if (HandlesLeft() == 0) return Fail();
    const CDwgHandle stored = m_record.m_arHandles[m_nNext++];
    handle.m_nCode =
        stored.m_nCode > CDwgHandle::s_nHardPointer ? CDwgHandle::s_nSoftPointer : stored.m_nCode;
    handle.m_nValue = stored.Target(m_record.m_nHandle);
}

void CDwgRecordReader::Handles(std::vector<CDwgHandle>& handles, std::size_t nCount) {
    handles.clear();
    if (nCount > HandlesLeft()) return Fail();
    handles.resize(nCount);
    for (CDwgHandle& handle : handles)
        Handle(handle);
}

void CDwgRecordWriter::Handles(const std::vector<CDwgHandle>& handles, std::size_t nCount) {
    m_arHandles.insert(m_arHandles.end(), handles.begin(),
                       handles.begin() + static_cast<std::ptrdiff_t>(nCount));
}

CDwgRecord CDwgRecordWriter::TakeRecord(std::uint16_t nType, std::uint64_t nHandle) {
    CDwgRecord record;
    record.m_nType = nType;
    record.m_nHandle = nHandle;
    record.m_data.m_nCount = At();
    record.m_data.m_arBytes = Take();
    record.m_arHandles = std::exchange(m_arHandles, {});
    return record;
}
