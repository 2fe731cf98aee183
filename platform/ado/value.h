#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// One cell of a result: NULL, whole number, real number, text (GBK) or bytes. Text and bytes lie in the
/// cursor that gave the cell and live as long as it.
using CDbCell =
    std::variant<std::monostate, std::int64_t, double, std::string_view, std::span<const unsigned char>>;

/// A value on its way into the database, owning its text (GBK) or bytes.
using CDbValue = std::variant<std::monostate, std::int64_t, double, std::string, std::vector<unsigned char>>;
