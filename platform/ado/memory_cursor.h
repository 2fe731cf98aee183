#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/ado/cursor.h"

/// Rows that no database stands behind: what is written to them stays in memory.
class CMemoryCursor : public CDbCursor {
public:
    explicit CMemoryCursor(std::vector<CDbColumn> arColumns) { SetColumns(std::move(arColumns)); }

private:
    void WriteRow(std::size_t /*nRow*/, const std::vector<CDbChange>& /*arChanges*/) override {}
    void AddRow(const std::vector<CDbChange>& arChanges) override {
        std::vector<CDbCell> arRow(Columns().size());
        for (const CDbChange& change : arChanges)
            arRow[change.m_nColumn] = CellOf(change.m_value);
        for (const CDbCell& cell : arRow)
            AppendCell(cell);
    }
    void EraseRow(std::size_t /*nRow*/) override {}
    bool ReadRowAgain(std::size_t /*nRow*/) override { return true; }
    [[nodiscard]] std::string TableName() const override { return {}; }
};
