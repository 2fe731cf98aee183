#pragma once

#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <stdexcept>
#include <string>

/// Another process that holds the write lock of a database until it is told to let go, or for nMilliseconds
/// if that is not 0. The lock is held when the constructor returns.
class CLockingProcess {
public:
    explicit CLockingProcess(const std::string& strPath, int nMilliseconds = 0) {
        std::array<int, 2> arPipe{};
        if (pipe(arPipe.data()) != 0) throw std::runtime_error("no pipe");
        m_nChild = fork();
        if (m_nChild == 0) Hold(strPath, nMilliseconds, arPipe[1]);
        close(arPipe[1]);
        char cHeld = 0;
        const bool bHeld = read(arPipe[0], &cHeld, 1) == 1 && cHeld == '1';
        close(arPipe[0]);
        if (!bHeld) throw std::runtime_error("the other process got no lock");
    }
    CLockingProcess(const CLockingProcess&) = delete;
    CLockingProcess& operator=(const CLockingProcess&) = delete;
    ~CLockingProcess() {
        kill(m_nChild, SIGKILL);
        waitpid(m_nChild, nullptr, 0);
    }

private:
    [[noreturn]] static void Hold(const std::string& strPath, int nMilliseconds, int nPipe) {
        sqlite3* pDatabase = nullptr;
        sqlite3_open_v2(strPath.c_str(), &pDatabase, SQLITE_OPEN_READWRITE, nullptr);
        const bool bHeld = sqlite3_exec(pDatabase, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr) == SQLITE_OK;
        const char cHeld = bHeld ? '1' : '0';
        if (write(nPipe, &cHeld, 1) != 1) _exit(1);
        if (nMilliseconds == 0) pause();
        usleep(static_cast<useconds_t>(nMilliseconds) * 1000U);
        _exit(0); // the lock goes with the process
    }

    pid_t m_nChild = -1;
};
