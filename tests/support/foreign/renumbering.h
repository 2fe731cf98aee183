#pragma once

#include "host/files/dwg_file.h"

#include <functional>

/// Gives a handle for a handle; 0 is never asked for. No two may become the same.
using CNewHandle = std::function<std::uint64_t(std::uint64_t)>;

/// The file with other handles for all its objects. What extended data name stays as it is, and so does the
/// handle that the next object will get.
CDwgFile Renumbered(const CDwgFile& file, const CNewHandle& newHandle);
