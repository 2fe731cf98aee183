#pragma once

#include "host/files/dwg_file_header.h"
#include "host/files/dwg_variables.h"

/// What the writing programs leave of themselves.
struct CDwgAuxHeader {
    std::uint32_t m_nSaves = 0; ///< how often the drawing was saved
    CDwgTime m_tdcreate, m_tdupdate;
    std::uint32_t m_nHandseed = 0;
};

inline constexpr std::size_t g_nDwgAuxHeaderSize = 123;

/// Reads the section; zeros where it is missing, as in older files. Throws CDwgError.
CDwgAuxHeader ReadDwgAuxHeader(CByteView section);

CBytes WriteDwgAuxHeader(const CDwgAuxHeader& header, const CDwgIdentity& identity);
