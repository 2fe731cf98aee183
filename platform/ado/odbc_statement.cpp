#include "platform/ado/odbc_statement.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "platform/ado/database_text.h"
#include "platform/ado/error.h"
#include "platform/ado/number_text.h"
#include "platform/ado/odbc_text.h"
#include "platform/ado/text.h"

namespace {

struct CDriverType {
    SQLSMALLINT m_nType;
    DBTYPE m_wType;
};

constexpr std::array g_arDriverTypes = {
    CDriverType{SQL_INTEGER, DBTYPE_I4},
    CDriverType{SQL_BIGINT, DBTYPE_I4},
    CDriverType{SQL_SMALLINT, DBTYPE_I2},
    CDriverType{SQL_TINYINT, DBTYPE_UI1},
    CDriverType{SQL_REAL, DBTYPE_R4},
    CDriverType{SQL_FLOAT, DBTYPE_R8},
    CDriverType{SQL_DOUBLE, DBTYPE_R8},
    CDriverType{SQL_NUMERIC, DBTYPE_DECIMAL},
    CDriverType{SQL_DECIMAL, DBTYPE_DECIMAL},
    CDriverType{SQL_TYPE_DATE, DBTYPE_DATE},
    CDriverType{SQL_TYPE_TIMESTAMP, DBTYPE_DATE},
    CDriverType{SQL_TYPE_TIME, DBTYPE_DATE},
    CDriverType{SQL_BIT, DBTYPE_BOOL},
    CDriverType{SQL_BINARY, DBTYPE_BYTES},
    CDriverType{SQL_VARBINARY, DBTYPE_BYTES},
    CDriverType{SQL_LONGVARBINARY, DBTYPE_BYTES},
};

constexpr std::size_t g_nFirstBuffer = 256; // characters; what is longer is read in several goes

/// A driver gives truth values as texts of one character; the name of the type tells them.
bool IsTruthType(SQLHSTMT hStatement, SQLUSMALLINT nColumn) {
    std::u16string strName(32, u'\0');
    SQLSMALLINT nBytes = 0;
    const SQLRETURN nResult =
        SQLColAttributeW(hStatement, nColumn, SQL_DESC_TYPE_NAME, strName.data(),
                         static_cast<SQLSMALLINT>(strName.size() * sizeof(char16_t)), &nBytes, nullptr);
    strName.resize(std::min(strName.size(), static_cast<std::size_t>(std::max<int>(nBytes, 0)) / 2));
    return SQL_SUCCEEDED(nResult) && strName.starts_with(u"bool");
}

DBTYPE TypeOf(SQLHSTMT hStatement, SQLUSMALLINT nColumn, SQLSMALLINT nType) {
    for (const CDriverType& type : g_arDriverTypes)
        if (type.m_nType == nType) return type.m_wType;
    const bool bShort = nType == SQL_CHAR || nType == SQL_VARCHAR;
    return bShort && IsTruthType(hStatement, nColumn) ? DBTYPE_BOOL : DBTYPE_BSTR;
}

/// A number as every column takes it: a whole one without exponent, also for columns of whole numbers.
std::string RealText(double dValue) {
    constexpr double dWholeBelow = 1e15;
    const bool bNegativeZero = dValue == 0.0 && std::signbit(dValue);
    if (std::abs(dValue) < dWholeBelow && dValue == std::trunc(dValue) && !bNegativeZero)
        return ShortestText(static_cast<std::int64_t>(dValue));
    return ShortestText(dValue);
}

} // namespace

COdbcStatement::COdbcStatement(COdbcHandle pLink)
    : m_pLink(std::move(pLink))
    , m_strBuffer(g_nFirstBuffer, u'\0') {
    CheckOdbc(SQLAllocHandle(SQL_HANDLE_STMT, m_pLink->Get(), &m_hStatement), SQL_HANDLE_DBC, m_pLink->Get());
}

COdbcStatement::~COdbcStatement() {
    SQLFreeHandle(SQL_HANDLE_STMT, m_hStatement);
}

void COdbcStatement::Run(std::string_view strSql, std::span<const CDbValue> arParameters) {
    Bind(arParameters);
    std::u16string strWide = Utf16FromUtf8(strSql);
    const SQLRETURN nResult =
        SQLExecDirectW(m_hStatement, OdbcText(strWide), static_cast<SQLINTEGER>(strWide.size()));
    Note(nResult);
}

void COdbcStatement::Prepare(std::string_view strSql) {
    std::u16string strWide = Utf16FromUtf8(strSql);
    Check(SQLPrepareW(m_hStatement, OdbcText(strWide), static_cast<SQLINTEGER>(strWide.size())));
}

void COdbcStatement::Run(std::span<const CDbValue> arParameters) {
    if (m_bRun) SQLFreeStmt(m_hStatement, SQL_CLOSE);
    Bind(arParameters);
    Note(SQLExecute(m_hStatement));
}

void COdbcStatement::Note(SQLRETURN nResult) {
    m_bRun = true;
    m_bNoRow = nResult == SQL_NO_DATA;
    if (!m_bNoRow) Check(nResult);
}

void COdbcStatement::Bind(std::span<const CDbValue> arParameters) {
    m_arParameters.resize(arParameters.size());
    for (std::size_t i = 0; i < arParameters.size(); ++i)
        BindOne(static_cast<SQLUSMALLINT>(i + 1), arParameters[i], &m_arParameters[i]);
}

/// Numbers go as text, too: the engine then takes them for whatever the column holds, as the embedded one
/// does, and none loses digits.
void COdbcStatement::BindOne(SQLUSMALLINT nPlace, const CDbValue& value, CParameter* pParameter) {
    CParameter& parameter = *pParameter;
    parameter.m_strText.clear();
    parameter.m_arBytes = {};
    if (const auto* pBytes = std::get_if<std::vector<unsigned char>>(&value)) {
        static constexpr unsigned char s_nothing = 0;
        parameter.m_arBytes = *pBytes;
        parameter.m_nIndicator = static_cast<SQLLEN>(pBytes->size());
        const void* pData = pBytes->empty() ? &s_nothing : pBytes->data();
        Check(SQLBindParameter(m_hStatement, nPlace, SQL_PARAM_INPUT, SQL_C_BINARY, SQL_VARBINARY,
                               std::max<SQLULEN>(pBytes->size(), 1), 0, const_cast<void*>(pData),
                               parameter.m_nIndicator, &parameter.m_nIndicator));
        return;
    }
    if (const auto* pWhole = std::get_if<std::int64_t>(&value))
        parameter.m_strText = Utf16FromUtf8(ShortestText(*pWhole));
    else if (const auto* pReal = std::get_if<double>(&value))
        parameter.m_strText = Utf16FromUtf8(RealText(*pReal));
    else if (const auto* pText = std::get_if<std::string>(&value))
        parameter.m_strText = Utf16FromUtf8(ValueToUtf8(*pText, "ODBC"));
    const auto nBytes = static_cast<SQLLEN>(parameter.m_strText.size() * sizeof(char16_t));
    parameter.m_nIndicator = std::holds_alternative<std::monostate>(value) ? SQL_NULL_DATA : nBytes;
    Check(SQLBindParameter(m_hStatement, nPlace, SQL_PARAM_INPUT, SQL_C_WCHAR, SQL_WVARCHAR,
                           std::max<SQLULEN>(parameter.m_strText.size(), 1), 0, parameter.m_strText.data(),
                           nBytes, &parameter.m_nIndicator));
}

std::int64_t COdbcStatement::RowCount() const {
    SQLLEN nRows = 0;
    Check(SQLRowCount(m_hStatement, &nRows));
    return std::max<SQLLEN>(nRows, 0);
}

std::vector<COdbcColumn> COdbcStatement::Columns() const {
    SQLSMALLINT nColumns = 0;
    Check(SQLNumResultCols(m_hStatement, &nColumns));
    std::vector<COdbcColumn> arColumns(static_cast<std::size_t>(std::max<int>(nColumns, 0)));
    for (std::size_t i = 0; i < arColumns.size(); ++i) {
        const auto nPlace = static_cast<SQLUSMALLINT>(i + 1);
        std::u16string strName(256, u'\0');
        SQLSMALLINT nLength = 0;
        SQLSMALLINT nType = 0;
        SQLULEN nSize = 0;
        SQLSMALLINT nDigits = 0;
        SQLSMALLINT nNullable = 0;
        Check(SQLDescribeColW(m_hStatement, nPlace, OdbcText(strName),
                              static_cast<SQLSMALLINT>(strName.size()), &nLength, &nType, &nSize, &nDigits,
                              &nNullable));
        strName.resize(std::min(strName.size() - 1, static_cast<std::size_t>(std::max<int>(nLength, 0))));
        arColumns[i] = {Utf8FromUtf16(strName), TypeOf(m_hStatement, nPlace, nType)};
    }
    return arColumns;
}

bool COdbcStatement::Fetch() {
    if (m_bNoRow) return false;
    const SQLRETURN nResult = SQLFetch(m_hStatement);
    if (nResult == SQL_NO_DATA) return false;
    Check(nResult);
    return true;
}

bool COdbcStatement::ReadWhole(std::size_t nColumn, std::int64_t* pValue) {
    SQLLEN nIndicator = 0;
    Check(SQLGetData(m_hStatement, static_cast<SQLUSMALLINT>(nColumn + 1), SQL_C_SBIGINT, pValue,
                     sizeof *pValue, &nIndicator));
    return nIndicator != SQL_NULL_DATA;
}

bool COdbcStatement::ReadReal(std::size_t nColumn, double* pValue) {
    SQLLEN nIndicator = 0;
    Check(SQLGetData(m_hStatement, static_cast<SQLUSMALLINT>(nColumn + 1), SQL_C_DOUBLE, pValue,
                     sizeof *pValue, &nIndicator));
    return nIndicator != SQL_NULL_DATA;
}

bool COdbcStatement::ReadText(std::size_t nColumn, std::string* pUtf8) {
    std::u16string strLong;
    for (;;) {
        SQLLEN nIndicator = 0;
        const SQLRETURN nResult =
            SQLGetData(m_hStatement, static_cast<SQLUSMALLINT>(nColumn + 1), SQL_C_WCHAR, m_strBuffer.data(),
                       static_cast<SQLLEN>(m_strBuffer.size() * sizeof(char16_t)), &nIndicator);
        if (nResult == SQL_NO_DATA) break;
        Check(nResult);
        if (nIndicator == SQL_NULL_DATA) return false;
        const std::size_t nRoom = m_strBuffer.size() - 1; // the ending zero takes a place
        const bool bMore =
            nIndicator == SQL_NO_TOTAL || static_cast<std::size_t>(nIndicator) / sizeof(char16_t) > nRoom;
        const std::size_t nTaken = bMore ? nRoom : static_cast<std::size_t>(nIndicator) / sizeof(char16_t);
        if (!bMore && strLong.empty()) {
            *pUtf8 = Utf8FromUtf16(std::u16string_view(m_strBuffer).substr(0, nTaken));
            return true;
        }
        strLong.append(m_strBuffer, 0, nTaken);
        if (!bMore) break;
    }
    *pUtf8 = Utf8FromUtf16(strLong);
    return true;
}

bool COdbcStatement::ReadBytes(std::size_t nColumn, std::vector<unsigned char>* pBytes) {
    pBytes->clear();
    std::array<unsigned char, 4096> arPart{};
    for (;;) {
        SQLLEN nIndicator = 0;
        const SQLRETURN nResult = SQLGetData(m_hStatement, static_cast<SQLUSMALLINT>(nColumn + 1),
                                             SQL_C_BINARY, arPart.data(), arPart.size(), &nIndicator);
        if (nResult == SQL_NO_DATA) return true;
        Check(nResult);
        if (nIndicator == SQL_NULL_DATA) return false;
        const bool bMore = nIndicator == SQL_NO_TOTAL || static_cast<std::size_t>(nIndicator) > arPart.size();
        const std::size_t nTaken = bMore ? arPart.size() : static_cast<std::size_t>(nIndicator);
        pBytes->insert(pBytes->end(), arPart.begin(), arPart.begin() + static_cast<std::ptrdiff_t>(nTaken));
        if (!bMore) return true;
    }
}
