#include "platform/ado/odbc_text.h"

#include "platform/windows/code_page.h"

namespace {

constexpr char32_t g_cReplacement = 0xFFFD;
constexpr char32_t g_cFirstPaired = 0x10000;

bool IsLeading(char16_t c) {
    return c >= 0xD800 && c < 0xDC00;
}
bool IsTrailing(char16_t c) {
    return c >= 0xDC00 && c < 0xE000;
}

} // namespace

std::u16string Utf16FromUtf8(std::string_view strUtf8) {
    std::u16string strUtf16;
    strUtf16.reserve(strUtf8.size());
    for (std::size_t nAt = 0; nAt < strUtf8.size();) {
        char32_t character = g_cReplacement;
        if (!NextUtf8(strUtf8, &nAt, &character)) ++nAt;
        if (character < g_cFirstPaired) {
            strUtf16 += static_cast<char16_t>(character);
        } else {
            strUtf16 += static_cast<char16_t>(0xD800 + ((character - g_cFirstPaired) >> 10U));
            strUtf16 += static_cast<char16_t>(0xDC00 + (character & 0x3FFU));
        }
    }
    return strUtf16;
}

std::string Utf8FromUtf16(std::u16string_view strUtf16) {
    std::string strUtf8;
    strUtf8.reserve(strUtf16.size());
    for (std::size_t i = 0; i < strUtf16.size(); ++i) {
        char32_t character = strUtf16[i];
        if (IsLeading(strUtf16[i]) && i + 1 < strUtf16.size() && IsTrailing(strUtf16[i + 1])) {
            character = g_cFirstPaired + ((character & 0x3FFU) << 10U) + (strUtf16[i + 1] & 0x3FFU);
            ++i;
        } else if (IsLeading(strUtf16[i]) || IsTrailing(strUtf16[i])) {
            character = g_cReplacement;
        }
        AppendUtf8(character, &strUtf8);
    }
    return strUtf8;
}
