#pragma once

#include <stdexcept>
#include <string>

/// Why a DXF file cannot be read: the place ("line 12", "offset 345", "block NAME") and what is wrong there,
/// in the system code page.
class CDxfFailure : public std::runtime_error {
public:
    CDxfFailure(const std::string& strPlace, const std::string& strWhat)
        : std::runtime_error(strPlace + ": " + strWhat) {}
};
