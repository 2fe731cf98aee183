#pragma once
// The first bytes of a drawing file: what it is, and where its sections are.

#include "host/files/bytes.h"
#include "host/files/code_page.h"

#include <array>

// The sections, by the numbers of their records.
inline constexpr std::size_t g_nDwgHeaderSection = 0, g_nDwgClassSection = 1, g_nDwgObjectMapSection = 2,
                             g_nDwgFreeSpaceSection = 3, g_nDwgTemplateSection = 4,
                             g_nDwgAuxHeaderSection = 5, g_nDwgSections = 6;

/// Where a section is; of no size when the file has none.
struct CDwgLocator {
    std::uint32_t m_nAddress = 0, m_nSize = 0;
    bool operator==(const CDwgLocator&) const = default;
};

using CDwgLocators = std::array<CDwgLocator, g_nDwgSections>;

/// What stands in the file header and again in the second one.
struct CDwgIdentity {
    std::uint8_t m_nMaintenance = 6;  ///< of the format
    std::uint16_t m_nWriter = 0x0617; ///< the writing program's version, and above it its maintenance
    std::uint16_t m_nCodePage = g_nDwgAnsi936; ///< of the texts
    bool operator==(const CDwgIdentity&) const = default;
};

struct CDwgFileHeader {
    CDwgIdentity m_identity;
    std::uint32_t m_nPreview = 0; ///< the address of the preview; 0 for none
    CDwgLocators m_arSections;
    bool operator==(const CDwgFileHeader&) const = default;
};

/// Six letters that every file of this version begins with.
inline constexpr std::string_view g_strDwgVersion = "AC1015";

inline constexpr std::size_t g_nDwgFileHeaderSize = 97; ///< with all six records

/// Reads the header of a whole file and holds the sections' places against its size. Throws CDwgError, for
/// another version too, which it names.
CDwgFileHeader ReadDwgFileHeader(CByteView file);

/// The header's bytes, with all six records.
CBytes WriteDwgFileHeader(const CDwgFileHeader& header);
