#pragma once

#include "host/files/dwg_variables.h"

/// What a writing program notes of the place that objects take.
struct CDwgFreeSpace {
    std::uint32_t m_nObjects = 0;
    CDwgTime m_tdupdate;
    std::uint32_t m_nFirstObject = 0; ///< the address of the first one
};

inline constexpr std::size_t g_nDwgFreeSpaceSize = 53;

CBytes WriteDwgFreeSpace(const CDwgFreeSpace& space);
