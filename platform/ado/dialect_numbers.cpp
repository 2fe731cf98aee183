#include "platform/ado/dialect_numbers.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string>

#include "platform/ado/text.h"

namespace {

std::size_t DigitsFrom(std::string_view strText, std::size_t nAt) {
    const std::size_t nStart = nAt;
    while (nAt < strText.size() && IsDigit(strText[nAt]))
        ++nAt;
    return nAt - nStart;
}

/// The length of the decimal number at the start of the text; 0 where there is none.
std::size_t NumberLength(std::string_view strText) {
    std::size_t nAt = !strText.empty() && (strText[0] == '+' || strText[0] == '-') ? 1 : 0;
    const std::size_t nWhole = DigitsFrom(strText, nAt);
    nAt += nWhole;
    std::size_t nFraction = 0;
    if (nAt < strText.size() && strText[nAt] == '.') {
        nFraction = DigitsFrom(strText, nAt + 1);
        nAt += nFraction + 1;
    }
    if (nWhole + nFraction == 0) return 0;
    if (nAt < strText.size() && (LowerAscii(strText[nAt]) == 'e' || LowerAscii(strText[nAt]) == 'd')) {
        std::size_t nExponent = nAt + 1;
        if (nExponent < strText.size() && (strText[nExponent] == '+' || strText[nExponent] == '-'))
            ++nExponent;
        if (const std::size_t nDigits = DigitsFrom(strText, nExponent)) nAt = nExponent + nDigits;
    }
    return nAt;
}

} // namespace

double LeadingNumber(std::string_view strText) {
    std::string strDense;
    std::copy_if(strText.begin(), strText.end(), std::back_inserter(strDense),
                 [](char c) { return !IsBlank(c); });
    strDense.resize(NumberLength(strDense));
    std::replace_if(
        strDense.begin(), strDense.end(), [](char c) { return LowerAscii(c) == 'd'; }, 'e');
    const std::size_t nPlus = !strDense.empty() && strDense[0] == '+' ? 1 : 0;
    double dValue = 0.0;
    const auto result = std::from_chars(strDense.data() + nPlus, strDense.data() + strDense.size(), dValue);
    if (result.ec != std::errc::result_out_of_range) return dValue;
    const std::size_t nExponent = strDense.find_first_of("eE");
    if (nExponent != std::string::npos && strDense[nExponent + 1] == '-') return 0.0;
    const double dLargest = std::numeric_limits<double>::max();
    return strDense[0] == '-' ? -dLargest : dLargest;
}

bool IsNumericText(std::string_view strText) {
    const std::string_view strTrimmed = TrimBlanks(strText);
    return !strTrimmed.empty() && NumberLength(strTrimmed) == strTrimmed.size();
}
