#pragma once

#include <stdexcept>

/// Why a drawing file cannot be read or written, for the user: the part of the file and what is wrong there.
class CDwgError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};
