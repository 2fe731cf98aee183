#pragma once

#include <optional>
#include <string>
#include <string_view>

// Dates as the databases keep them, "2024-03-09" or "2024-03-09 12:30:00", and as variants have them: days
// since 1899-12-30. Before that day the fraction still runs forward, so -1.25 is 1899-12-29, six o'clock.

/// The days of a date text; between day and time may stand a T, seconds and their fraction may be missing.
/// Nothing where the text is no date.
std::optional<double> DaysFromText(std::string_view strText);

/// The text of a date, with its time, to the second, where it is not midnight. Empty for a number outside the
/// years 100 to 9999.
std::string DateText(double dDays);
