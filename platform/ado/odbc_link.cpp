#include "platform/ado/odbc_link.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "platform/ado/database_text.h"
#include "platform/ado/error.h"
#include "platform/ado/odbc_text.h"
#include "platform/ado/text.h"

namespace {

constexpr std::intptr_t g_nLoginTimeout = 10; // seconds

/// A number in the place of a pointer, as attributes take it.
SQLPOINTER Number(std::intptr_t nValue) {
    return reinterpret_cast<SQLPOINTER>(nValue); // NOLINT(performance-no-int-to-ptr)
}

/// The environment that all connections share.
std::shared_ptr<void> Environment() {
    static const std::shared_ptr<void> s_pEnvironment = [] {
        SQLHENV hEnvironment = nullptr;
        if (!SQL_SUCCEEDED(SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &hEnvironment)))
            throw CDbError(DbFailure::General, 0, "ODBC", "The ODBC driver manager does not start.");
        SQLSetEnvAttr(hEnvironment, SQL_ATTR_ODBC_VERSION, Number(SQL_OV_ODBC3), 0);
        return std::shared_ptr<void>(hEnvironment,
                                     [](void* pHandle) { SQLFreeHandle(SQL_HANDLE_ENV, pHandle); });
    }();
    return s_pEnvironment;
}

struct CDiagnostic {
    std::string m_strState;
    long m_lNative = 0;
    std::string m_strText; ///< UTF-8
};

bool ReadDiagnostic(SQLSMALLINT nHandleType, SQLHANDLE hHandle, SQLSMALLINT nRecord,
                    CDiagnostic* pDiagnostic) {
    std::u16string strState(SQL_SQLSTATE_SIZE + 1, u'\0');
    std::u16string strText(2048, u'\0');
    SQLINTEGER nNative = 0;
    SQLSMALLINT nLength = 0;
    const SQLRETURN nResult =
        SQLGetDiagRecW(nHandleType, hHandle, nRecord, OdbcText(strState), &nNative, OdbcText(strText),
                       static_cast<SQLSMALLINT>(strText.size()), &nLength);
    if (!SQL_SUCCEEDED(nResult)) return false;
    strState.resize(SQL_SQLSTATE_SIZE);
    strText.resize(std::min(strText.size() - 1, static_cast<std::size_t>(std::max<int>(nLength, 0))));
    *pDiagnostic = {Utf8FromUtf16(strState), nNative, Utf8FromUtf16(strText)};
    return true;
}

/// The first record that tells of an error; where none does, the first of all.
CDiagnostic FindDiagnostic(SQLSMALLINT nHandleType, SQLHANDLE hHandle) {
    CDiagnostic first;
    CDiagnostic next;
    for (SQLSMALLINT i = 1; ReadDiagnostic(nHandleType, hHandle, i, &next); ++i) {
        if (!next.m_strState.starts_with("00") && !next.m_strState.starts_with("01")) return next;
        if (i == 1) first = next;
    }
    return first;
}

/// The message in one line, without `[unixODBC][Driver Manager]` and the like before it.
std::string OneLine(std::string_view strText) {
    while (strText.starts_with('[')) {
        const std::size_t nClose = strText.find(']');
        if (nClose == std::string_view::npos) break;
        strText = TrimBlanks(strText.substr(nClose + 1));
    }
    constexpr std::string_view strGrade = "ERROR: ";
    if (strText.starts_with(strGrade)) strText.remove_prefix(strGrade.size());
    std::string strLine;
    while (!strText.empty()) {
        const std::size_t nEnd = std::min(strText.find('\n'), strText.size());
        std::string_view strPart = TrimBlanks(strText.substr(0, nEnd));
        strText.remove_prefix(std::min(nEnd + 1, strText.size()));
        if (strPart.ends_with(';')) strPart.remove_suffix(1);
        if (strPart.empty() || strPart == "Error while executing the query") continue;
        strLine.append(strLine.empty() ? "" : " ").append(strPart);
    }
    return strLine;
}

bool IsLockState(const std::string& strState) {
    static constexpr std::array<std::string_view, 5> s_arStates = {
        "55P03", "40P01", "40001", // not available, deadlock, serialisation
        "HYT00", "HYT01"};
    return std::ranges::find(s_arStates, strState) != s_arStates.end();
}

DbFailure FailureOf(SQLSMALLINT nHandleType, const std::string& strState) {
    if (nHandleType != SQL_HANDLE_STMT) return DbFailure::General;
    if (IsLockState(strState)) return DbFailure::Locked;
    if (strState == "42S02" || strState == "42P01") return DbFailure::NoTable;
    if (strState == "25006") return DbFailure::ReadOnly;
    if (strState.starts_with("42") || strState.starts_with("07")) return DbFailure::Statement;
    return strState.starts_with("23") ? DbFailure::Constraint : DbFailure::General;
}

} // namespace

void ThrowOdbcError(SQLSMALLINT nHandleType, SQLHANDLE hHandle) {
    const CDiagnostic diagnostic = FindDiagnostic(nHandleType, hHandle);
    std::string strWhy = NameFromUtf8(OneLine(diagnostic.m_strText));
    if (strWhy.empty()) strWhy = "the driver fails with state " + diagnostic.m_strState;
    throw CDbError(FailureOf(nHandleType, diagnostic.m_strState), diagnostic.m_lNative, "ODBC", strWhy);
}

void CheckOdbc(SQLRETURN nResult, SQLSMALLINT nHandleType, SQLHANDLE hHandle) {
    if (!SQL_SUCCEEDED(nResult)) ThrowOdbcError(nHandleType, hHandle);
}

COdbcLink::COdbcLink(std::string_view strConnection)
    : m_pEnvironment(Environment()) {
    if (!SQL_SUCCEEDED(SQLAllocHandle(SQL_HANDLE_DBC, m_pEnvironment.get(), &m_hConnection)))
        ThrowOdbcError(SQL_HANDLE_ENV, m_pEnvironment.get());
    try {
        Connect(strConnection);
    } catch (...) {
        if (m_bConnected) SQLDisconnect(m_hConnection);
        SQLFreeHandle(SQL_HANDLE_DBC, m_hConnection);
        throw;
    }
}

void COdbcLink::Connect(std::string_view strConnection) {
    SQLSetConnectAttrW(m_hConnection, SQL_ATTR_LOGIN_TIMEOUT, Number(g_nLoginTimeout), 0);
    std::u16string strWide = Utf16FromUtf8(strConnection);
    CheckOdbc(SQLDriverConnectW(m_hConnection, nullptr, OdbcText(strWide),
                                static_cast<SQLSMALLINT>(strWide.size()), nullptr, 0, nullptr,
                                SQL_DRIVER_NOPROMPT),
              SQL_HANDLE_DBC, m_hConnection);
    m_bConnected = true;
    std::u16string strName(64, u'\0');
    SQLSMALLINT nBytes = 0;
    CheckOdbc(SQLGetInfoW(m_hConnection, SQL_DBMS_NAME, strName.data(),
                          static_cast<SQLSMALLINT>(strName.size() * sizeof(char16_t)), &nBytes),
              SQL_HANDLE_DBC, m_hConnection);
    strName.resize(std::min(strName.size(), static_cast<std::size_t>(nBytes) / sizeof(char16_t)));
    m_pEngine = &OdbcEngine(Utf8FromUtf16(strName));
}

COdbcLink::~COdbcLink() {
    if (m_bTransaction) SQLEndTran(SQL_HANDLE_DBC, m_hConnection, SQL_ROLLBACK);
    SQLDisconnect(m_hConnection);
    SQLFreeHandle(SQL_HANDLE_DBC, m_hConnection);
}

void COdbcLink::SetAutoCommit(bool bOn) {
    CheckOdbc(SQLSetConnectAttrW(m_hConnection, SQL_ATTR_AUTOCOMMIT,
                                 Number(bOn ? SQL_AUTOCOMMIT_ON : SQL_AUTOCOMMIT_OFF), 0),
              SQL_HANDLE_DBC, m_hConnection);
}

void COdbcLink::BeginTransaction() {
    if (m_bTransaction)
        throw CDbError(DbFailure::General, 0, "ODBC", "cannot start a transaction within a transaction");
    SetAutoCommit(false);
    m_bTransaction = true;
}

void COdbcLink::EndTransaction(SQLSMALLINT nHow) {
    if (!m_bTransaction) throw CDbError(DbFailure::General, 0, "ODBC", "no transaction is active");
    m_bTransaction = false;
    try {
        CheckOdbc(SQLEndTran(SQL_HANDLE_DBC, m_hConnection, nHow), SQL_HANDLE_DBC, m_hConnection);
    } catch (...) {
        SQLEndTran(SQL_HANDLE_DBC, m_hConnection, SQL_ROLLBACK);
        SQLSetConnectAttrW(m_hConnection, SQL_ATTR_AUTOCOMMIT, Number(SQL_AUTOCOMMIT_ON), 0);
        throw;
    }
    SetAutoCommit(true);
}
