#pragma once
// What an object writes of itself, kept in memory.

#include "platform/acad/db_object_id.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

class AcDbDwgFiler;

/// A reference as it stands in a record.
struct CFiledId {
    enum class CKind : unsigned char { HardPointer, SoftPointer, HardOwnership, SoftOwnership };
    CKind m_kind;
    AcDbObjectId m_id;
    bool operator==(const CFiledId&) const = default;
    bool IsOwnership() const { return m_kind == CKind::HardOwnership || m_kind == CKind::SoftOwnership; }
};

/// What a run of a record's bytes was written as. A point is as many doubles.
struct CFiledValue {
    enum class CKind : unsigned char { Boolean, Int8, Int16, Int32, Double, String, Bytes };
    CKind m_kind;
    std::uint32_t m_nBytes;
    bool operator==(const CFiledValue&) const = default;
};

/// Lets a class read foreign data; what they hold and what is asked for need not agree.
class CForeignReader {
public:
    CForeignReader() = default;
    CForeignReader(const CForeignReader&) = delete;
    CForeignReader& operator=(const CForeignReader&) = delete;
    virtual ~CForeignReader() = default;
    virtual AcDbDwgFiler& Filer() = 0;
    /// Whether all was read, and nothing asked for that is not there.
    virtual bool IsAtEnd() const = 0;
};

/// The part of a record that a class wrote in some file's own form. What its values are only the class knows.
class CForeignData {
public:
    CForeignData() = default;
    CForeignData(const CForeignData&) = delete;
    CForeignData& operator=(const CForeignData&) = delete;
    virtual ~CForeignData() = default;
    /// A reader of the data with their references, which stand in the record; both must outlive it. Never
    /// null.
    virtual std::unique_ptr<CForeignReader> Reader(std::span<const CFiledId> ids) const = 0;
};

/// A record: its bytes, and beside them its references in the order in which they were written, and what its
/// values are. It may end in foreign data, with the references from m_nForeignIds on.
struct CDbRecord {
    std::vector<std::byte> m_arBytes = {};
    std::vector<CFiledId> m_arIds = {};
    std::vector<CFiledValue> m_arValues = {};
    std::shared_ptr<const CForeignData> m_pForeign = {};
    std::size_t m_nForeignIds = 0;
    bool operator==(const CDbRecord&) const = default;
};
