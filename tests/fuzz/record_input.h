#pragma once
// An object's record as bytes: the kind of filing, the number of references, a byte for each, the record's
// own bytes.

#include "platform/acad/db_database.h"
#include "platform/acad/memory_filer.h"
#include "tests/fuzz/mutation.h"

/// A record to be read, and what for.
struct CRecordInput {
    AcDb::FilerType m_type = AcDb::kFileFiler;
    CDbRecord m_record;
};

/// A drawing whose few objects are all that references of an input can name.
class CRecordInputs {
public:
    CRecordInputs();
    /// Whatever the bytes are.
    CRecordInput Decode(std::span<const std::uint8_t> bytes) const;
    CInput Encode(const CRecordInput& input) const;
    AcDbDatabase& Drawing() { return m_database; }

private:
    AcDbDatabase m_database;
    std::vector<AcDbObjectId> m_arIds; ///< the first is null
};
