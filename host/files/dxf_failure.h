#pragma once

#include <stdexcept>
#include <string>

/// Why a DXF file cannot be read: the place in the file ("line 12", "offset 345") and what is wrong there.
class CDxfFailure : public std::runtime_error {
public:
    CDxfFailure(const std::string& strPlace, const std::string& strWhat)
        : std::runtime_error(strPlace + ": " + strWhat) {}
};
