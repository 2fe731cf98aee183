#include "host/datamanager/numbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace {

std::size_t DigitsAt(std::string_view strText, std::size_t nPlace) {
    std::size_t nDigits = 0;
    while (nPlace + nDigits < strText.size() && strText[nPlace + nDigits] >= '0' &&
           strText[nPlace + nDigits] <= '9')
        ++nDigits;
    return nDigits;
}

std::size_t SignAt(std::string_view strText, std::size_t nPlace) {
    return nPlace < strText.size() && (strText[nPlace] == '-' || strText[nPlace] == '+') ? 1 : 0;
}

bool IsDecimal(std::string_view strText) {
    std::size_t nPlace = SignAt(strText, 0);
    std::size_t nDigits = DigitsAt(strText, nPlace);
    nPlace += nDigits;
    if (nPlace < strText.size() && strText[nPlace] == '.') {
        const std::size_t nFraction = DigitsAt(strText, ++nPlace);
        nDigits += nFraction;
        nPlace += nFraction;
    }
    if (nDigits == 0) return false;
    if (nPlace == strText.size()) return true;
    if (strText[nPlace] != 'e' && strText[nPlace] != 'E') return false;
    ++nPlace;
    nPlace += SignAt(strText, nPlace);
    const std::size_t nExponent = DigitsAt(strText, nPlace);
    return nExponent > 0 && nPlace + nExponent == strText.size();
}

} // namespace

std::optional<std::int64_t> ParseWhole(std::string_view strText, std::int64_t nLowest,
                                       std::int64_t nHighest) {
    const std::size_t nSign = SignAt(strText, 0);
    const std::size_t nDigits = DigitsAt(strText, nSign);
    if (nDigits == 0 || nSign + nDigits != strText.size()) return std::nullopt;
    if (strText.front() == '+') strText.remove_prefix(1);
    std::int64_t nValue = 0;
    if (std::from_chars(strText.data(), strText.data() + strText.size(), nValue).ec != std::errc())
        return std::nullopt;
    if (nValue < nLowest || nValue > nHighest) return std::nullopt;
    return nValue;
}

std::optional<double> ParseDecimal(std::string_view strText) {
    if (!IsDecimal(strText)) return std::nullopt;
    if (strText.front() == '+') strText.remove_prefix(1);
    double value = 0;
    const auto result = std::from_chars(strText.data(), strText.data() + strText.size(), value);
    // Out of range is too large or too near to zero; strtod tells which. The C locale is never changed.
    if (result.ec != std::errc()) value = std::strtod(std::string(strText).c_str(), nullptr);
    if (!(std::abs(value) <= static_cast<double>(std::numeric_limits<float>::max()))) return std::nullopt;
    return value;
}

std::string ShortestFloat(float value) {
    if (std::isnan(value)) return "nan";
    std::array<char, 32> szText{};
    const auto result = std::to_chars(szText.data(), szText.data() + szText.size(), value);
    return {szText.data(), result.ptr};
}

double CellNumber(const CDbCell& cell) {
    if (const auto* pWhole = std::get_if<std::int64_t>(&cell)) return static_cast<double>(*pWhole);
    const auto* pReal = std::get_if<double>(&cell);
    return pReal ? *pReal : 0.0;
}

std::int64_t CellWhole(const CDbCell& cell) {
    if (const auto* pWhole = std::get_if<std::int64_t>(&cell)) return *pWhole;
    constexpr double dExactBelow = 9007199254740992.0; // every whole number below it is a double
    const double dValue = CellNumber(cell);
    return std::abs(dValue) < dExactBelow && dValue == std::trunc(dValue) ? static_cast<std::int64_t>(dValue)
                                                                          : 0;
}
