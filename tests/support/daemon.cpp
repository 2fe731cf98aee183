#include "tests/support/daemon.h"

#include <fcntl.h>
#include <grp.h>
#include <netinet/in.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <fstream>
#include <stdexcept>

namespace {

/// Leaves the streams and the terminal of the test alone.
void Detach() {
    setsid();
    const int nNothing = open("/dev/null", O_RDWR);
    for (const int nStream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        dup2(nNothing, nStream);
}

[[noreturn]] void Guard(int nLifeline, const std::function<void()>& fnBegin,
                        const std::function<void()>& fnEnd) noexcept {
    Detach();
    prctl(PR_SET_CHILD_SUBREAPER, 1);
    fnBegin();
    char cNothing = 0;
    while (read(nLifeline, &cNothing, 1) < 0 && errno == EINTR) {
    }
    fnEnd();
    _exit(0);
}

} // namespace

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

pid_t StartDaemon(std::vector<std::string> arWords, const std::string& strLog, int nEndSignal,
                  const passwd* pUser) {
    const pid_t nChild = fork();
    if (nChild != 0) return nChild;
    if (pUser && (setgroups(0, nullptr) != 0 || setgid(pUser->pw_gid) != 0 || setuid(pUser->pw_uid) != 0))
        _exit(1);
    prctl(PR_SET_PDEATHSIG, nEndSignal);
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

CGuard::CGuard(const std::function<void()>& fnBegin, const std::function<void()>& fnEnd) {
    std::array<int, 2> arPipe{};
    if (pipe2(arPipe.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe for the guard");
    m_nProcess = fork();
    if (m_nProcess == 0) {
        close(arPipe[1]);
        Guard(arPipe[0], fnBegin, fnEnd);
    }
    close(arPipe[0]);
    m_nLifeline = arPipe[1];
    if (m_nProcess < 0) {
        close(m_nLifeline);
        throw std::runtime_error("no process for the guard");
    }
}

CGuard::~CGuard() {
    close(m_nLifeline);
    waitpid(m_nProcess, nullptr, 0);
}

void KillChildren() {
    const std::string strList = "/proc/self/task/" + std::to_string(getpid()) + "/children";
    pid_t nChild = 0;
    while (std::ifstream(strList) >> nChild) {
        kill(nChild, SIGKILL);
        waitpid(nChild, nullptr, 0);
    }
}
