#include "host/datamanager/layout_check.h"

#include <string>

#include "platform/ado/error.h"
#include "platform/ado/text.h"

namespace {

[[noreturn]] void Refuse(const CTable& table, std::size_t nColumn, const std::string& strWhat) {
    throw CDbError(DbFailure::General, 0, "tvdata",
                   std::string(table.m_strName) + ": column " + std::to_string(nColumn + 1) + strWhat);
}

void CheckTable(CDbConnection& database, const CTable& table) {
    const auto pRows = database.Query("SELECT * FROM " + std::string(table.m_strName) + " WHERE 1 = 0");
    for (std::size_t i = 0; i < table.m_arColumns.size(); ++i) {
        const std::string strBelongs(table.m_arColumns[i].m_strName);
        if (i >= pRows->Columns().size()) Refuse(table, i, ", " + strBelongs + ", is missing");
        const std::string& strFound = pRows->Columns()[i].m_strName;
        if (!EqualNoCase(strFound, strBelongs))
            Refuse(
                table, i,
                std::string(" is ").append(strFound).append(" where ").append(strBelongs).append(" belongs"));
    }
}

} // namespace

void CheckLayout(CDbConnection& database, std::span<const CTable* const> arTables) {
    for (const CTable* pTable : arTables)
        CheckTable(database, *pTable);
}
