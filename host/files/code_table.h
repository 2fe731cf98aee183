#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// What stands for bytes that are no character.
constexpr wchar_t g_chUnknown = 0xFFFD;

/// A code page as a table: characters of the basic plane in one or two bytes. Its lower half is ASCII.
class CCodeTable {
public:
    /// The table of a page by the system's number, made when it is first asked for and kept; the Western one
    /// for a number that the system does not know.
    static const CCodeTable& Of(int nCodePage);

    /// By the number of a page that the system knows.
    explicit CCodeTable(int nCodePage);

    /// The character at nAt, which is moved past it; U+FFFD for a zero and for a byte that is part of none.
    /// nAt < text.size().
    wchar_t Next(std::string_view text, std::size_t& nAt) const;
    /// The character of a code of one byte or two; 0 for none.
    wchar_t Character(std::uint16_t nCode) const { return m_decoded[nCode]; }
    /// Appends the character's bytes; false, and nothing appended, when the page has no such character.
    bool Append(wchar_t character, std::string& strText) const;

private:
    void Enter(unsigned nCode, wchar_t character);

    std::vector<std::uint16_t> m_decoded, m_encoded; ///< 0 for none
};
