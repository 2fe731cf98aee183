#include "host/datamanager/results.h"

#include <array>
#include <cmath>
#include <optional>
#include <vector>

#include <nlohmann/json.hpp>

#include "host/datamanager/natural_order.h"
#include "host/datamanager/numbers.h"
#include "host/datamanager/schema.h"
#include "host/datamanager/terminal_text.h"
#include "platform/windows/code_page.h"

namespace {

constexpr std::array<std::string_view, 12> g_arColumns = {"ZKBH", "QYBH", "SYFF", "SYRQ", "UUC", "UUF",
                                                          "CUC",  "CUF",  "CUCE", "CUFE", "CDC", "CDF"};

/// A field of a result: its text, GBK, and whether it is a number. Nothing for NULL.
struct CResultField {
    std::string m_strText;
    bool m_bNumber = false;
};
using CResultRow = std::vector<std::optional<CResultField>>;

std::optional<CResultField> Field(const CDbCell& cell, ColumnKind kind) {
    if (std::holds_alternative<std::monostate>(cell)) return std::nullopt;
    const auto* pWhole = std::get_if<std::int64_t>(&cell);
    const auto* pReal = std::get_if<double>(&cell);
    if (kind == ColumnKind::Text || (!pWhole && !pReal)) return CResultField{CellText(cell), false};
    const auto value = static_cast<float>(pWhole ? static_cast<double>(*pWhole) : *pReal);
    return CResultField{ShortestFloat(value), std::isfinite(value)};
}

std::vector<CResultRow> ReadResults(CDbConnection& database, std::int32_t nGCSY) {
    std::string strColumns;
    for (const std::string_view strColumn : g_arColumns)
        strColumns.append(strColumns.empty() ? "" : ",").append(strColumn);
    const std::array<CDbValue, 1> arParameters = {std::int64_t{nGCSY}};
    const auto pRows = database.Query("SELECT " + strColumns + " FROM z_c_SanZhou WHERE GCSY = ? ORDER BY " +
                                          g_pNaturalOrder,
                                      arParameters);
    std::vector<CResultRow> arRows(pRows->RowCount());
    for (std::size_t nRow = 0; nRow < arRows.size(); ++nRow)
        for (std::size_t i = 0; i < g_arColumns.size(); ++i)
            arRows[nRow].push_back(Field(pRows->Cell(nRow, i), g_tableSanZhou.Column(g_arColumns[i]).m_kind));
    return arRows;
}

std::string CsvField(const std::string& strUtf8) {
    if (strUtf8.find_first_of(",\"\r\n") == std::string::npos) return strUtf8;
    std::string strQuoted = "\"";
    for (const char c : strUtf8)
        strQuoted.append(c == '"' ? 2 : 1, c);
    return strQuoted + "\"";
}

std::string Csv(const std::vector<CResultRow>& arRows) {
    std::string strText;
    for (std::size_t i = 0; i < g_arColumns.size(); ++i)
        strText.append(i ? "," : "").append(g_arColumns[i]);
    strText += "\n";
    for (const CResultRow& row : arRows) {
        for (std::size_t i = 0; i < row.size(); ++i)
            strText.append(i ? "," : "").append(row[i] ? CsvField(ToUtf8(row[i]->m_strText)) : "");
        strText += "\n";
    }
    return strText;
}

/// Numbers keep their shortest text, which a JSON library would write as doubles.
std::string Json(const std::vector<CResultRow>& arRows) {
    std::string strText = "[";
    for (const CResultRow& row : arRows) {
        strText += strText.size() > 1 ? ",\n{" : "\n{";
        for (std::size_t i = 0; i < row.size(); ++i) {
            strText.append(i ? "," : "").append("\"").append(g_arColumns[i]).append("\":");
            if (!row[i])
                strText += "null";
            else
                strText += row[i]->m_bNumber ? row[i]->m_strText
                                             : nlohmann::ordered_json(ToUtf8(row[i]->m_strText)).dump();
        }
        strText += "}";
    }
    return strText + "\n]\n";
}

std::string Aligned(const std::vector<CResultRow>& arRows) {
    std::vector<std::vector<std::string>> arTable = {{g_arColumns.begin(), g_arColumns.end()}};
    for (const CResultRow& row : arRows) {
        std::vector<std::string>& arLine = arTable.emplace_back();
        for (const auto& field : row)
            arLine.push_back(field ? field->m_strText : "");
    }
    return AlignedTable(arTable);
}

} // namespace

std::string ResultsText(CDbConnection& database, std::int32_t nGCSY, ResultForm form) {
    const std::vector<CResultRow> arRows = ReadResults(database, nGCSY);
    if (form == ResultForm::Csv) return Csv(arRows);
    if (form == ResultForm::Json) return Json(arRows);
    return Aligned(arRows);
}
