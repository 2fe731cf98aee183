#include "host/datamanager/row_texts.h"

#include <cmath>

#include "host/datamanager/numbers.h"

namespace {

std::optional<CFieldText> Field(const CDbCell& cell, ColumnKind kind) {
    if (std::holds_alternative<std::monostate>(cell)) return std::nullopt;
    const auto* pWhole = std::get_if<std::int64_t>(&cell);
    const auto* pReal = std::get_if<double>(&cell);
    if (kind == ColumnKind::Text || (!pWhole && !pReal)) return CFieldText{CellText(cell), false};
    if (kind != ColumnKind::Float && pWhole) return CFieldText{CellText(cell), true};
    const auto value = static_cast<float>(pWhole ? static_cast<double>(*pWhole) : *pReal);
    return CFieldText{ShortestFloat(value), std::isfinite(value)};
}

} // namespace

std::string ColumnList(std::span<const std::string_view> arColumns) {
    std::string strList;
    for (const std::string_view strColumn : arColumns)
        strList.append(strList.empty() ? "" : ",").append(strColumn);
    return strList;
}

std::vector<CRowTexts> RowTexts(const CDbCursor& rows, const CTable& table,
                                std::span<const std::string_view> arColumns) {
    std::vector<CRowTexts> arRows(rows.RowCount());
    for (std::size_t nRow = 0; nRow < arRows.size(); ++nRow)
        for (std::size_t i = 0; i < arColumns.size(); ++i)
            arRows[nRow].push_back(Field(rows.Cell(nRow, i), table.Column(arColumns[i]).m_kind));
    return arRows;
}
