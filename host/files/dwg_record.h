#pragma once
// An object of a drawing file, taken apart as far as every object is built alike.

#include "host/files/bytes.h"
#include "host/files/dwg_handle.h"

#include <cstddef>

/// A run of bits that need not end at a byte.
struct CDwgBits {
    CBytes m_arBytes; ///< zero bits fill the last one
    std::size_t m_nCount = 0;
    bool operator==(const CDwgBits&) const = default;
};

/// What one application has hung on an object, packed.
struct CDwgExtendedData {
    CDwgHandle m_hApp = HardPointer(0);
    CBytes m_arBytes;
    bool operator==(const CDwgExtendedData&) const = default;
};

struct CDwgRecord {
    std::uint16_t m_nType = 0; ///< a fixed code, or a class's number
    std::uint64_t m_nHandle = 0;
    std::vector<CDwgExtendedData> m_arExtended;
    CDwgBits m_data; ///< all else but the references
    std::vector<CDwgHandle> m_arHandles;
    bool operator==(const CDwgRecord&) const = default;
};

/// Takes the content of the object with that handle apart. Throws CDwgError, also when it has another handle.
CDwgRecord ReadDwgRecord(CByteView content, std::uint64_t nHandle);

/// The object's content. Throws CDwgError for what has no room in one.
CBytes WriteDwgRecord(const CDwgRecord& record);

/// Refuses an object, which it names by its handle: throws CDwgError.
[[noreturn]] void RefuseDwgObject(std::uint64_t nHandle, const char* pWhy);
