#include "host/datamanager/layout.h"

#include <string>

namespace {

/// Type names that every engine knows; there is no common name for one byte.
std::string_view SqlType(ColumnKind kind) {
    switch (kind) {
    case ColumnKind::Int32:
        return "INTEGER";
    case ColumnKind::Int16:
    case ColumnKind::Int8:
    case ColumnKind::UInt8:
        return "SMALLINT";
    case ColumnKind::Float:
        return "REAL";
    case ColumnKind::Text:
        break;
    }
    return "VARCHAR(255)";
}

std::string CreateStatement(const CTable& table) {
    std::string strColumns;
    for (const CColumn& column : table.m_arColumns) {
        if (!strColumns.empty()) strColumns += ", ";
        strColumns.append(column.m_strName).append(" ").append(SqlType(column.m_kind));
    }
    return "CREATE TABLE IF NOT EXISTS " + std::string(table.m_strName) + " (" + strColumns + ")";
}

} // namespace

void LayOutTables(CDbConnection& database, std::span<const CTable* const> arTables) {
    for (const CTable* pTable : arTables) {
        database.Execute(CreateStatement(*pTable));
        if (!pTable->HasColumn("GCSY") || !pTable->HasColumn("ZKBH") || !pTable->HasColumn("QYBH")) continue;
        const std::string strTable(pTable->m_strName);
        std::string strIndex = "CREATE INDEX IF NOT EXISTS i_" + strTable;
        strIndex.append(" ON ").append(strTable).append(" (GCSY, ZKBH, QYBH)");
        database.Execute(strIndex);
    }
}
