#pragma once

#include <cstdint>

/// Allocations of this program since it began.
std::uint64_t AllocationCount();
