#pragma once

#include <string_view>

/// The value of the number that a text begins with, blanks left out: "12A" gives 12, "1-2" gives 1, "ZK1"
/// gives 0. Sign, point and an exponent written with E or D count.
double LeadingNumber(std::string_view strText);

/// Whether the whole text, blanks at either end left out, is a decimal number.
bool IsNumericText(std::string_view strText);
