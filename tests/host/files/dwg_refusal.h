#pragma once

#include "host/files/dwg_error.h"

#include <string>

/// Why something is refused; empty when it is not.
template <class Operation>
std::string RefusalOf(Operation operation) {
    try {
        operation();
    } catch (const CDwgError& error) {
        return error.what();
    }
    return {};
}
