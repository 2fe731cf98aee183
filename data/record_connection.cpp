#include "data/record_connection.h"

#include <array>

#include "platform/ado/rowset.h"
#include "platform/tvtool/tvtool.h"
#include "platform/windows/code_page.h"

namespace {

struct CRecordConnection {
    CDbDataSource m_source;
    CDbSession m_session;
    int m_bInitialised = 0;
    int m_bSessionOpen = 0;
};

/// The project's and the common database.
std::array<CRecordConnection, 2> s_arConnections;

/// Never assigned: it differs from the text of every open project, so no session outlives a record's opening
/// and none can belong to a project that is not running any more.
const CString s_strRememberedConnection;

int s_bJetDatabase = 0;

void Release(CRecordConnection* pConnection) {
    pConnection->m_session.Release();
    pConnection->m_source.Release();
    pConnection->m_bSessionOpen = pConnection->m_bInitialised = 0;
}

int Connect(SuiteDb db, CRecordConnection* pConnection) {
    if (!pConnection->m_bInitialised) {
        CString strConnection;
        if (!GetConnectionText(db, &strConnection)) return 0;
        if (!pConnection->m_source.Initialize(WideFromGbk(strConnection.View()).c_str())) return 0;
        pConnection->m_bInitialised = 1;
    }
    if (!pConnection->m_bSessionOpen) {
        if (!pConnection->m_session.Open(pConnection->m_source)) return 0;
        pConnection->m_bSessionOpen = 1;
    }
    CTVToolDbInfo info{};
    s_bJetDatabase =
        TVToolGetDbInfo(&info) && CString(info.m_szProvider) == "Microsoft.Jet.OLEDB.4.0" ? 1 : 0;
    return 1;
}

} // namespace

const CDbSession* RecordSession(SuiteDb db) {
    CRecordConnection& connection = s_arConnections.at(db);
    if (connection.m_bSessionOpen) {
        if (db != SuiteDb_Project || !ConnectionChanged(s_strRememberedConnection))
            return &connection.m_session;
        Release(&connection);
    }
    return Connect(db, &connection) ? &connection.m_session : nullptr;
}

int IsJetDatabase() {
    return s_bJetDatabase;
}
