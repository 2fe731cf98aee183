#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// A decimal number: a whole number of 96 bits, divided by 10 to the power of its scale.
struct DECIMAL {
    std::uint8_t scale = 0; ///< 0 to 28
    std::uint8_t sign = 0;  ///< g_nDecimalNegative for a negative number
    std::uint32_t Hi32 = 0;
    std::uint64_t Lo64 = 0;

    bool operator==(const DECIMAL&) const = default;
};

inline constexpr std::uint8_t g_nDecimalNegative = 0x80;

/// The decimal that a text such as "-12.50" or "1.5e3" says, with its digits behind the point as the scale.
/// Nothing for what is no number and for more digits than a decimal holds.
std::optional<DECIMAL> DecimalFromText(std::string_view strText);

/// The decimal with the fewest digits that reads back as the number; nothing where none does.
std::optional<DECIMAL> DecimalFromNumber(double dValue);

/// All digits of a decimal, e.g. "-12.50".
std::string DecimalText(const DECIMAL& decimal);

double DecimalNumber(const DECIMAL& decimal);
