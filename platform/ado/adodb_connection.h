#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/ado/adodb_enums.h"
#include "platform/ado/adodb_statement.h"
#include "platform/ado/com_error.h"

namespace ADODB {

class CRecordsetRows;
class Recordset;
using RecordsetPtr = std::shared_ptr<Recordset>;
class Connection;
using ConnectionPtr = std::shared_ptr<Connection>;

/// A connection to a database. Failures raise CComError. A connection that goes unclosed undoes its
/// transaction.
class Connection : public std::enable_shared_from_this<Connection> {
public:
    static ConnectionPtr CreateInstance() { return ConnectionPtr(new Connection); }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection();

    /// Seconds to wait while opening, 15 unless set; 0 waits without end. It is kept for the caller: an
    /// embedded database opens at once, and a driver waits as its own settings say.
    [[nodiscard]] long GetConnectionTimeout() const { return m_nConnectionTimeout; }
    /// Raises adErrObjectOpen on an open connection, adErrInvalidArgument for a negative number.
    void PutConnectionTimeout(long nSeconds);
    /// Where the recordsets that Execute gives have their cursors.
    [[nodiscard]] CursorLocationEnum GetCursorLocation() const { return m_cursorLocation; }
    void PutCursorLocation(CursorLocationEnum location) { m_cursorLocation = location; }
    [[nodiscard]] const std::wstring& GetConnectionString() const { return m_strConnection; }
    void PutConnectionString(const std::wstring& strConnection);
    [[nodiscard]] ObjectStateEnum GetState() const { return m_pDatabase ? adStateOpen : adStateClosed; }

    /// Opens the database that the text names; an empty text means the connection string kept. User and
    /// password, where given, are handed to the driver under the keys Uid and Pwd unless the text has them.
    HRESULT Open(const std::wstring& strConnection, const std::wstring& strUser = {},
                 const std::wstring& strPassword = {}, long nOptions = -1);
    /// Closes it and every recordset opened on it. Raises adErrInTransaction within a transaction.
    void Close();

    /// Runs a statement. The recordset is a read-only one that runs forward, or, where the statement gives no
    /// rows or adExecuteNoRecords is among the options, a closed one. *pRecordsAffected, if given, is the
    /// number of rows that the statement inserted, changed or deleted.
    RecordsetPtr Execute(const std::wstring& strText, long* pRecordsAffected = nullptr,
                         long nOptions = adOptionUnspecified);

    /// Begins the one transaction that a connection has; the result, 1, is its level.
    long BeginTrans();
    void CommitTrans();
    void RollbackTrans();

private:
    friend class Recordset;
    friend class Command;
    Connection() = default;

    /// Raises adErrObjectClosed when closed.
    [[nodiscard]] CDbConnection& Database() const;
    RecordsetPtr Run(const CStatement& statement, long* pRecordsAffected, long nOptions);
    /// The rows end when the connection closes.
    void Attach(const std::shared_ptr<CRecordsetRows>& pRows);
    void EndTransaction(bool bCommit);

    std::shared_ptr<CDbConnection> m_pDatabase;
    std::vector<std::weak_ptr<CRecordsetRows>> m_arRows;
    std::wstring m_strConnection;
    long m_nConnectionTimeout = 15;
    CursorLocationEnum m_cursorLocation = adUseServer;
    bool m_bTransaction = false;
};

} // namespace ADODB
