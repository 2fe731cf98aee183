#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

/// One cell of a result: NULL, whole number, real number or text (GBK). The text lies in the cursor that gave
/// the cell and lives as long as it.
using CDbCell = std::variant<std::monostate, std::int64_t, double, std::string_view>;

/// A value on its way into the database, owning its text (GBK).
using CDbValue = std::variant<std::monostate, std::int64_t, double, std::string>;
