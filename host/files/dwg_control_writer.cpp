#include "host/files/dwg_control_writer.h"

#include "host/files/dwg_table_records.h"

#include <set>

namespace {

/// The handles of former records that the drawing still has.
std::vector<CDwgHandle> FormerRecords(const CDwgControl& former, const CDwgWriting& writing) {
    std::vector<CDwgHandle> handles;
    for (const CDwgHandle& handle : former.m_arRecords) {
        AcDbObjectId id;
        writing.m_database.getAcDbObjectId(id, AcDbHandle(handle.m_nValue));
        if (writing.m_handles.Of(id)) handles.push_back(handle);
    }
    return handles;
}

} // namespace

void WriteDwgControl(const CDwgWriting& writing, std::vector<CDwgRecord>& records,
                     const AcDbSymbolTable& table, std::uint16_t nType,
                     const std::vector<AcDbObjectId>& fixed) {
    const std::uint64_t nTable = writing.m_handles.Of(table.objectId());
    const auto file = [nType](auto& io, auto& value) { FileControl(io, value, nType); };
    auto control = FormerDwgValue<CDwgControl>(writing, nTable, nType, file);
    RelateDwgObject(control, table, writing);
    control.m_arRecords = FormerRecords(control, writing);
    control.m_arFixed.clear();
    std::set<std::uint64_t> listed;
    for (const AcDbObjectId& id : fixed) {
        control.m_arFixed.push_back(HardOwner(writing.m_handles.Of(id)));
        listed.insert(writing.m_handles.Of(id));
    }
    for (const CDwgHandle& handle : control.m_arRecords)
        listed.insert(handle.m_nValue);
    for (const AcDbObjectId& id : table.RecordIds()) {
        const std::uint64_t nHandle = writing.m_handles.Of(id);
        if (nHandle && listed.insert(nHandle).second) control.m_arRecords.push_back(SoftOwner(nHandle));
    }
    records.push_back(DwgRecordOf(nType, nTable, control, file));
    records.back().m_arExtended = DwgExtendedDataOf(table, writing);
}
