#pragma once

#include "host/files/bytes.h"

#include <map>

/// Where each object of a drawing file is: its address by its handle.
using CDwgObjectMap = std::map<std::uint64_t, std::uint32_t>;

/// Reads the pages of the section. Throws CDwgError, also for handles that do not rise.
CDwgObjectMap ReadDwgObjectMap(CByteView section);

/// The section's pages.
CBytes WriteDwgObjectMap(const CDwgObjectMap& map);
