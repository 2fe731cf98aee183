#pragma once

#include "host/files/dwg_drawing_writer.h"
#include "host/files/dwg_record_io.h"

#include <gtest/gtest.h>

/// The objects of a drawing's file, taken apart again.
class CDwgWritten {
public:
    explicit CDwgWritten(const AcDbDatabase& database)
        : m_file(ReadDwgFile(WriteDwgFile(DwgFileOf(database)))) {}

    const CDwgFile& File() const { return m_file; }
    CDwgRecord Record(std::uint64_t nHandle) const {
        return ReadDwgRecord(m_file.m_contents.at(nHandle), nHandle);
    }
    /// The records of a type in the order of their handles.
    std::vector<CDwgRecord> OfType(std::uint16_t nType) const {
        std::vector<CDwgRecord> records;
        for (const auto& [nHandle, content] : m_file.m_contents)
            if (CDwgRecord record = ReadDwgRecord(content, nHandle); record.m_nType == nType)
                records.push_back(std::move(record));
        return records;
    }

private:
    CDwgFile m_file;
};

/// What a record holds, all of it.
template <class Value, class File>
Value Filed(const CDwgRecord& record, File file) {
    CDwgRecordReader reader(record);
    Value value;
    file(reader, value);
    EXPECT_TRUE(reader.IsAtEnd());
    return value;
}
