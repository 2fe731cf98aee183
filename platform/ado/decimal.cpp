#include "platform/ado/decimal.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "platform/ado/number_text.h"
#include "platform/ado/text.h"

namespace {

constexpr int g_nMaxScale = 28;

/// 96 bits as three words, the lowest first, since no plain type is that wide.
class CDigits {
public:
    explicit CDigits(const DECIMAL& decimal = {})
        : m_arWords{static_cast<std::uint32_t>(decimal.Lo64), static_cast<std::uint32_t>(decimal.Lo64 >> 32U),
                    decimal.Hi32} {}

    /// Appends a digit; false when it no longer fits.
    bool Append(unsigned nDigit) {
        std::uint64_t nCarry = nDigit;
        for (std::uint32_t& word : m_arWords) {
            nCarry += std::uint64_t{word} * 10;
            word = static_cast<std::uint32_t>(nCarry);
            nCarry >>= 32U;
        }
        return nCarry == 0;
    }

    /// Takes the last digit off.
    char Take() {
        std::uint64_t nRest = 0;
        std::for_each(m_arWords.rbegin(), m_arWords.rend(), [&nRest](std::uint32_t& word) {
            const std::uint64_t nPart = (nRest << 32U) + word;
            word = static_cast<std::uint32_t>(nPart / 10);
            nRest = nPart % 10;
        });
        return static_cast<char>('0' + nRest);
    }

    [[nodiscard]] bool IsZero() const { return m_arWords == std::array<std::uint32_t, 3>{}; }
    void Into(DECIMAL* pDecimal) const {
        pDecimal->Lo64 = (std::uint64_t{m_arWords[1]} << 32U) + m_arWords[0];
        pDecimal->Hi32 = m_arWords[2];
    }

private:
    std::array<std::uint32_t, 3> m_arWords;
};

/// The power of ten behind the digits, taken off the text; nothing where it is no number.
std::optional<int> TakeExponent(std::string_view* pText) {
    const std::size_t nAt = pText->find_first_of("eE");
    if (nAt == std::string_view::npos) return 0;
    const std::string_view strExponent = pText->substr(nAt + 1);
    *pText = pText->substr(0, nAt);
    return NumberFromText<int>(strExponent);
}

} // namespace

std::optional<DECIMAL> DecimalFromText(std::string_view strText) {
    strText = TrimBlanks(strText);
    DECIMAL decimal;
    if (strText.starts_with('-')) decimal.sign = g_nDecimalNegative;
    if (strText.starts_with('-') || strText.starts_with('+')) strText.remove_prefix(1);
    const std::optional<int> nExponent = TakeExponent(&strText);
    if (!nExponent) return std::nullopt;
    CDigits digits;
    bool bPoint = false;
    bool bDigit = false;
    int nScale = -std::clamp(*nExponent, -1000, 1000);
    for (const char c : strText) {
        if (c == '.' && !bPoint) {
            bPoint = true;
            continue;
        }
        if (!IsDigit(c) || !digits.Append(static_cast<unsigned>(c - '0'))) return std::nullopt;
        bDigit = true;
        nScale += bPoint ? 1 : 0;
    }
    for (; nScale < 0 && !digits.IsZero(); ++nScale)
        if (!digits.Append(0)) return std::nullopt;
    if (!bDigit || nScale > g_nMaxScale) return std::nullopt;
    decimal.scale = static_cast<std::uint8_t>(std::max(nScale, 0));
    digits.Into(&decimal);
    return decimal;
}

std::optional<DECIMAL> DecimalFromNumber(double dValue) {
    if (!std::isfinite(dValue)) return std::nullopt;
    return DecimalFromText(ShortestText(dValue));
}

std::string DecimalText(const DECIMAL& decimal) {
    CDigits digits(decimal);
    std::string strReversed;
    while (!digits.IsZero() || strReversed.size() <= decimal.scale)
        strReversed += digits.Take();
    if (decimal.scale > 0) strReversed.insert(decimal.scale, 1, '.');
    if (decimal.sign == g_nDecimalNegative) strReversed += '-';
    return {strReversed.rbegin(), strReversed.rend()};
}

double DecimalNumber(const DECIMAL& decimal) {
    const double dWhole =
        std::ldexp(static_cast<double>(decimal.Hi32), 64) + static_cast<double>(decimal.Lo64);
    const double dValue = dWhole / std::pow(10.0, decimal.scale);
    return decimal.sign == g_nDecimalNegative ? -dValue : dValue;
}
