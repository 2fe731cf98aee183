#pragma once

#include <cstddef>
#include <memory_resource>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ado/types.h"
#include "platform/ado/value.h"

/// A column of a result.
struct CDbColumn {
    std::string m_strName;
    DBTYPE m_wType = DBTYPE_EMPTY; ///< as the table declares it; DBTYPE_EMPTY where nothing is declared
    std::size_t m_nSize = 0;       ///< characters or bytes that it is declared to hold; 0 where none are said
};

/// The variant type of a cell of a column: the declared one where the value fits it, else the value's own,
/// DBTYPE_NULL for NULL.
DBTYPE CellType(const CDbCell& cell, DBTYPE wDeclared);

/// A new value for the column at a position (from 0) of a row.
struct CDbChange {
    std::size_t m_nColumn;
    CDbValue m_value;
};

/// The rows of one statement. All of them are read when the statement runs, so no lock outlives the call;
/// from then on only InsertRow adds to them, and a deleted row keeps its position and its last values.
/// Positions are kept by whoever walks the rows. Operations that fail throw CDbError; a write that is given
/// up is reported in the text window too, naming table and row.
class CDbCursor {
public:
    CDbCursor() = default;
    CDbCursor(const CDbCursor&) = delete;
    CDbCursor& operator=(const CDbCursor&) = delete;
    virtual ~CDbCursor() = default;

    [[nodiscard]] const std::vector<CDbColumn>& Columns() const { return m_arColumns; }
    [[nodiscard]] std::size_t RowCount() const { return m_nRows; }
    /// The position of a column by name, without regard to case.
    [[nodiscard]] std::optional<std::size_t> FindColumn(std::string_view strName) const;
    [[nodiscard]] const CDbCell& Cell(std::size_t nRow, std::size_t nColumn) const {
        return m_arCells[nRow * m_arColumns.size() + nColumn];
    }
    [[nodiscard]] DBTYPE CellType(std::size_t nRow, std::size_t nColumn) const {
        return ::CellType(Cell(nRow, nColumn), m_arColumns[nColumn].m_wType);
    }

    /// Writes these columns of exactly this row, also where other rows hold the same values.
    void UpdateRow(std::size_t nRow, const std::vector<CDbChange>& arChanges);
    /// Stores a new row in the one table behind the result; columns not named get the table's own values. The
    /// row, as it was stored, becomes the last one.
    void InsertRow(const std::vector<CDbChange>& arChanges);
    /// Deletes exactly this row from its table.
    void DeleteRow(std::size_t nRow);
    /// Reads the row's values anew. False, with the values as they were, when the row is no longer there.
    bool RefreshRow(std::size_t nRow);

protected:
    void SetColumns(std::vector<CDbColumn> arColumns) { m_arColumns = std::move(arColumns); }
    /// Appends one cell; rows fill up from left to right. Text and bytes are copied.
    void AppendCell(const CDbCell& cell);
    /// Replaces one cell. Text and bytes are copied.
    void SetCell(std::size_t nRow, std::size_t nColumn, const CDbCell& cell);

private:
    /// The engine's part of UpdateRow.
    virtual void WriteRow(std::size_t nRow, const std::vector<CDbChange>& arChanges) = 0;
    /// The engine's part of InsertRow: inserts, then appends every cell of the row as it was stored.
    virtual void AddRow(const std::vector<CDbChange>& arChanges) = 0;
    /// The engine's part of DeleteRow; a row that is already gone is an error.
    virtual void EraseRow(std::size_t nRow) = 0;
    /// The engine's part of RefreshRow: sets every cell of the row; false when it is gone.
    virtual bool ReadRowAgain(std::size_t nRow) = 0;
    /// The table a message names; empty where the result has no single table.
    [[nodiscard]] virtual std::string TableName() const = 0;
    [[nodiscard]] std::span<const CDbCell> Row(std::size_t nRow) const;
    [[nodiscard]] std::string RowName(std::span<const CDbCell> arRow) const;
    /// Runs a write; one that fails is reported as given up, with what happened to the row.
    template <class Write>
    void ReportFailure(std::span<const CDbCell> arRow, const char* pszOutcome, const Write& write);
    [[nodiscard]] CDbCell Kept(const CDbCell& cell);

    std::vector<CDbColumn> m_arColumns;
    std::vector<CDbCell> m_arCells;
    std::pmr::monotonic_buffer_resource m_texts; ///< texts and bytes of the cells
    std::size_t m_nRows = 0;
};

/// The value as a cell, whose text or bytes lie in the value.
CDbCell CellOf(const CDbValue& value);

/// The cell's text: a text as it is, a number in its shortest exact form, bytes in hexadecimal, NULL as
/// nothing.
std::string CellText(const CDbCell& cell);
