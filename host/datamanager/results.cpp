#include "host/datamanager/results.h"

#include <array>
#include <optional>
#include <vector>

#include <nlohmann/json.hpp>

#include "host/datamanager/natural_order.h"
#include "host/datamanager/schema.h"
#include "host/datamanager/terminal_text.h"
#include "platform/windows/code_page.h"

namespace {

constexpr std::array<std::string_view, 12> g_arColumns = {"ZKBH", "QYBH", "SYFF", "SYRQ", "UUC", "UUF",
                                                          "CUC",  "CUF",  "CUCE", "CUFE", "CDC", "CDF"};

/// The field for a row whose fields stand between delimiters, UTF-8.
std::string DelimitedField(const std::optional<CFieldText>& field, char cDelimiter) {
    if (!field) return {};
    std::string strUtf8 = ToUtf8(field->m_strText);
    if (strUtf8.find_first_of(std::string("\"\r\n") + cDelimiter) == std::string::npos) return strUtf8;
    std::string strQuoted = "\"";
    for (const char c : strUtf8)
        strQuoted.append(c == '"' ? 2 : 1, c);
    return strQuoted + "\"";
}

std::string Delimited(std::span<const CRowTexts> arRows, char cDelimiter) {
    std::string strText;
    for (std::size_t i = 0; i < g_arColumns.size(); ++i)
        strText.append(i ? 1 : 0, cDelimiter).append(g_arColumns[i]);
    strText += "\n";
    for (const CRowTexts& row : arRows) {
        for (std::size_t i = 0; i < row.size(); ++i)
            strText.append(i ? 1 : 0, cDelimiter).append(DelimitedField(row[i], cDelimiter));
        strText += "\n";
    }
    return strText;
}

/// Numbers keep their shortest text, which a JSON library would write as doubles.
std::string Json(std::span<const CRowTexts> arRows) {
    std::string strText = "[";
    for (const CRowTexts& row : arRows) {
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

std::string Aligned(std::span<const CRowTexts> arRows) {
    std::vector<std::vector<std::string>> arTable = {{g_arColumns.begin(), g_arColumns.end()}};
    for (const CRowTexts& row : arRows) {
        std::vector<std::string>& arLine = arTable.emplace_back();
        for (const auto& field : row)
            arLine.push_back(field ? field->m_strText : "");
    }
    return AlignedTable(arTable);
}

} // namespace

std::span<const std::string_view> ResultColumns() {
    return g_arColumns;
}

std::vector<CRowTexts> ReadResults(CDbConnection& database, std::int32_t nGCSY) {
    const std::array<CDbValue, 1> arParameters = {std::int64_t{nGCSY}};
    const auto pRows = database.Query("SELECT " + ColumnList(g_arColumns) +
                                          " FROM z_c_SanZhou WHERE GCSY = ? ORDER BY " + g_pNaturalOrder,
                                      arParameters);
    return RowTexts(*pRows, g_tableSanZhou, g_arColumns);
}

std::string ResultsText(std::span<const CRowTexts> arRows, ResultForm form) {
    switch (form) {
    case ResultForm::Csv:
        return Delimited(arRows, ',');
    case ResultForm::Tabs:
        return Delimited(arRows, '\t');
    case ResultForm::Json:
        return Json(arRows);
    default:
        return Aligned(arRows);
    }
}
