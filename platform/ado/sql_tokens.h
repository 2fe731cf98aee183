#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

enum class SqlTokenKind {
    Word,       ///< keyword, name or function
    QuotedName, ///< "name", [name] or `name`
    Text,       ///< 'text', a doubled quote inside being one quote
    Number,
    Parameter,
    Open,
    Close,
    Operator ///< everything else: operators, comma, point, semicolon
};

/// One token of a statement, without the blanks and comments around it.
struct CSqlToken {
    SqlTokenKind m_kind;
    std::size_t m_nStart; ///< place in the statement
    std::string_view m_strText;

    [[nodiscard]] std::size_t End() const { return m_nStart + m_strText.size(); }
    [[nodiscard]] bool Is(std::string_view strOperator) const {
        return m_kind == SqlTokenKind::Operator && m_strText == strOperator;
    }
    /// Whether this is the word, in any case.
    [[nodiscard]] bool IsWord(std::string_view strWord) const;
};

/// Takes a statement, UTF-8, apart. A literal that is never closed reaches to the statement's end.
std::vector<CSqlToken> TokenizeSql(std::string_view strSql);

/// Whether the token is a word of the language that can be neither a name nor an operand, nor stand inside
/// one.
bool IsSqlClauseWord(const CSqlToken& token);
