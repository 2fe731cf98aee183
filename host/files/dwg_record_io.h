#pragma once
// An object's data and its references side by side. As with single bits, reader and writer have the same
// operations, so that one description of a class serves both ways.

#include "host/files/bit_reader.h"
#include "host/files/bit_writer.h"
#include "host/files/dwg_record.h"

/// Reads a record, which must outlive it. References come as absolute ones; a missing one makes it fail.
class CDwgRecordReader : public CBitReader {
public:
    explicit CDwgRecordReader(const CDwgRecord& record)
        : CBitReader(record.m_data.m_arBytes, 0, record.m_data.m_nCount)
        , m_record(record) {}

    void Handle(CDwgHandle& handle);
    void Handles(std::vector<CDwgHandle>& handles, std::size_t nCount);
    std::size_t HandlesLeft() const { return m_record.m_arHandles.size() - m_nNext; }
    /// Whether all was read, and nothing asked for that is not there.
    bool IsAtEnd() const { return !Failed() && Left() == 0 && HandlesLeft() == 0; }

private:
    const CDwgRecord& m_record;
    std::size_t m_nNext = 0;
};

class CDwgRecordWriter : public CBitWriter {
public:
    void Handle(const CDwgHandle& handle) { m_arHandles.push_back(handle); }
    void Handles(const std::vector<CDwgHandle>& handles, std::size_t nCount);
    /// The record of an object whose data and references were written.
    CDwgRecord TakeRecord(std::uint16_t nType, std::uint64_t nHandle);

private:
    std::vector<CDwgHandle> m_arHandles;
};

/// The record of an object that a function files. Throws CDwgError for a text that is too long.
template <class Value, class File>
CDwgRecord DwgRecordOf(std::uint16_t nType, std::uint64_t nHandle, const Value& value, File file) {
    CDwgRecordWriter io;
    file(io, value);
    if (io.Failed()) RefuseDwgObject(nHandle, "a text is too long for a file.");
    return io.TakeRecord(nType, nHandle);
}

/// A description of a class as a function of both directions.
#define DWG_FILED(function) [](auto& io, auto& value) { function(io, value); }
