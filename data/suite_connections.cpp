#include "data/suite_connections.h"

#include <array>

namespace {

struct CSuiteConnection {
    CADODatabase m_database;
    int m_bOpen = 0;
};

std::array<CSuiteConnection, 3> s_arSuiteConnections;

/// The connection text that SuiteDb_Project was opened with last.
CString s_strProjectConnection;

} // namespace

int EnsureConnection(SuiteDb db) {
    CSuiteConnection& connection = s_arSuiteConnections.at(db);
    if (db == SuiteDb_Project && ConnectionChanged(s_strProjectConnection)) connection.m_bOpen = 0;
    if (connection.m_bOpen) return 1;
    CString strConnection;
    if (!GetConnectionText(db, &strConnection)) return 0;
    connection.m_database.Open(strConnection);
    connection.m_bOpen = 1;
    if (db == SuiteDb_Project) s_strProjectConnection = strConnection;
    return 1;
}

CADODatabase& SuiteConnection(SuiteDb db) {
    return s_arSuiteConnections.at(db).m_database;
}

void CloseSuiteConnections() {
    for (const SuiteDb db : {SuiteDb_Config, SuiteDb_Common, SuiteDb_Project}) {
        s_arSuiteConnections.at(db).m_bOpen = 0;
        s_arSuiteConnections.at(db).m_database.Close();
    }
}
