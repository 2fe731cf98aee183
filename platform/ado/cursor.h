#pragma once

#include <cstddef>
#include <memory_resource>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ado/types.h"
#include "platform/ado/value.h"

/// A column of a result.
struct CDbColumn {
    std::string m_strName;
    DBTYPE m_wType = DBTYPE_EMPTY; ///< as the table declares it; DBTYPE_EMPTY where nothing is declared
};

/// A new value for the column at a position (from 0) of a row.
struct CDbChange {
    std::size_t m_nColumn;
    CDbValue m_value;
};

/// The rows of one statement. All of them are read when the statement runs, so no lock outlives the call;
/// which rows there are is fixed from then on. Positions are kept by whoever walks the rows. Operations that
/// fail throw CDbError.
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
    /// The variant type of a cell: the declared one where the value fits it, else the value's own,
    /// DBTYPE_NULL for NULL.
    [[nodiscard]] DBTYPE CellType(std::size_t nRow, std::size_t nColumn) const;

    /// Writes these columns of exactly this row, also where other rows hold the same values. A write that is
    /// given up is reported in the text window, naming table and row, and thrown.
    void UpdateRow(std::size_t nRow, const std::vector<CDbChange>& arChanges);

protected:
    void SetColumns(std::vector<CDbColumn> arColumns) { m_arColumns = std::move(arColumns); }
    /// Appends one cell; rows fill up from left to right. A text is copied.
    void AppendCell(const CDbCell& cell);

private:
    /// The engine's part of UpdateRow.
    virtual void WriteRow(std::size_t nRow, const std::vector<CDbChange>& arChanges) = 0;
    /// The table a message names; empty where the result has no single table.
    [[nodiscard]] virtual std::string TableName() const = 0;
    [[nodiscard]] std::string RowName(std::size_t nRow) const;
    [[nodiscard]] CDbCell Kept(const CDbCell& cell);

    std::vector<CDbColumn> m_arColumns;
    std::vector<CDbCell> m_arCells;
    std::pmr::monotonic_buffer_resource m_texts;
    std::size_t m_nRows = 0;
};

/// The cell's text: a text as it is, a number in its shortest exact form, NULL as nothing.
std::string CellText(const CDbCell& cell);
