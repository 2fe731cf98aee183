#pragma once

#include "host/files/dwg_origin.h"
#include "host/files/dwg_record_io.h"
#include "host/files/read_goes_on.h"

/// What the parts of a drawing that is being read share.
struct CDwgReading {
    AcDbDatabase& m_database;
    std::shared_ptr<const CDwgOrigin> m_pOrigin;
    std::map<std::uint64_t, AcDbObjectId> m_ids; ///< what was made of the file's objects so far
    CReadGoesOn m_fnGoesOn = {};

    /// What was made of an object; null for none.
    AcDbObjectId IdOf(std::uint64_t nHandle) const {
        const auto found = m_ids.find(nHandle);
        return found == m_ids.end() ? AcDbObjectId::kNull : found->second;
    }
    AcDbObjectId IdOf(const CDwgHandle& handle) const { return IdOf(handle.m_nValue); }
    std::wstring Text(const std::string& strBytes) const { return m_pOrigin->m_text.Decode(strBytes); }
    /// Asks whether to go on with the next object; see CheckReadGoesOn.
    void CheckGoesOn() const { CheckReadGoesOn(m_fnGoesOn, m_ids.size(), m_pOrigin->m_records.size()); }
};

/// Notes what was made of an object of the file, and gives it the handle that it has there. An object that
/// was made of another one before keeps the first one's.
void IdentifyDwg(CDwgReading& reading, AcDbObjectId id, std::uint64_t nHandle);

/// Gives an object that is open for writing the extended data of its record. Those of an application that the
/// drawing has not are left out.
void ReadDwgExtendedData(AcDbObject& object, const CDwgRecord& record, const CDwgReading& reading);

/// Reads a record to its end by the description of its class. Throws CDwgError for one that is shorter or
/// longer.
template <class Value, class File>
Value ReadDwgValue(const CDwgRecord& record, File file) {
    CDwgRecordReader io(record);
    Value value;
    file(io, value);
    if (!io.IsAtEnd()) RefuseDwgObject(record.m_nHandle, "its data are not those of its class.");
    return value;
}

/// Reads what a record has in common with others, and leaves the reader there. Throws CDwgError for a record
/// that is shorter.
template <class Common, class File>
Common ReadDwgCommon(CDwgRecordReader& io, std::uint64_t nHandle, File file) {
    Common common;
    file(io, common);
    if (io.Failed()) RefuseDwgObject(nHandle, "it ends within what all objects have.");
    return common;
}
