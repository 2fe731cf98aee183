#pragma once

#include "host/files/code_page.h"
#include "host/files/code_table.h"

/// Converts between the texts of a drawing file, which are bytes in its code page, and wide ones. A character
/// that the code page lacks stands as \U+XXXX, by its UTF-16 units; \M+NXXXX, a code of the Asian page N (1
/// Japanese, 2 traditional Chinese, 3 Korean, 4 the older Korean, 5 simplified Chinese), is read too.
class CDrawingText {
public:
    /// Whether `^` and a sign stands for a control character or, with a blank, for the `^` itself.
    enum class CCarets { Plain, Escapes };

    /// By the system's number, UTF-8 too; Western for a page that is not known.
    explicit CDrawingText(int nCodePage, CCarets carets = CCarets::Plain);

    /// The same page, where a `^` is nothing but that.
    CDrawingText WithPlainCarets() const;

    /// Bytes and escapes that are no character, or a zero, give U+FFFD; what only looks like an escape stays
    /// as it is.
    std::wstring Decode(std::string_view bytes) const;
    /// What would be read as the start of an escape is written as one itself, so that Decode gives the same
    /// text again.
    std::string Encode(std::wstring_view text) const;

private:
    wchar_t Next(std::string_view bytes, std::size_t& nAt) const;
    bool Append(wchar_t character, std::string& strBytes) const;
    std::wstring ReplaceEscapes(std::wstring_view text) const;

    const CCodeTable* m_pTable; ///< null for UTF-8
    bool m_bCarets;
};
