#include "host/console/numbers.h"

#include <array>
#include <charconv>
#include <cmath>

namespace {

// from_chars takes no plus sign; one that another sign follows stays, and is refused there.
std::string_view WithoutPlus(std::string_view text) {
    const bool bPlus = text.size() > 1 && text[0] == '+' && text[1] != '-';
    return bPlus ? text.substr(1) : text;
}

template <class T>
bool ParseAll(std::string_view text, T* value) {
    const std::string_view digits = WithoutPlus(text);
    T parsed{};
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), parsed);
    if (error != std::errc() || end != digits.data() + digits.size()) return false;
    *value = parsed;
    return true;
}

} // namespace

bool ParseNumber(std::string_view text, double* value) {
    double parsed = 0.0;
    if (!ParseAll(text, &parsed) || !std::isfinite(parsed)) return false;
    *value = parsed;
    return true;
}

bool ParseWhole(std::string_view text, int* value) {
    return ParseAll(text, value);
}

std::string NumberText(double value) {
    if (std::isnan(value)) return "nan"; // never with a sign
    std::array<char, 32> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    return {buffer.data(), result.ptr};
}
