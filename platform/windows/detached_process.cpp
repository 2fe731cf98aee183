#include "platform/windows/detached_process.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>

#include "platform/windows/descriptor.h"

namespace {

// Between fork and exec only calls that are safe after the fork of a process with threads.

void DropSignals() {
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    for (const int signal : {SIGPIPE, SIGINT, SIGQUIT, SIGHUP, SIGTERM, SIGCHLD})
        ::signal(signal, SIG_DFL);
}

/// Leaves but the pipe, which goes when the program begins.
bool DropFiles(int pipe) {
    const int nothing = open("/dev/null", O_RDWR); // may be one of the streams, so not closed by the program
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (dup2(nothing, stream) < 0) return false;
    if (pipe > 3) close_range(3, static_cast<unsigned>(pipe - 1), 0);
    close_range(static_cast<unsigned>(pipe + 1), ~0U, 0);
    return true;
}

[[noreturn]] void BecomeProgram(int pipe, const char* folder, char* const* words) {
    setsid();
    DropSignals();
    pipe = fcntl(pipe, F_DUPFD_CLOEXEC, 3); // away from the streams
    if (DropFiles(pipe) && (!*folder || chdir(folder) == 0)) execv(words[0], words);
    const int reason = errno;
    const ssize_t written = write(pipe, &reason, sizeof reason);
    _exit(written == sizeof reason ? 0 : 1);
}

/// What the program's process says of its failure; 0 when it went on to be the program.
int Reason(int pipe) {
    int reason = 0;
    ssize_t got = 0;
    do
        got = read(pipe, &reason, sizeof reason);
    while (got < 0 && errno == EINTR);
    return got == sizeof reason ? reason : 0;
}

} // namespace

int StartDetached(const std::string& program, const std::vector<std::string>& arguments,
                  const std::string& folder) {
    std::vector<std::string> texts = {program};
    texts.insert(texts.end(), arguments.begin(), arguments.end());
    std::vector<char*> words;
    words.reserve(texts.size() + 1);
    for (std::string& text : texts)
        words.push_back(text.data());
    words.push_back(nullptr);
    std::array<int, 2> ends = {};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) return errno;
    const CDescriptor reading(ends[0]);
    CDescriptor writing(ends[1]);
    const pid_t between = fork(); // ends at once, so that the program is nobody's child here
    if (between == 0) {
        const pid_t child = fork();
        if (child == 0) BecomeProgram(writing.Get(), folder.c_str(), words.data());
        _exit(child < 0 ? 1 : 0);
    }
    if (between < 0) return errno;
    writing = CDescriptor();
    int status = 0;
    while (waitpid(between, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? Reason(reading.Get()) : EAGAIN;
}
