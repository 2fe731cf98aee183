#pragma once
// The copy of the file header behind the objects, by which a file whose beginning is lost can be recovered.

#include "host/files/dwg_file_header.h"
#include "host/files/dwg_variables.h"

/// The copy as it stands at an address.
CBytes WriteDwgSecondHeader(const CDwgFileHeader& header, const CDwgVariables& variables,
                            std::uint32_t nAddress);
