#pragma once

#include "data/ado_object.h"
#include "platform/ado/adodb_connection.h"

/// A connection to a database. Results are 1, or 0 with the error kept.
class CADODatabase final : public CADOObject {
public:
    CADODatabase()
        : CADOObject("CADODataBase") {}

    /// Closes first if it is open. An empty connection text means the one kept; any other is kept, also when
    /// opening fails.
    int Open(const CString& strConnection = "", const CString& strUser = "", const CString& strPassword = "");
    int IsOpen() const;
    int Close();

    /// Runs a statement as nOptions, a CommandTypeEnum, says.
    int Execute(const CString& strStatement, long nOptions = ADODB::adCmdText);
    /// Rows that the last statement run here inserted, changed or deleted.
    int GetRecordsAffected() const { return m_nRecordsAffected; }

    /// Seconds to wait while opening; 0, the first value, leaves it to the connection.
    void SetConnectionTimeout(int nSeconds) { m_nConnectionTimeout = nSeconds; }
    const CString& GetConnectionString() const { return m_strConnection; }
    /// For recordsets and commands on it; the same object for this one's whole life.
    const ADODB::ConnectionPtr& GetConnection() const { return m_pConnection; }

private:
    CString ErrorPrefix() const override { return "Connection String = " + m_strConnection + "\n"; }

    ADODB::ConnectionPtr m_pConnection = ADODB::Connection::CreateInstance();
    CString m_strConnection;
    int m_nRecordsAffected = 0;
    int m_nConnectionTimeout = 0;
};
