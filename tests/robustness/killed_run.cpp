#include "tests/robustness/killed_run.h"

#include "tests/robustness/child_run.h"

#include <gtest/gtest.h>

#include <csignal>

#include <sys/wait.h>
#include <unistd.h>

CKilledRuns::CKilledRuns(std::string strCommand)
    : m_strCommand(std::move(strCommand)) {
    const CRunFigures figures = MeasuredRun(m_strCommand);
    EXPECT_EQ(figures.m_nStatus, 0) << m_strCommand;
    m_nMicroseconds = static_cast<long>(figures.m_dSeconds * 1e6);
}

bool CKilledRuns::RunAndKill() {
    const pid_t nProcess = StartRun(m_strCommand);
    const long nMoment = std::uniform_int_distribution<long>(0, m_nMicroseconds)(m_random);
    usleep(static_cast<useconds_t>(nMoment));
    EXPECT_EQ(kill(nProcess, SIGKILL), 0);
    int nStatus = 0;
    EXPECT_EQ(waitpid(nProcess, &nStatus, 0), nProcess);
    EXPECT_TRUE(WIFSIGNALED(nStatus) || WEXITSTATUS(nStatus) == 0) << m_strCommand << nStatus;
    if (WIFSIGNALED(nStatus))
        ++m_nKilled;
    else
        m_nMicroseconds = nMoment;
    return WIFSIGNALED(nStatus);
}
