#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ado/cursor.h"
#include "platform/ado/odbc_statement.h"
#include "platform/ado/plain_select.h"

/// Rows of a database behind a driver. Where each row is one row of one table, and the engine is one that
/// tells rows apart (COdbcEngine::MarkColumns), each row's mark is read along, hidden, and a write goes by
/// it. A row that other programs changed since is found again: by its mark's successor, else as the one row
/// of the statement that is not accounted for.
class COdbcCursor : public CDbCursor {
public:
    /// Runs the statement, UTF-8 and in the engine's words, and reads every row.
    COdbcCursor(COdbcHandle pLink, std::string strSqlUtf8, std::span<const CDbValue> arParameters);

private:
    enum class Search { Found, Gone, Ambiguous };

    void WriteRow(std::size_t nRow, const std::vector<CDbChange>& arChanges) override;
    void AddRow(const std::vector<CDbChange>& arChanges) override;
    void EraseRow(std::size_t nRow) override;
    bool ReadRowAgain(std::size_t nRow) override;
    [[nodiscard]] std::string TableName() const override { return m_strTable; }

    void RunWithMarks(COdbcStatement& statement);
    void ReadColumns(const COdbcStatement& statement);
    void ReadRow(COdbcStatement& statement);
    /// The value of a column of the row fetched. Text and bytes lie in m_strText and m_arBytes.
    CDbCell ReadCell(COdbcStatement& statement, std::size_t nColumn);
    static CRowMark ReadMark(COdbcStatement& statement, std::size_t nFirstColumn);

    /// Throws where rows cannot be written.
    void RequireOneTable() const;
    /// The table's own name of a column that is to be written.
    [[nodiscard]] const std::string& WrittenName(const CDbChange& change) const;
    /// Runs a write on one row, which gives the row's mark; one that finds no row throws.
    void RunOnRow(const std::string& strSql, std::span<const CDbValue> arValues, std::size_t nRow);

    /// Finds the row where other programs have put it.
    Search FindAgain(std::size_t nRow);
    /// The mark of the table's row that meets a condition.
    [[nodiscard]] std::optional<CRowMark> MarkWhere(const std::string& strCondition) const;
    Search FindByElimination(std::size_t nRow);
    /// The rows whose marks the other one does not have.
    [[nodiscard]] std::vector<std::size_t> RowsNotIn(const COdbcCursor& other) const;
    [[nodiscard]] bool SameValues(std::size_t nRow, const COdbcCursor& other, std::size_t nOther) const;

    COdbcHandle m_pLink;
    std::string m_strSql; ///< as it came
    std::vector<CDbValue> m_arParameters;
    std::optional<CPlainSelect> m_select; ///< nothing where rows have no marks
    std::string m_strTable;               ///< GBK, for messages
    std::vector<std::string> m_arOrigins; ///< what each column is called in a statement that writes it
    std::vector<CRowMark> m_arMarks;
    std::map<std::size_t, std::vector<CRowMark>> m_mapEarlier; ///< of rows written here, oldest first
    std::string m_strText;
    std::vector<unsigned char> m_arBytes;
};
