#include "host/datamanager/background.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <exception>
#include <string>

#include "host/datamanager/failure.h"

namespace {

/// What the new process says first: this byte when it is ready, else why it failed.
constexpr char g_cReady = '\n';

void CloseAllBut(int nKept) {
    const int nLimit = static_cast<int>(sysconf(_SC_OPEN_MAX));
    if (nKept > 3) close_range(3, static_cast<unsigned>(nKept - 1), 0);
    if (close_range(static_cast<unsigned>(nKept + 1), ~0U, 0) == 0) return;
    for (int nFile = 3; nFile < nLimit; ++nFile)
        if (nFile != nKept) close(nFile);
}

void LeaveCaller(int nKept) {
    setsid();
    const int nNull = open("/dev/null", O_RDWR | O_CLOEXEC);
    for (const int nStream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        dup2(nNull, nStream);
    CloseAllBut(nKept);
    if (chdir("/") != 0) _exit(1);
}

void Say(int nPipe, const std::string& strText) {
    if (write(nPipe, strText.data(), strText.size()) < 0) _exit(1);
}

[[noreturn]] void RunWork(int nPipe, const std::function<void(const std::function<void()>&)>& fnWork) {
    LeaveCaller(nPipe);
    bool bReady = false;
    try {
        fnWork([&] {
            Say(nPipe, std::string(1, g_cReady));
            close(nPipe);
            bReady = true;
        });
        _exit(0);
    } catch (const std::exception& error) {
        if (!bReady) Say(nPipe, error.what());
    }
    _exit(1);
}

std::string ReadAll(int nPipe) {
    std::string strText;
    std::array<char, 512> buffer{};
    for (;;) {
        const ssize_t nRead = read(nPipe, buffer.data(), buffer.size());
        if (nRead > 0) strText.append(buffer.data(), static_cast<std::size_t>(nRead));
        if (nRead == 0 || (nRead < 0 && errno != EINTR)) return strText;
    }
}

} // namespace

pid_t RunInBackground(const std::function<void(const std::function<void()>& fnReady)>& fnWork) {
    std::array<int, 2> pipe{};
    if (pipe2(pipe.data(), O_CLOEXEC) != 0) throw CFailure(ExitStatus::NoAccess, "no pipe can be made");
    const pid_t nProcess = fork();
    if (nProcess == 0) RunWork(pipe[1], fnWork);
    close(pipe[1]);
    const std::string strSaid = nProcess > 0 ? ReadAll(pipe[0]) : "no process can be made";
    close(pipe[0]);
    if (strSaid == std::string(1, g_cReady)) return nProcess;
    if (nProcess > 0) waitpid(nProcess, nullptr, 0);
    throw CFailure(ExitStatus::NoAccess,
                   strSaid.empty() ? "the resident data manager ended at once" : strSaid);
}
