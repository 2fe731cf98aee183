#pragma once

#include "platform/acad/db_database.h"

/// Objects of a drawing that are kept but not held: of one type of a drawing file, or of one class.
struct CDwgUnknown {
    std::wstring m_strName;    ///< the type's or class's in DXF files; empty for a code that is none
    std::uint16_t m_nType = 0; ///< the code, or the class's number
    bool m_bEntities = false;
    std::size_t m_nCount = 0;
    bool operator==(const CDwgUnknown&) const = default;
};

/// What a drawing keeps of its drawing file without holding it, each kind once, in the order of the numbers.
std::vector<CDwgUnknown> UnknownInDwg(const AcDbDatabase& database);
