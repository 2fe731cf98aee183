#include "tests/robustness/child_run.h"

#include <chrono>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {
double Seconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}
} // namespace

pid_t StartRun(const std::string& strCommand) {
    const std::string strBecoming = "exec " + strCommand + " >/dev/null 2>&1 </dev/null";
    const pid_t nProcess = fork();
    if (nProcess == 0) {
        execl("/bin/sh", "sh", "-c", strBecoming.c_str(), nullptr);
        _exit(127);
    }
    return nProcess;
}

CRunFigures MeasuredRun(const std::string& strCommand) {
    const auto start = std::chrono::steady_clock::now();
    CRunFigures figures;
    rusage usage = {};
    if (wait4(StartRun(strCommand), &figures.m_nStatus, 0, &usage) < 0) figures.m_nStatus = -1;
    figures.m_dSeconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    figures.m_dProcessorSeconds = Seconds(usage.ru_utime) + Seconds(usage.ru_stime);
    figures.m_dPeakMebibytes = static_cast<double>(usage.ru_maxrss) / 1024.0;
    return figures;
}
