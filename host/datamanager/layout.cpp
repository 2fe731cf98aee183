#include "host/datamanager/layout.h"

#include <string>

#include "platform/ado/error.h"

namespace {

/// Type names that every engine knows; there is no common name for one byte.
std::string_view SqlType(const CDbConnection& database, ColumnKind kind) {
    switch (kind) {
    case ColumnKind::Int32:
        return "INTEGER";
    case ColumnKind::Int16:
    case ColumnKind::Int8:
    case ColumnKind::UInt8:
        return "SMALLINT";
    case ColumnKind::Float:
        return database.RealType();
    case ColumnKind::Text:
        break;
    }
    return "VARCHAR(255)";
}

std::string CreateStatement(const CDbConnection& database, const CTable& table) {
    std::string strColumns;
    for (const CColumn& column : table.m_arColumns) {
        if (!strColumns.empty()) strColumns += ", ";
        strColumns.append(column.m_strName).append(" ").append(SqlType(database, column.m_kind));
    }
    return "CREATE TABLE " + std::string(table.m_strName) + " (" + strColumns + ")";
}

/// Asked by reading, which everyone may who joins a database; an engine refuses CREATE to some, also where it
/// would have nothing to do.
bool IsThere(CDbConnection& database, const CTable& table) {
    try {
        (void)database.Query("SELECT COUNT(*) FROM " + std::string(table.m_strName) + " WHERE 1 = 0");
        return true;
    } catch (const CDbError& error) {
        if (error.Failure() == DbFailure::Locked) throw;
        return false; // whatever else is wrong stops the making
    }
}

} // namespace

void LayOutTables(CDbConnection& database, std::span<const CTable* const> arTables) {
    database.LayOutDialect();
    for (const CTable* pTable : arTables) {
        if (IsThere(database, *pTable)) continue;
        database.Execute(CreateStatement(database, *pTable));
        if (!pTable->HasColumn("GCSY") || !pTable->HasColumn("ZKBH") || !pTable->HasColumn("QYBH")) continue;
        const std::string strTable(pTable->m_strName);
        std::string strIndex = "CREATE INDEX IF NOT EXISTS i_" + strTable;
        strIndex.append(" ON ").append(strTable).append(" (GCSY, ZKBH, QYBH)");
        database.Execute(strIndex);
    }
}
