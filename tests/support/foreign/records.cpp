#include "tests/support/foreign/records.h"

#include "host/files/dwg_blocks.h"

CEntityRecord EntityAt(const CDwgFile& file, std::uint64_t nHandle) {
    const CDwgRecord record = ReadDwgRecord(file.m_contents.at(nHandle), nHandle);
    CDwgRecordReader reader(record);
    CEntityRecord entity;
    FileEntityCommon(reader, entity.m_common);
    entity.m_own.m_nCount = reader.Left();
    reader.RawBits(entity.m_own.m_arBytes, entity.m_own.m_nCount);
    reader.Handles(entity.m_arHandles, reader.HandlesLeft());
    return entity;
}

void PutEntity(CDwgFile& file, std::uint64_t nHandle, const CEntityRecord& entity) {
    CBytes& content = file.m_contents.at(nHandle);
    const CDwgRecord record = ReadDwgRecord(content, nHandle);
    CDwgRecord changed = DwgRecordOf(record.m_nType, nHandle, entity, [](auto& io, const auto& value) {
        FileEntityCommon(io, value.m_common);
        io.RawBits(value.m_own.m_arBytes, value.m_own.m_nCount);
        io.Handles(value.m_arHandles, value.m_arHandles.size());
    });
    changed.m_arExtended = record.m_arExtended;
    content = WriteDwgRecord(changed);
}

std::vector<std::uint64_t> ModelSpaceOf(const CDwgFile& file) {
    const std::uint64_t nSpace = file.m_variables.m_roots.m_hModelSpace.m_nValue;
    const CDwgRecord record = ReadDwgRecord(file.m_contents.at(nSpace), nSpace);
    CDwgRecordReader reader(record);
    CDwgBlockHeader header;
    FileBlockHeader(reader, header);
    std::vector<std::uint64_t> handles;
    for (std::uint64_t nNext = header.m_hFirst.m_nValue; nNext;
         nNext = EntityAt(file, nNext).m_common.m_hNext.m_nValue)
        handles.push_back(nNext);
    return handles;
}

std::uint64_t TakeHandle(CDwgFile& file) {
    return file.m_variables.m_hHandseed.m_nValue++;
}
