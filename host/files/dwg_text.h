#pragma once
// Texts of a drawing file: bytes in its code page, other characters as escapes.

#include "host/files/code_table.h"

#include <map>

// Code pages by their numbers in the file.
inline constexpr std::uint16_t g_nDwgAnsi1252 = 30;
inline constexpr std::uint16_t g_nDwgAnsi936 = 39;

/// Converts between a drawing's texts and wide ones. A character that the code page lacks stands as \U+XXXX,
/// by its UTF-16 units; \M+NXXXX, a code of the Asian page N (1 Japanese, 2 traditional Chinese, 3 Korean, 4
/// the older Korean, 5 simplified Chinese), is read too.
class CDwgText {
public:
    /// By the number in the file; Western (1252) for a number that is none.
    explicit CDwgText(std::uint16_t nNumber);

    /// Bytes that are no character give U+FFFD; what only looks like an escape stays as it is.
    std::wstring Decode(std::string_view bytes) const;
    /// A backslash that would be read as the start of an escape is written as one itself, so that Decode
    /// gives the same text again.
    std::string Encode(std::wstring_view text) const;

private:
    std::wstring ReplaceEscapes(std::wstring_view text) const;
    wchar_t FromPage(int nPage, std::uint16_t nCode) const;

    CCodeTable m_table;
    mutable std::map<int, CCodeTable> m_mapPages; ///< those that \M+ asked for, by the system's numbers
};
