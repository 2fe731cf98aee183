#pragma once

#include <array>
#include <charconv>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

/// The number that the whole text is, e.g. "-12", "+1.5e3"; nothing for any other text and for a number that
/// the type does not hold.
template <class Number>
std::optional<Number> NumberFromText(std::string_view strText) {
    if (strText.starts_with('+')) strText.remove_prefix(strText.starts_with("+-") ? 0 : 1);
    Number value{};
    const auto [pEnd, error] = std::from_chars(strText.data(), strText.data() + strText.size(), value);
    if (strText.empty() || error != std::errc() || pEnd != strText.data() + strText.size())
        return std::nullopt;
    return value;
}

/// The shortest text that reads back as this very number, e.g. "-12", "1.5e+30".
template <class Number>
std::string ShortestText(Number value) {
    std::array<char, 64> szText{};
    return {szText.data(), std::to_chars(szText.data(), szText.data() + szText.size(), value).ptr};
}
