#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A SELECT of plain columns of one table, in which every row of the result is one row of that table: without
/// DISTINCT, grouping or joins. Texts are as the statement has them.
struct CPlainSelect {
    std::string m_strColumns;             ///< what stands between SELECT and FROM
    std::string m_strTable;               ///< with its schema where one is named
    std::string m_strAlias;               ///< the table's other name; empty where it has none
    std::vector<std::string> m_arColumns; ///< each column without its table and other name; `*` for all
    std::size_t m_nColumnsEnd = 0;        ///< place in the statement where a further column can be added

    /// The table, and its other name if it has one, as UPDATE and INSERT take it.
    [[nodiscard]] std::string Target() const {
        return m_strAlias.empty() ? m_strTable : m_strTable + " AS " + m_strAlias;
    }
};

/// Takes such a statement apart; nothing for any other.
std::optional<CPlainSelect> ReadPlainSelect(std::string_view strSql);

/// The same statement with hidden columns, such as a row number, added as the last ones, when every row of
/// its result is one row of one table. Else nothing.
std::optional<std::string> WithHiddenColumns(std::string_view strSql, std::string_view strHidden);
