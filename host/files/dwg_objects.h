#pragma once
// The objects of a drawing file as they are packed: size, content, check sum.

#include "host/files/dwg_object_map.h"

/// The contents of objects by their handles.
using CDwgContents = std::map<std::uint64_t, CBytes>;

/// The contents of all objects of the map. Throws CDwgError, also for objects that share bytes.
CDwgContents ReadDwgContents(CByteView file, const CDwgObjectMap& map);

/// Appends the objects to the file and gives their addresses.
CDwgObjectMap AppendDwgContents(const CDwgContents& contents, CBytes& file);
