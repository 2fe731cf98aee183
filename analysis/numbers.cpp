#include "analysis/numbers.h"

#include <charconv>
#include <limits>

double RoundToTwoDecimals(double dValue) {
    // to_chars and from_chars round as "%.2f" and atof do, and no locale can put a comma between them.
    char text[400]; // a double has at most 309 digits before its point
    const std::to_chars_result written =
        std::to_chars(text, text + sizeof text, dValue, std::chars_format::fixed, 2);
    double dRead = 0.0;
    std::from_chars(text, written.ptr, dRead);
    return dRead;
}

double CutToTwoDecimals(double dValue) {
    return TruncateToInt32(dValue * 100.0) / 100.0;
}

Adesk::Int32 TruncateToInt32(double dValue) {
    // Written so that a NaN, for which every comparison is false, takes the last line.
    if (dValue > -2147483649.0 && dValue < 2147483648.0) return static_cast<Adesk::Int32>(dValue);
    return std::numeric_limits<Adesk::Int32>::min();
}
