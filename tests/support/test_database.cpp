#include "tests/support/test_database.h"

#include <chrono>
#include <utility>

#include "platform/ado/sqlite_provider.h"
#include "tests/support/postgresql_server.h"

void PrintTo(TestEngine engine, std::ostream* pStream) {
    *pStream << (engine == TestEngine::Sqlite ? "SQLite" : "PostgreSQL");
}

std::string TestEngineName(const testing::TestParamInfo<TestEngine>& info) {
    return info.param == TestEngine::Sqlite ? "Sqlite" : "Postgresql";
}

CTestDatabase::CTestDatabase(TestEngine engine, std::string strFile)
    : m_engine(engine) {
    if (engine == TestEngine::Sqlite) {
        m_strFile = strFile.empty() ? m_folder.Path("project.db") : std::move(strFile);
        m_strConnection = "Provider=SQLite;Data Source=" + m_strFile;
        CreateSqliteDatabase(m_strFile);
    } else {
        m_strName = CPostgresqlServer::Instance().MakeDatabase();
        m_strConnection = CPostgresqlServer::Instance().ConnectionText(m_strName);
    }
}

CTestDatabase::~CTestDatabase() {
    if (!m_strName.empty()) CPostgresqlServer::Instance().RemoveDatabase(m_strName);
}

void CTestDatabase::Break() const {
    if (!m_strName.empty()) CPostgresqlServer::Instance().BreakConnections(m_strName);
}

CDatabaseLock::CDatabaseLock(const CTestDatabase& database, int nMilliseconds) {
    if (database.Engine() == TestEngine::Sqlite) {
        m_pProcess = std::make_unique<CLockingProcess>(database.File(), nMilliseconds);
        return;
    }
    m_pOther = database.Connect();
    const auto pTables =
        m_pOther->Query("SELECT quote_ident(tablename) FROM pg_tables WHERE schemaname = 'public'");
    m_pOther->BeginTransaction();
    for (std::size_t i = 0; i < pTables->RowCount(); ++i)
        m_pOther->Execute("LOCK TABLE " + CellText(pTables->Cell(i, 0)));
    if (nMilliseconds == 0) return;
    m_release = std::jthread([pOther = m_pOther, nMilliseconds] {
        std::this_thread::sleep_for(std::chrono::milliseconds(nMilliseconds));
        pOther->RollbackTransaction();
    });
}
