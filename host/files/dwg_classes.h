#pragma once

#include "host/files/bytes.h"

#include <string>

/// A class that has no fixed type code, as a drawing file lists it.
struct CDwgClass {
    std::uint16_t m_nNumber = 0;     ///< the type code of its objects, from 500
    std::uint16_t m_nProxyFlags = 0; ///< what may be done with its objects where it is not known
    std::string m_strAppName, m_strClassName, m_strDxfName; ///< in the drawing's code page
    bool m_bWasProxy = false;                               ///< the writing program did not know it
    bool m_bEntities = false;                               ///< its objects are entities
    bool operator==(const CDwgClass&) const = default;
};

inline constexpr std::uint16_t g_nDwgFirstClass = 500;

/// Reads the data of the section. Throws CDwgError, also for a number that occurs twice or is below the
/// first.
std::vector<CDwgClass> ReadDwgClasses(CByteView data);

/// The section's data. Throws CDwgError for a name that is too long.
CBytes WriteDwgClasses(const std::vector<CDwgClass>& classes);
