#pragma once

#include <cstdint>
#include <span>
#include <vector>

using CBytes = std::vector<std::uint8_t>;
using CByteView = std::span<const std::uint8_t>;
