#include "platform/ado/sqlite_statement.h"

#include <string>
#include <utility>

#include "platform/ado/database_text.h"
#include "platform/ado/error.h"
#include "platform/windows/code_page.h"

namespace {

sqlite3_stmt* Prepare(sqlite3* pDatabase, std::string_view strSql) {
    sqlite3_stmt* pStatement = nullptr;
    const int nResult =
        sqlite3_prepare_v2(pDatabase, strSql.data(), static_cast<int>(strSql.size()), &pStatement, nullptr);
    if (nResult != SQLITE_OK) ThrowSqliteError(pDatabase, nResult);
    if (!pStatement) throw CDbError(DbFailure::Statement, 0, "SQLite", "The statement is empty.");
    return pStatement;
}

int BindText(sqlite3_stmt* pStatement, int nPlace, const std::string& strGbk) {
    const std::string strUtf8 = ValueToUtf8(strGbk, "SQLite");
    return sqlite3_bind_text64(pStatement, nPlace, strUtf8.data(), strUtf8.size(), SQLITE_TRANSIENT,
                               SQLITE_UTF8);
}

int BindBytes(sqlite3_stmt* pStatement, int nPlace, const std::vector<unsigned char>& arBytes) {
    if (arBytes.empty()) return sqlite3_bind_zeroblob(pStatement, nPlace, 0); // a null pointer would be NULL
    return sqlite3_bind_blob64(pStatement, nPlace, arBytes.data(), arBytes.size(), SQLITE_TRANSIENT);
}

DbFailure FailureOf(int nResult, std::string_view strWhy) {
    switch (nResult & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return DbFailure::Locked;
    case SQLITE_ERROR: // a missing table has no code of its own
        return strWhy.starts_with("no such table") ? DbFailure::NoTable : DbFailure::Statement;
    case SQLITE_RANGE:
        return DbFailure::Statement;
    case SQLITE_CONSTRAINT:
        return DbFailure::Constraint;
    case SQLITE_READONLY:
        return DbFailure::ReadOnly;
    default:
        return DbFailure::General;
    }
}

} // namespace

void ThrowSqliteError(sqlite3* pDatabase, int nResult) {
    std::string strWhy;
    if (!Utf8ToGbk(sqlite3_errmsg(pDatabase), &strWhy)) strWhy = sqlite3_errstr(nResult);
    throw CDbError(FailureOf(nResult, strWhy), nResult, "SQLite", strWhy);
}

CSqliteStatement::CSqliteStatement(CSqliteHandle pDatabase, std::string_view strSqlUtf8)
    : m_pDatabase(std::move(pDatabase))
    , m_pStatement(Prepare(m_pDatabase.get(), strSqlUtf8)) {}

CSqliteStatement::CSqliteStatement(CSqliteHandle pDatabase, sqlite3_stmt* pStatement)
    : m_pDatabase(std::move(pDatabase))
    , m_pStatement(pStatement) {}

void CSqliteStatement::Bind(int nPlace, const CDbValue& value) {
    sqlite3_stmt* pStatement = Get();
    int nResult = SQLITE_OK;
    if (const auto* pWhole = std::get_if<std::int64_t>(&value))
        nResult = sqlite3_bind_int64(pStatement, nPlace, *pWhole);
    else if (const auto* pReal = std::get_if<double>(&value))
        nResult = sqlite3_bind_double(pStatement, nPlace, *pReal);
    else if (const auto* pText = std::get_if<std::string>(&value))
        nResult = BindText(pStatement, nPlace, *pText);
    else if (const auto* pBytes = std::get_if<std::vector<unsigned char>>(&value))
        nResult = BindBytes(pStatement, nPlace, *pBytes);
    else
        nResult = sqlite3_bind_null(pStatement, nPlace);
    if (nResult != SQLITE_OK) ThrowSqliteError(m_pDatabase.get(), nResult);
}

void CSqliteStatement::Bind(std::span<const CDbValue> arValues) {
    int nPlace = 0;
    for (const CDbValue& value : arValues)
        Bind(++nPlace, value);
}

bool CSqliteStatement::Step() {
    const int nResult = sqlite3_step(Get());
    if (nResult != SQLITE_ROW && nResult != SQLITE_DONE) ThrowSqliteError(m_pDatabase.get(), nResult);
    return nResult == SQLITE_ROW;
}
