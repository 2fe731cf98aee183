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
    [[nodiscard]] std::string TableName() const override { return m_strTable; }

    [[nodiscard]] CSqliteStatement Prepared(std::string_view strSql);
    void ReadColumns(sqlite3_stmt* pStatement);
    void ReadRow(sqlite3_stmt* pStatement);
    [[nodiscard]] std::string ReadText(sqlite3_stmt* pStatement, int nColumn) const;
    [[nodiscard]] std::string UpdateStatement(const std::vector<CDbChange>& arChanges) const;

    CSqliteHandle m_pDatabase;
    bool m_bRowNumbers = false;
    std::string m_strTable;               ///< GBK, for messages
    std::vector<std::string> m_arTables;  ///< the table behind each column, UTF-8; empty behind an expression
    std::vector<std::string> m_arOrigins; ///< the table's own name of each column, UTF-8
    std::vector<std::int64_t> m_arRowNumbers; ///< 0 where a row has none
};
