#include "tests/support/postgresql_server.h"

#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <thread>
#include <vector>

#include "platform/ado/error.h"
#include "platform/ado/provider.h"
#include "tests/support/daemon.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* g_pUser = "tervo";
constexpr const char* g_pPassword = "only for tests";

/// The folder of the newest server's programs.
fs::path ProgramFolder() {
    fs::path newest;
    int nNewest = 0;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator("/usr/lib/postgresql", error)) {
        const int nVersion = std::atoi(entry.path().filename().c_str()); // NOLINT: 0 for what is no version
        if (nVersion <= nNewest || !fs::exists(entry.path() / "bin/postgres")) continue;
        nNewest = nVersion;
        newest = entry.path() / "bin";
    }
    if (newest.empty()) throw std::runtime_error("no PostgreSQL server is installed (packages.txt)");
    return newest;
}

/// The user that the server runs as; null where that is the user of this process.
const passwd* ServerUser() {
    if (geteuid() != 0) return nullptr;
    const passwd* pUser = getpwnam("postgres");
    return pUser ? pUser : getpwnam("nobody");
}

void WriteText(const std::string& strPath, const std::string& strText, std::ios::openmode mode) {
    std::ofstream(strPath, mode) << strText;
}

/// The server and its files, as the guard has them.
class CServerFiles {
public:
    CServerFiles(fs::path programs, std::string strFolder, int nPort)
        : m_programs(std::move(programs))
        , m_strFolder(std::move(strFolder))
        , m_nPort(nPort) {}

    void Begin() {
        if (MakeFiles()) m_nServer = StartServer();
    }
    void End() const {
        if (m_nServer > 0) {
            kill(m_nServer, SIGQUIT);
            waitpid(m_nServer, nullptr, 0);
        }
        std::error_code ignored;
        fs::remove_all(m_strFolder, ignored);
    }

private:
    bool MakeFiles() {
        const std::string strPasswordFile = m_strFolder + "/password";
        WriteText(strPasswordFile, g_pPassword, std::ios::out);
        if (m_pUser && (chown(m_strFolder.c_str(), m_pUser->pw_uid, m_pUser->pw_gid) != 0 ||
                        chown(strPasswordFile.c_str(), m_pUser->pw_uid, m_pUser->pw_gid) != 0))
            return false;
        const pid_t nChild =
            Start({m_programs / "initdb", "-D", m_strFolder + "/data", "-U", g_pUser, "--pwfile",
                   strPasswordFile, "--auth=scram-sha-256", "--encoding=UTF8", "--locale=C.UTF-8",
                   "--locale-provider=icu", "--icu-locale=zh", "--no-sync"});
        int nStatus = 0;
        return waitpid(nChild, &nStatus, 0) == nChild && nStatus == 0;
    }

    pid_t StartServer() {
        WriteText(m_strFolder + "/data/postgresql.conf",
                  "listen_addresses = '127.0.0.1'\nport = " + std::to_string(m_nPort) +
                      "\nunix_socket_directories = ''\nfsync = off\nfull_page_writes = off\n"
                      "synchronous_commit = off\nautovacuum = off\n",
                  std::ios::app);
        return Start({m_programs / "postgres", "-D", m_strFolder + "/data"});
    }

    /// As the server's user, and ended by the server's word for stopping at once.
    pid_t Start(std::vector<std::string> arWords) const {
        return StartDaemon(std::move(arWords), m_strFolder + "/log", SIGQUIT, m_pUser);
    }

    fs::path m_programs;
    std::string m_strFolder;
    int m_nPort;
    pid_t m_nServer = -1;
    const passwd* m_pUser = ServerUser();
};

} // namespace

CPostgresqlServer& CPostgresqlServer::Instance() {
    static CPostgresqlServer s_server;
    return s_server;
}

CPostgresqlServer::CPostgresqlServer()
    : m_nPort(FreePort()) {
    std::string strFolder = (fs::temp_directory_path() / "tervo-postgresql-XXXXXX").string();
    if (!mkdtemp(strFolder.data())) throw std::runtime_error("no folder for the server");
    const auto pFiles = std::make_shared<CServerFiles>(ProgramFolder(), strFolder, m_nPort);
    m_pGuard = std::make_unique<CGuard>([pFiles] { pFiles->Begin(); }, [pFiles] { pFiles->End(); });
    AwaitStart();
}

CPostgresqlServer::~CPostgresqlServer() = default;

void CPostgresqlServer::AwaitStart() const {
    std::string strWhy;
    for (int i = 0; i < 600; ++i) {
        try {
            OpenDbConnection(ConnectionText("postgres"));
            return;
        } catch (const CDbError& error) {
            strWhy = error.what();
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    throw std::runtime_error("the server does not start: " + strWhy);
}

std::string CPostgresqlServer::ConnectionText(const std::string& strDatabase) const {
    return "Provider=ODBC;Driver=PostgreSQL Unicode;Server=127.0.0.1;Port=" + std::to_string(m_nPort) +
           ";Database=" + strDatabase + ";Uid=" + g_pUser + ";Pwd=" + g_pPassword;
}

std::string CPostgresqlServer::MakeDatabase() {
    std::string strDatabase = "test" + std::to_string(++m_nDatabases);
    OpenDbConnection(ConnectionText("postgres"))->Execute("CREATE DATABASE " + strDatabase);
    return strDatabase;
}

void CPostgresqlServer::RemoveDatabase(const std::string& strDatabase) {
    OpenDbConnection(ConnectionText("postgres"))->Execute("DROP DATABASE " + strDatabase + " WITH (FORCE)");
}

void CPostgresqlServer::BreakConnections(const std::string& strDatabase) {
    (void)OpenDbConnection(ConnectionText("postgres"))
        ->Query("SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE datname = '" + strDatabase +
                "'");
}
