#pragma once
// Numbers as a script writes them and as the terminal shows them.

#include <string>
#include <string_view>

/// Reads all of the text as a finite decimal number (sign, point and exponent allowed). False, and *value
/// untouched, for anything else.
bool ParseNumber(std::string_view text, double* value);

/// Reads all of the text as a whole number of 32 bits, with an optional sign.
bool ParseWhole(std::string_view text, int* value);

/// The shortest text that reads back to the same number; "nan", "inf", "-inf" for what is none.
std::string NumberText(double value);
