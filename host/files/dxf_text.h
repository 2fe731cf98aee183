#pragma once
// Texts of a DXF file. Escapes: `\U+XXXX` a character, `\M+nXXXX` one of an East Asian code page, `^` and a
// sign a control character or, with a blank, the `^` itself.

#include <string>
#include <string_view>

/// The encoding of a file's texts.
class CDxfEncoding {
public:
    CDxfEncoding() = default; ///< UTF-8
    /// A code page as a file names it ("ANSI_936", "gb2312", "dos850"); ANSI_1252 for a name that is none.
    explicit CDxfEncoding(std::string_view codePage);

    /// The text with its escapes resolved; bytes that are no character, and a zero, become U+FFFD.
    std::wstring Decode(std::string_view text) const;

private:
    std::string m_strCharset = "UTF-8"; ///< as the C library's converter calls it
};

/// The code page of the texts that are written.
inline constexpr std::string_view g_szDxfCodePage = "ANSI_936";

/// The text in that code page; what it lacks is escaped.
std::string EncodeDxfText(std::wstring_view text);
