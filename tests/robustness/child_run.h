#pragma once

#include <sys/types.h>

#include <string>

/// Starts a command in the shell's syntax, without streams, and gives the process that it is: the shell
/// becomes it.
pid_t StartRun(const std::string& strCommand);

struct CRunFigures {
    int m_nStatus = -1; ///< as waitpid gives it
    double m_dSeconds = 0.0;
    double m_dProcessorSeconds = 0.0;
    double m_dPeakMebibytes = 0.0;
};

/// Runs a command to its end.
CRunFigures MeasuredRun(const std::string& strCommand);
