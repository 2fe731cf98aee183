#pragma once

#include "host/files/dwg_record_io.h"

#include <gtest/gtest.h>

/// What comes back of a value that is filed into an object and read out of its bytes; filed again it must
/// give the same bytes.
template <class Value, class File>
Value ThroughRecord(const Value& value, File file) {
    CDwgRecordWriter writer;
    file(writer, value);
    EXPECT_FALSE(writer.Failed());
    const CBytes content = WriteDwgRecord(writer.TakeRecord(0x13, 0x60));
    const CDwgRecord record = ReadDwgRecord(content, 0x60);
    CDwgRecordReader reader(record);
    Value back;
    file(reader, back);
    EXPECT_TRUE(reader.IsAtEnd());
    CDwgRecordWriter again;
    file(again, back);
    EXPECT_EQ(WriteDwgRecord(again.TakeRecord(0x13, 0x60)), content);
    return back;
}

/// The same of what is read out of known bytes.
template <class Value, class File>
Value FromContent(const CBytes& content, std::uint64_t nHandle, File file) {
    const CDwgRecord record = ReadDwgRecord(content, nHandle);
    CDwgRecordReader reader(record);
    Value value;
    file(reader, value);
    EXPECT_TRUE(reader.IsAtEnd());
    return value;
}
