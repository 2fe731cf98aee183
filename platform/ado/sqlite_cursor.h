#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/ado/cursor.h"
#include "platform/ado/sqlite_statement.h"

/// Rows of a SQLite database. Where each row is one row of one table its row number is read along, hidden,
/// and an update goes by it.
class CSqliteCursor : public CDbCursor {
public:
    /// Runs the statement, UTF-8 and in the engine's words, and reads every row.
    CSqliteCursor(CSqliteHandle pDatabase, std::string_view strSqlUtf8,
                  std::span<const CDbValue> arParameters);

private:
    void WriteRow(std::size_t nRow, const std::vector<CDbChange>& arChanges) override;
    void AddRow(const std::vector<CDbChange>& arChanges) override;
    void EraseRow(std::size_t nRow) override;
    bool ReadRowAgain(std::size_t nRow) override;
    [[nodiscard]] std::string TableName() const override { return m_strTable; }

    [[nodiscard]] CSqliteStatement Prepared(std::string_view strSql);
    void ReadColumns(sqlite3_stmt* pStatement);
    void ReadRow(sqlite3_stmt* pStatement);
    /// The value of a column of the row that the statement stands on. A text lies in *pText.
    CDbCell ReadCell(sqlite3_stmt* pStatement, std::size_t nColumn, std::string* pText) const;
    [[nodiscard]] std::string ReadText(sqlite3_stmt* pStatement, int nColumn) const;

    /// Throws where the result is not the rows of one table.
    void RequireOneTable() const;
    /// The row's number, under the same condition.
    [[nodiscard]] std::int64_t RowNumber(std::size_t nRow) const;
    /// A statement that reads all columns of the row with a number.
    [[nodiscard]] CSqliteStatement RowReader(std::int64_t nRowNumber) const;
    /// Runs a write on one row; one that finds no row throws.
    void RunOnRow(const std::string& strSql, const std::vector<CDbChange>& arChanges, std::size_t nRow);
    /// The table's own name of a column that is to be written, quoted; a computed column throws.
    [[nodiscard]] std::string WrittenName(const CDbChange& change) const;

    CSqliteHandle m_pDatabase;
    bool m_bRowNumbers = false; ///< whether the statement has the row number as its hidden last column
    std::string m_strTable;     ///< GBK, for messages
    std::string m_strTableUtf8; ///< the first table behind a column
    std::string m_strRowNumber; ///< the table's own name of it, UTF-8; empty where a view gives none
    std::vector<std::string> m_arOrigins; ///< the table's own name of each column, UTF-8; empty: computed
    std::vector<std::int64_t> m_arRowNumbers;
};
