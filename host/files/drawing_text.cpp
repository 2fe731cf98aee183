#include "host/files/drawing_text.h"

#include "host/files/code_table.h"
#include "platform/windows/code_page.h"

#include <array>
#include <optional>

namespace {

constexpr int g_nControlOffset = 64;                              // ^A is character 1
constexpr std::array g_arAsianPages = {932, 950, 949, 1361, 936}; // of \M+1 to \M+5
constexpr std::size_t g_nUnitLength = 7, g_nPageLength = 8;       // of the two long escapes

struct CEscape {
    std::size_t m_nLength = 0;
    wchar_t m_character = 0;
};
using CFoundEscape = std::optional<CEscape>;

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

/// The character of one escape \U+XXXX or of two.
CFoundEscape CharacterAt(std::wstring_view text, std::size_t nAt) {
    const std::optional<std::uint16_t> unit = UnitAt(text, nAt);
    if (!unit) return std::nullopt;
    const auto low = IsHighUnit(*unit) ? UnitAt(text, nAt + g_nUnitLength) : std::nullopt;
    if (low && IsLowUnit(*low))
        return CEscape{2 * g_nUnitLength,
                       static_cast<wchar_t>(0x10000 + ((*unit - 0xD800) << 10) + (*low - 0xDC00))};
    const bool bNone = *unit == 0 || IsHighUnit(*unit) || IsLowUnit(*unit);
    return CEscape{g_nUnitLength, bNone ? g_chUnknown : static_cast<wchar_t>(*unit)};
}

CFoundEscape PageCharacterAt(std::wstring_view text, std::size_t nAt) {
    const auto pageCode = PageCodeAt(text, nAt);
    const wchar_t character = pageCode ? CCodeTable::Of(pageCode->first).Character(pageCode->second) : L'\0';
    return character ? CFoundEscape({g_nPageLength, character}) : std::nullopt;
}

CFoundEscape ControlAt(std::wstring_view text, std::size_t nAt) {
    if (nAt + 1 == text.size()) return std::nullopt;
    const wchar_t chSign = text[nAt + 1];
    if (chSign == L' ') return CEscape{2, L'^'};
    if (chSign < L'@' || chSign > L'_') return std::nullopt;
    return CEscape{2, chSign == L'@' ? g_chUnknown : static_cast<wchar_t>(chSign - g_nControlOffset)};
}

void AppendUnit(std::uint32_t nUnit, std::string& strText) {
    strText += "\\U+";
    for (int nShift = 12; nShift >= 0; nShift -= 4)
        strText += "0123456789ABCDEF"[nUnit >> nShift & 0xF];
}

void AppendEscape(wchar_t character, std::string& strText) {
    const auto nCharacter = static_cast<char32_t>(character);
    if (nCharacter < 0x10000) return AppendUnit(nCharacter, strText);
    AppendUnit(0xD800 + ((nCharacter - 0x10000) >> 10 & 0x3FF), strText);
    AppendUnit(0xDC00 + (nCharacter & 0x3FF), strText);
}

} // namespace

CDrawingText::CDrawingText(int nCodePage, CCarets carets)
    : m_pTable(nCodePage == g_nUtf8Page ? nullptr : &CCodeTable::Of(nCodePage))
    , m_bCarets(carets == CCarets::Escapes) {}

CDrawingText CDrawingText::WithPlainCarets() const {
    CDrawingText plain = *this;
    plain.m_bCarets = false;
    return plain;
}

std::wstring CDrawingText::Decode(std::string_view bytes) const {
    // A backslash may be the second byte of a character, so that escapes are sought among characters only.
    std::wstring text;
    text.reserve(bytes.size());
    for (std::size_t nAt = 0; nAt < bytes.size();)
        text += Next(bytes, nAt);
    const bool bPlain = text.find_first_of(m_bCarets ? L"\\^" : L"\\") == std::wstring::npos;
    return bPlain ? text : ReplaceEscapes(text);
}

wchar_t CDrawingText::Next(std::string_view bytes, std::size_t& nAt) const {
    if (m_pTable) return m_pTable->Next(bytes, nAt);
    char32_t character = 0;
    if (NextUtf8(bytes, &nAt, &character)) return character ? static_cast<wchar_t>(character) : g_chUnknown;
    ++nAt;
    return g_chUnknown;
}

std::wstring CDrawingText::ReplaceEscapes(std::wstring_view text) const {
    std::wstring result;
    result.reserve(text.size());
    for (std::size_t nAt = 0; nAt < text.size();) {
        CFoundEscape escape;
        if (text[nAt] == L'\\') {
            escape = CharacterAt(text, nAt);
            if (!escape) escape = PageCharacterAt(text, nAt);
        } else if (m_bCarets && text[nAt] == L'^') {
            escape = ControlAt(text, nAt);
        }
        result += escape ? escape->m_character : text[nAt];
        nAt += escape ? escape->m_nLength : 1;
    }
    return result;
}

std::string CDrawingText::Encode(std::wstring_view text) const {
    std::string bytes;
    bytes.reserve(text.size() * 2);
    for (std::size_t nAt = 0; nAt < text.size(); ++nAt) {
        const wchar_t character = text[nAt];
        const bool bLikeEscape = character == L'\\' && (UnitAt(text, nAt) || PageCodeAt(text, nAt));
        if (m_bCarets && character == L'^') {
            bytes += "^ ";
        } else if (m_bCarets && character >= 0 && character < L' ') {
            bytes += {'^', static_cast<char>(character + g_nControlOffset)};
        } else if (bLikeEscape || !Append(character, bytes)) {
            AppendEscape(character, bytes);
        }
    }
    return bytes;
}

bool CDrawingText::Append(wchar_t character, std::string& strBytes) const {
    if (m_pTable) return m_pTable->Append(character, strBytes);
    const auto nCharacter = static_cast<char32_t>(character);
    if (nCharacter > 0x10FFFF || IsHighUnit(nCharacter) || IsLowUnit(nCharacter)) return false;
    AppendUtf8(nCharacter, &strBytes);
    return true;
}
