#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/ado/value.h"

/// Whole number: a sign if need be and digits, within [nLowest, nHighest]. Nothing else is one.
std::optional<std::int64_t> ParseWhole(std::string_view strText, std::int64_t nLowest, std::int64_t nHighest);

/// Decimal number: sign, digits with a point among, before or behind them, exponent: `-0.01`, `80`, `1e-05`.
/// Nothing for any other text and for a number that a 4-byte float cannot hold.
std::optional<double> ParseDecimal(std::string_view strText);

/// The shortest text that reads back to the same 4-byte float: 12.35, not 12.350000381.
std::string ShortestFloat(float value);

/// The number in a cell, whatever kind the engine gives it; 0 for NULL and what is no number.
double CellNumber(const CDbCell& cell);

/// The whole number in a cell, likewise; 0 for one with a fraction, too. Tables of other tools hold whole
/// numbers in columns of any type.
std::int64_t CellWhole(const CDbCell& cell);
