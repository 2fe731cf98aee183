#pragma once
// Holds a drawing file against the rules of its structure, apart from the code that reads one.

#include "host/files/dwg_file_header.h"

#include <string>

/// The second header, as far as a test looks at it.
struct CSecondHeader {
    std::string m_strFault; ///< what is wrong with it; empty for nothing
    std::uint32_t m_nAddress = 0;
    CDwgLocators m_arSections;
    std::array<std::uint64_t, 14> m_arHandles{};
};
CSecondHeader FindSecondHeader(CByteView bytes);

/// What is wrong with a file: sums, marks, the places of sections and objects, the handles in the map and in
/// the objects themselves. Empty for nothing.
std::string DwgFaults(const CBytes& file);
