#pragma once

#include <pwd.h>
#include <sys/types.h>

#include <functional>
#include <string>
#include <vector>

/// A free port of loopback. Throws std::runtime_error when there is none.
int FreePort();

/// Starts a program by its path with words, as another user unless that is null; it gets nEndSignal when this
/// process ends. All it prints goes to the end of a file. Its process id; it is waited for by the caller.
pid_t StartDaemon(std::vector<std::string> arWords, const std::string& strLog, int nEndSignal,
                  const passwd* pUser = nullptr);

/// A process beside this one, which starts daemons and takes them away however this one ends. What they start
/// and leave becomes its children. One at a time: a second one would hold the first one's lifeline.
class CGuard {
public:
    /// fnBegin runs in the guard at once, fnEnd when this object goes or this process has ended. Throws
    /// std::runtime_error when there is no process to be had.
    CGuard(const std::function<void()>& fnBegin, const std::function<void()>& fnEnd);
    CGuard(const CGuard&) = delete;
    CGuard& operator=(const CGuard&) = delete;
    /// Returns when fnEnd has.
    ~CGuard();

private:
    int m_nLifeline = -1; ///< closed with this process; the guard waits for that
    pid_t m_nProcess = -1;
};

/// For a guard: kills whatever came of it and is still there.
void KillChildren();
