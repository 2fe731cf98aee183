#pragma once

#include <algorithm>
#include <string_view>

// Small text helpers of the database layer; all of them look at ASCII characters only.

/// The character in lower case if it is an ASCII letter, else unchanged.
constexpr char LowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}
constexpr bool IsBlank(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/// Equality without regard to the case of ASCII letters: for UTF-8, and where one of the texts is ASCII.
inline bool EqualNoCase(std::string_view strA, std::string_view strB) {
    return std::equal(strA.begin(), strA.end(), strB.begin(), strB.end(),
                      [](char a, char b) { return LowerAscii(a) == LowerAscii(b); });
}

/// The text without blanks at either end.
inline std::string_view TrimBlanks(std::string_view strText) {
    while (!strText.empty() && IsBlank(strText.front()))
        strText.remove_prefix(1);
    while (!strText.empty() && IsBlank(strText.back()))
        strText.remove_suffix(1);
    return strText;
}
