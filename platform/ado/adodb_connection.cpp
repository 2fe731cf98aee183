#include "platform/ado/adodb_connection.h"

#include <utility>

#include "platform/ado/adodb_recordset.h"
#include "platform/ado/connection_text.h"
#include "platform/ado/recordset_rows.h"
#include "platform/ado/variant_value.h"

using namespace ADODB;

namespace {

/// The text with a key added, unless it has the key or there is no value for it.
std::string WithKey(const std::string& strText, const char* pszKey, const std::wstring& strValue) {
    const std::string strGbk = GbkOrRaise(strValue);
    if (strGbk.empty() || !CConnectionText(strText).Value(pszKey).empty()) return strText;
    return strText + ";" + ConnectionPair(pszKey, strGbk);
}

} // namespace

Connection::~Connection() {
    try {
        // A recordset may hold the database open, and with it the transaction.
        if (m_pDatabase && m_bTransaction) m_pDatabase->RollbackTransaction();
    } catch (const CDbError&) { // NOLINT(bugprone-empty-catch): nobody is left to be told
    }
}

void Connection::PutConnectionTimeout(long nSeconds) {
    if (m_pDatabase) RaiseAdoError(adErrObjectOpen);
    if (nSeconds < 0) RaiseAdoError(adErrInvalidArgument);
    m_nConnectionTimeout = nSeconds;
}

void Connection::PutConnectionString(const std::wstring& strConnection) {
    if (m_pDatabase) RaiseAdoError(adErrObjectOpen);
    m_strConnection = strConnection;
}

HRESULT Connection::Open(const std::wstring& strConnection, const std::wstring& strUser,
                         const std::wstring& strPassword, long /*nOptions*/) {
    if (m_pDatabase) RaiseAdoError(adErrObjectOpen);
    if (!strConnection.empty()) m_strConnection = strConnection;
    std::string strText = GbkOrRaise(m_strConnection);
    strText = WithKey(strText, "Uid", strUser);
    strText = WithKey(strText, "Pwd", strPassword);
    m_pDatabase = Raising([&] { return OpenDbConnection(strText); });
    return S_OK;
}

void Connection::Close() {
    if (!m_pDatabase) RaiseAdoError(adErrObjectClosed);
    if (m_bTransaction) RaiseAdoError(adErrInTransaction);
    for (const auto& pWeak : m_arRows)
        if (const auto pRows = pWeak.lock()) pRows->Drop();
    m_arRows.clear();
    m_pDatabase.reset();
}

CDbConnection& Connection::Database() const {
    if (!m_pDatabase) RaiseAdoError(adErrObjectClosed, "The connection is closed.");
    return *m_pDatabase;
}

void Connection::Attach(const std::shared_ptr<CRecordsetRows>& pRows) {
    std::erase_if(m_arRows, [](const auto& pWeak) { return pWeak.expired(); });
    m_arRows.push_back(pRows);
}

RecordsetPtr Connection::Execute(const std::wstring& strText, long* pRecordsAffected, long nOptions) {
    return Run(Raising([&] { return MakeStatement(Database(), strText, nOptions, {}); }), pRecordsAffected,
               nOptions);
}

RecordsetPtr Connection::Run(const CStatement& statement, long* pRecordsAffected, long nOptions) {
    auto pRecordset = std::make_shared<Recordset>();
    const bool bNoRecords = nOptions > 0 && (nOptions & adExecuteNoRecords) != 0;
    long nAffected = 0;
    if (!statement.m_bGivesRows)
        nAffected = static_cast<long>(
            Raising([&] { return Database().Execute(statement.m_strSql, statement.m_arParameters); }));
    else if (bNoRecords)
        Raising([&] { (void)Database().Query(statement.m_strSql, statement.m_arParameters); });
    else {
        pRecordset->PutCursorLocation(m_cursorLocation);
        pRecordset->OpenStatement(shared_from_this(), statement);
    }
    if (pRecordsAffected) *pRecordsAffected = nAffected;
    return pRecordset;
}

long Connection::BeginTrans() {
    if (m_bTransaction)
        throw CComError(XACT_E_XTIONEXISTS, L"ADODB", L"A connection has one transaction at a time.");
    Raising([&] { Database().BeginTransaction(); });
    m_bTransaction = true;
    return 1;
}

void Connection::CommitTrans() {
    EndTransaction(true);
}

void Connection::RollbackTrans() {
    EndTransaction(false);
}

void Connection::EndTransaction(bool bCommit) {
    CDbConnection& database = Database();
    if (!m_bTransaction)
        throw CComError(XACT_E_NOTRANSACTION, L"ADODB", L"No transaction was begun on the connection.");
    Raising([&] { bCommit ? database.CommitTransaction() : database.RollbackTransaction(); });
    m_bTransaction = false;
}
