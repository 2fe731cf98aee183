#pragma once
// Changes of single objects of a drawing file.

#include "host/files/dwg_common.h"
#include "host/files/dwg_file.h"

/// Changes an object that a function files as a Value.
template <class Value, class File, class Change>
void ChangeObject(CDwgFile& file, std::uint64_t nHandle, File filed, Change change) {
    CBytes& content = file.m_contents.at(nHandle);
    const CDwgRecord record = ReadDwgRecord(content, nHandle);
    CDwgRecordReader reader(record);
    Value value;
    filed(reader, value);
    change(value);
    CDwgRecord changed = DwgRecordOf(record.m_nType, nHandle, value, filed);
    changed.m_arExtended = record.m_arExtended;
    content = WriteDwgRecord(changed);
}

/// An entity's common part, and what follows it as it is.
struct CEntityRecord {
    CDwgEntityCommon m_common;
    CDwgBits m_own;
    std::vector<CDwgHandle> m_arHandles;
};
CEntityRecord EntityAt(const CDwgFile& file, std::uint64_t nHandle);
void PutEntity(CDwgFile& file, std::uint64_t nHandle, const CEntityRecord& entity);

/// The handles of model space's entities, in its order.
std::vector<std::uint64_t> ModelSpaceOf(const CDwgFile& file);

/// A handle that no object of the file has.
std::uint64_t TakeHandle(CDwgFile& file);
