#include "host/files/dwg_text.h"

#include <array>
#include <optional>

namespace {

int SystemPage(std::uint16_t nNumber) {
    static const std::map<std::uint16_t, int> s_pages = {
        {28, 1250}, {29, 1251},           {g_nDwgAnsi1252, 1252},
        {32, 1253}, {33, 1254},           {34, 1255},
        {35, 1256}, {36, 1257},           {37, 874},
        {38, 932},  {g_nDwgAnsi936, 936}, {40, 949},
        {41, 950},  {42, 1361},           {44, 1258}};
    const auto found = s_pages.find(nNumber);
    return found == s_pages.end() ? 1252 : found->second;
}

constexpr std::array g_arAsianPages = {932, 950, 949, 1361, 936}; // of \M+1 to \M+5
constexpr std::size_t g_nUnicodeLength = 7, g_nPageLength = 8;    // of the two escapes

/// Four hexadecimal digits at nAt.
std::optional<std::uint16_t> HexAt(std::wstring_view text, std::size_t nAt) {
    if (text.size() < nAt + 4) return std::nullopt;
    unsigned nValue = 0;
    for (const wchar_t ch : text.substr(nAt, 4)) {
        const std::size_t nDigit = std::wstring_view(L"0123456789ABCDEFabcdef").find(ch);
        if (nDigit == std::wstring_view::npos) return std::nullopt;
        nValue = nValue << 4 | static_cast<unsigned>(nDigit < 16 ? nDigit : nDigit - 6);
    }
    return static_cast<std::uint16_t>(nValue);
}

/// The unit of an escape \U+XXXX at nAt.
std::optional<std::uint16_t> UnitAt(std::wstring_view text, std::size_t nAt) {
    return text.substr(nAt, 3) == L"\\U+" ? HexAt(text, nAt + 3) : std::nullopt;
}

/// The page and the code of an escape \M+NXXXX at nAt.
std::optional<std::pair<int, std::uint16_t>> PageCodeAt(std::wstring_view text, std::size_t nAt) {
    if (text.substr(nAt, 3) != L"\\M+" || text.size() < nAt + g_nPageLength) return std::nullopt;
    const wchar_t chPage = text[nAt + 3];
    const std::optional<std::uint16_t> code = HexAt(text, nAt + 4);
    if (chPage < L'1' || chPage > L'5' || !code) return std::nullopt;
    return std::pair(g_arAsianPages[static_cast<std::size_t>(chPage - L'1')], *code);
}

bool IsHighUnit(std::uint32_t nUnit) {
    return nUnit >= 0xD800 && nUnit < 0xDC00;
}
bool IsLowUnit(std::uint32_t nUnit) {
    return nUnit >= 0xDC00 && nUnit < 0xE000;
}

void AppendUnit(std::uint32_t nUnit, std::string& strText) {
    strText += "\\U+";
    for (int nShift = 12; nShift >= 0; nShift -= 4)
        strText += "0123456789ABCDEF"[nUnit >> nShift & 0xF];
}

void AppendEscape(wchar_t character, std::string& strText) {
    const auto nCharacter = static_cast<std::uint32_t>(character);
    if (nCharacter < 0x10000) return AppendUnit(nCharacter, strText);
    AppendUnit(0xD800 + ((nCharacter - 0x10000) >> 10 & 0x3FF), strText);
    AppendUnit(0xDC00 + (nCharacter & 0x3FF), strText);
}

} // namespace

CDwgText::CDwgText(std::uint16_t nNumber)
    : m_table(SystemPage(nNumber)) {}

std::wstring CDwgText::Decode(std::string_view bytes) const {
    // A backslash may be the second byte of a character, so that escapes are sought among characters only.
    std::wstring text;
    text.reserve(bytes.size());
    for (std::size_t nAt = 0; nAt < bytes.size();)
        text += m_table.Next(bytes, nAt);
    return text.find(L'\\') == std::wstring::npos ? text : ReplaceEscapes(text);
}

std::wstring CDwgText::ReplaceEscapes(std::wstring_view text) const {
    std::wstring result;
    for (std::size_t nAt = 0; nAt < text.size();) {
        if (const auto unit = UnitAt(text, nAt)) {
            nAt += g_nUnicodeLength;
            const auto low = IsHighUnit(*unit) ? UnitAt(text, nAt) : std::nullopt;
            if (!low || !IsLowUnit(*low)) {
                result += static_cast<wchar_t>(*unit);
                continue;
            }
            nAt += g_nUnicodeLength;
            result += static_cast<wchar_t>(0x10000 + ((*unit - 0xD800) << 10) + (*low - 0xDC00));
            continue;
        }
        const auto pageCode = PageCodeAt(text, nAt);
        if (const wchar_t character = pageCode ? FromPage(pageCode->first, pageCode->second) : L'\0') {
            result += character;
            nAt += g_nPageLength;
            continue;
        }
        result += text[nAt++];
    }
    return result;
}

wchar_t CDwgText::FromPage(int nPage, std::uint16_t nCode) const {
    return m_mapPages.try_emplace(nPage, nPage).first->second.Character(nCode);
}

std::string CDwgText::Encode(std::wstring_view text) const {
    std::string bytes;
    bytes.reserve(text.size() * 2);
    for (std::size_t nAt = 0; nAt < text.size(); ++nAt) {
        const bool bLikeEscape = UnitAt(text, nAt) || PageCodeAt(text, nAt);
        if (bLikeEscape || !m_table.Append(text[nAt], bytes)) AppendEscape(text[nAt], bytes);
    }
    return bytes;
}
