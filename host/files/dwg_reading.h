#pragma once

#include "host/files/drawing_text.h"
#include "host/files/dwg_classes.h"
#include "host/files/dwg_record_io.h"
#include "platform/acad/db_database.h"

#include <map>

/// What the parts of a drawing that is being read share.
struct CDwgReading {
    AcDbDatabase& m_database;
    const CDrawingText& m_text;
    std::uint16_t m_nCodePage;                     ///< the text's
    std::map<std::uint64_t, CDwgRecord> m_records; ///< all of the file
    std::map<std::uint64_t, AcDbObjectId> m_ids;   ///< what was made of them so far
    const std::vector<CDwgClass>& m_classes;       ///< of the file
    std::uint64_t m_nSpareHandle = 1;              ///< above the file's, for an object whose own is taken

    /// What was made of an object; null for none.
    AcDbObjectId IdOf(const CDwgHandle& handle) const {
        const auto found = m_ids.find(handle.m_nValue);
        return found == m_ids.end() ? AcDbObjectId::kNull : found->second;
    }
    std::wstring Text(const std::string& strBytes) const { return m_text.Decode(strBytes); }
};

/// Lets the next object of the drawing have the handle that it has in the file; another one if an object that
/// any new drawing has took it.
void TakeDwgHandle(CDwgReading& reading, std::uint64_t nHandle);

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
