#include "platform/ado/sqlite_cursor.h"

#include <array>
#include <charconv>
#include <utility>

#include "platform/ado/database_text.h"
#include "platform/ado/error.h"
#include "platform/ado/plain_select.h"
#include "platform/ado/text.h"

namespace {

struct CDeclaredType {
    std::string_view m_strName;
    DBTYPE m_wType;
};

/// What tables call their column types, the part before any length.
constexpr std::array g_arDeclaredTypes = {
    CDeclaredType{"integer", DBTYPE_I4},      CDeclaredType{"int", DBTYPE_I4},
    CDeclaredType{"long", DBTYPE_I4},         CDeclaredType{"bigint", DBTYPE_I4},
    CDeclaredType{"smallint", DBTYPE_I2},     CDeclaredType{"short", DBTYPE_I2},
    CDeclaredType{"tinyint", DBTYPE_UI1},     CDeclaredType{"byte", DBTYPE_UI1},
    CDeclaredType{"real", DBTYPE_R4},         CDeclaredType{"single", DBTYPE_R4},
    CDeclaredType{"float", DBTYPE_R8},        CDeclaredType{"double", DBTYPE_R8},
    CDeclaredType{"decimal", DBTYPE_DECIMAL}, CDeclaredType{"numeric", DBTYPE_DECIMAL},
    CDeclaredType{"date", DBTYPE_DATE},       CDeclaredType{"datetime", DBTYPE_DATE},
    CDeclaredType{"timestamp", DBTYPE_DATE},  CDeclaredType{"boolean", DBTYPE_BOOL},
    CDeclaredType{"bit", DBTYPE_BOOL},        CDeclaredType{"text", DBTYPE_BSTR},
    CDeclaredType{"varchar", DBTYPE_BSTR},    CDeclaredType{"char", DBTYPE_BSTR},
    CDeclaredType{"nvarchar", DBTYPE_BSTR},   CDeclaredType{"blob", DBTYPE_BYTES},
    CDeclaredType{"binary", DBTYPE_BYTES},    CDeclaredType{"varbinary", DBTYPE_BYTES},
    CDeclaredType{"image", DBTYPE_BYTES},
};

DBTYPE DeclaredType(const char* pszDeclared) {
    std::string_view strName = pszDeclared ? std::string_view(pszDeclared) : std::string_view();
    strName = strName.substr(0, strName.find_first_of(" ("));
    for (const CDeclaredType& type : g_arDeclaredTypes)
        if (EqualNoCase(type.m_strName, strName)) return type.m_wType;
    return DBTYPE_EMPTY;
}

/// The length that a declaration such as varchar(50) gives; 0 where it gives none.
std::size_t DeclaredSize(const char* pszDeclared) {
    const std::string_view strDeclared = pszDeclared ? std::string_view(pszDeclared) : std::string_view();
    const std::size_t nOpen = strDeclared.find('(');
    std::size_t nSize = 0;
    if (nOpen != std::string_view::npos)
        std::from_chars(strDeclared.data() + nOpen + 1, strDeclared.data() + strDeclared.size(), nSize);
    return nSize;
}

std::string Utf8Name(const char* pszName) {
    return pszName ? pszName : std::string();
}

} // namespace

CSqliteCursor::CSqliteCursor(CSqliteHandle pDatabase, std::string_view strSqlUtf8,
                             std::span<const CDbValue> arParameters)
    : m_pDatabase(std::move(pDatabase)) {
    CSqliteStatement statement = Prepared(strSqlUtf8);
    statement.Bind(arParameters);
    ReadColumns(statement.Get());
    while (statement.Step())
        ReadRow(statement.Get());
}

CSqliteStatement CSqliteCursor::Prepared(std::string_view strSql) {
    if (const auto strWithRow = WithHiddenColumns(strSql, "rowid")) {
        sqlite3_stmt* pStatement = nullptr;
        const int nResult = sqlite3_prepare_v2(m_pDatabase.get(), strWithRow->data(),
                                               static_cast<int>(strWithRow->size()), &pStatement, nullptr);
        if (nResult == SQLITE_OK) {
            m_bRowNumbers = true;
            return {m_pDatabase, pStatement};
        }
        // A table that keeps no row numbers is read without them; the plain statement says what else is
        // wrong.
        if (nResult != SQLITE_ERROR) ThrowSqliteError(m_pDatabase.get(), nResult);
    }
    return {m_pDatabase, strSql};
}

void CSqliteCursor::ReadColumns(sqlite3_stmt* pStatement) {
    const int nColumns = sqlite3_column_count(pStatement) - (m_bRowNumbers ? 1 : 0);
    std::vector<CDbColumn> arColumns;
    for (int i = 0; i < nColumns; ++i) {
        m_arOrigins.push_back(Utf8Name(sqlite3_column_origin_name(pStatement, i)));
        const char* pszDeclared = sqlite3_column_decltype(pStatement, i);
        arColumns.push_back({NameFromUtf8(Utf8Name(sqlite3_column_name(pStatement, i))),
                             DeclaredType(pszDeclared), DeclaredSize(pszDeclared)});
        if (m_strTableUtf8.empty()) m_strTableUtf8 = Utf8Name(sqlite3_column_table_name(pStatement, i));
    }
    if (m_bRowNumbers) m_strRowNumber = Utf8Name(sqlite3_column_origin_name(pStatement, nColumns));
    m_strTable = NameFromUtf8(m_strTableUtf8);
    SetColumns(std::move(arColumns));
}

void CSqliteCursor::ReadRow(sqlite3_stmt* pStatement) {
    std::string strText;
    const std::size_t nColumns = Columns().size();
    for (std::size_t i = 0; i < nColumns; ++i)
        AppendCell(ReadCell(pStatement, i, &strText));
    if (m_bRowNumbers) m_arRowNumbers.push_back(sqlite3_column_int64(pStatement, static_cast<int>(nColumns)));
}

CDbCell CSqliteCursor::ReadCell(sqlite3_stmt* pStatement, std::size_t nColumn, std::string* pText) const {
    const int nPlace = static_cast<int>(nColumn);
    switch (sqlite3_column_type(pStatement, nPlace)) {
    case SQLITE_NULL:
        return std::monostate();
    case SQLITE_INTEGER:
        return std::int64_t{sqlite3_column_int64(pStatement, nPlace)};
    case SQLITE_FLOAT:
        return sqlite3_column_double(pStatement, nPlace);
    case SQLITE_BLOB: {
        const auto* pBytes = static_cast<const unsigned char*>(sqlite3_column_blob(pStatement, nPlace));
        const int nBytes = sqlite3_column_bytes(pStatement, nPlace);
        return std::span<const unsigned char>(pBytes, static_cast<std::size_t>(nBytes));
    }
    default:
        *pText = ReadText(pStatement, nPlace);
        return std::string_view(*pText);
    }
}

std::string CSqliteCursor::ReadText(sqlite3_stmt* pStatement, int nColumn) const {
    const auto* pText = reinterpret_cast<const char*>(sqlite3_column_text(pStatement, nColumn));
    const auto nBytes = static_cast<std::size_t>(sqlite3_column_bytes(pStatement, nColumn));
    const std::string_view strUtf8 = pText ? std::string_view(pText, nBytes) : std::string_view();
    return TextFromUtf8(strUtf8, m_strTable, Columns()[static_cast<std::size_t>(nColumn)].m_strName,
                        "SQLite");
}

void CSqliteCursor::RequireOneTable() const {
    if (m_strRowNumber.empty())
        throw CDbError(DbFailure::ReadOnly, SQLITE_READONLY, "SQLite",
                       "the result is not the rows of one table");
}

std::int64_t CSqliteCursor::RowNumber(std::size_t nRow) const {
    RequireOneTable();
    return m_arRowNumbers[nRow];
}

std::string CSqliteCursor::WrittenName(const CDbChange& change) const {
    const std::string& strOrigin = m_arOrigins[change.m_nColumn];
    if (strOrigin.empty())
        throw CDbError(DbFailure::ReadOnly, SQLITE_READONLY, "SQLite", "a computed column cannot be written");
    return QuotedName(strOrigin);
}

void CSqliteCursor::RunOnRow(const std::string& strSql, const std::vector<CDbChange>& arChanges,
                             std::size_t nRow) {
    const std::int64_t nRowNumber = RowNumber(nRow);
    CSqliteStatement statement(m_pDatabase, strSql + " WHERE rowid=?");
    int nPlace = 0;
    for (const CDbChange& change : arChanges)
        statement.Bind(++nPlace, change.m_value);
    statement.Bind(++nPlace, nRowNumber);
    statement.Step();
    if (sqlite3_changes(m_pDatabase.get()) == 0)
        throw CDbError(DbFailure::RowGone, SQLITE_NOTFOUND, "SQLite",
                       "the row was deleted by another program");
}

void CSqliteCursor::WriteRow(std::size_t nRow, const std::vector<CDbChange>& arChanges) {
    std::int64_t nRowNumber = RowNumber(nRow);
    std::string strSql;
    for (const CDbChange& change : arChanges) {
        strSql += (strSql.empty() ? "UPDATE " + QuotedName(m_strTableUtf8) + " SET " : ",") +
                  WrittenName(change) + "=?";
        const auto* pNumber = std::get_if<std::int64_t>(&change.m_value);
        if (pNumber && m_arOrigins[change.m_nColumn] == m_strRowNumber) nRowNumber = *pNumber;
    }
    RunOnRow(strSql, arChanges, nRow);
    m_arRowNumbers[nRow] = nRowNumber;
}

void CSqliteCursor::EraseRow(std::size_t nRow) {
    RunOnRow("DELETE FROM " + QuotedName(m_strTableUtf8), {}, nRow);
}

void CSqliteCursor::AddRow(const std::vector<CDbChange>& arChanges) {
    RequireOneTable();
    std::vector<std::string> arNames;
    arNames.reserve(arChanges.size());
    for (const CDbChange& change : arChanges)
        arNames.push_back(WrittenName(change));
    CSqliteStatement statement(m_pDatabase, InsertStatement(QuotedName(m_strTableUtf8), arNames));
    int nPlace = 0;
    for (const CDbChange& change : arChanges)
        statement.Bind(++nPlace, change.m_value);
    statement.Step();
    CSqliteStatement reader = RowReader(sqlite3_last_insert_rowid(m_pDatabase.get()));
    if (reader.Step()) ReadRow(reader.Get());
}

bool CSqliteCursor::ReadRowAgain(std::size_t nRow) {
    CSqliteStatement reader = RowReader(RowNumber(nRow));
    if (!reader.Step()) return false;
    std::string strText;
    for (std::size_t i = 0; i < Columns().size(); ++i)
        if (!m_arOrigins[i].empty()) SetCell(nRow, i, ReadCell(reader.Get(), i, &strText));
    return true;
}

CSqliteStatement CSqliteCursor::RowReader(std::int64_t nRowNumber) const {
    std::string strSql = "SELECT ";
    for (const std::string& strOrigin : m_arOrigins)
        strSql += (strOrigin.empty() ? "NULL" : QuotedName(strOrigin)) + ",";
    CSqliteStatement statement(m_pDatabase,
                               strSql + "rowid FROM " + QuotedName(m_strTableUtf8) + " WHERE rowid=?");
    statement.Bind(1, nRowNumber);
    return statement;
}
