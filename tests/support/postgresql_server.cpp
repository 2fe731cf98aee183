#include "tests/support/postgresql_server.h"

#include <fcntl.h>
#include <grp.h>
#include <netinet/in.h>
#include <pwd.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <thread>
#include <vector>

#include "platform/ado/error.h"
#include "platform/ado/provider.h"

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

int FreePort() {
    const int nSocket = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t nSize = sizeof address;
    auto* pAddress = reinterpret_cast<sockaddr*>(&address);
    const bool bBound = bind(nSocket, pAddress, nSize) == 0 && getsockname(nSocket, pAddress, &nSize) == 0;
    close(nSocket);
    if (!bBound) throw std::runtime_error("no free port");
    return ntohs(address.sin_port);
}

/// The user that the server runs as; null where that is the user of this process.
const passwd* ServerUser() {
    if (geteuid() != 0) return nullptr;
    const passwd* pUser = getpwnam("postgres");
    return pUser ? pUser : getpwnam("nobody");
}

/// Starts a program as the server's user; it ends with this process. All it prints goes to a file.
pid_t Start(const passwd* pUser, const std::string& strLog, std::vector<std::string> arWords) {
    const pid_t nChild = fork();
    if (nChild != 0) return nChild;
    if (pUser && (setgroups(0, nullptr) != 0 || setgid(pUser->pw_gid) != 0 || setuid(pUser->pw_uid) != 0))
        _exit(1);
    prctl(PR_SET_PDEATHSIG, SIGQUIT); // the server's word for stopping at once
    const int nLog = open(strLog.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
    dup2(nLog, STDOUT_FILENO);
    dup2(nLog, STDERR_FILENO);
    std::vector<char*> arArguments;
    arArguments.reserve(arWords.size() + 1);
    for (std::string& strWord : arWords)
        arArguments.push_back(strWord.data());
    arArguments.push_back(nullptr);
    execv(arArguments[0], arArguments.data());
    _exit(1);
}

void WriteText(const std::string& strPath, const std::string& strText, std::ios::openmode mode) {
    std::ofstream(strPath, mode) << strText;
}

/// The guard's life: makes the server's files, runs it until the lifeline is cut, and takes all away.
class CGuard {
public:
    CGuard(fs::path programs, std::string strFolder, int nPort)
        : m_programs(std::move(programs))
        , m_strFolder(std::move(strFolder))
        , m_nPort(nPort) {}

    void Run(int nLifeline) {
        const pid_t nServer = MakeFiles() ? StartServer() : -1;
        char cNothing = 0;
        while (read(nLifeline, &cNothing, 1) < 0 && errno == EINTR) {
        }
        if (nServer > 0) {
            kill(nServer, SIGQUIT);
            waitpid(nServer, nullptr, 0);
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
            Start(m_pUser, m_strFolder + "/log",
                  {m_programs / "initdb", "-D", m_strFolder + "/data", "-U", g_pUser, "--pwfile",
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
        return Start(m_pUser, m_strFolder + "/log", {m_programs / "postgres", "-D", m_strFolder + "/data"});
    }

    fs::path m_programs;
    std::string m_strFolder;
    int m_nPort;
    const passwd* m_pUser = ServerUser();
};

/// Leaves the streams and the terminal of the test alone.
void Detach() {
    setsid();
    const int nNothing = open("/dev/null", O_RDWR);
    for (const int nStream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        dup2(nNothing, nStream);
}

} // namespace

CPostgresqlServer& CPostgresqlServer::Instance() {
    static CPostgresqlServer s_server;
    return s_server;
}

CPostgresqlServer::CPostgresqlServer()
    : m_nPort(FreePort()) {
    const fs::path programs = ProgramFolder();
    std::array<int, 2> arPipe{};
    std::string strFolder = (fs::temp_directory_path() / "tervo-postgresql-XXXXXX").string();
    if (pipe2(arPipe.data(), O_CLOEXEC) != 0 || !mkdtemp(strFolder.data()))
        throw std::runtime_error("no pipe or folder for the server");
    m_nGuard = fork();
    if (m_nGuard == 0) {
        close(arPipe[1]);
        Detach();
        CGuard(programs, strFolder, m_nPort).Run(arPipe[0]);
        _exit(0);
    }
    close(arPipe[0]);
    m_nLifeline = arPipe[1];
    AwaitStart();
}

CPostgresqlServer::~CPostgresqlServer() {
    close(m_nLifeline);
    waitpid(m_nGuard, nullptr, 0);
}

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
