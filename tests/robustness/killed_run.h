#pragma once

#include <random>
#include <string>

/// Runs of one command, each killed at a random moment of the time that it needs to its end.
class CKilledRuns {
public:
    /// The command in the shell's syntax; it is run once to its end.
    explicit CKilledRuns(std::string strCommand);

    /// Runs and kills it; true if it was still at work. Else the later moments come no more.
    bool RunAndKill();

    int Killed() const { return m_nKilled; }

private:
    std::string m_strCommand;
    long m_nMicroseconds = 0; ///< of a run to the end
    int m_nKilled = 0;
    std::mt19937 m_random{2000}; // NOLINT(cert-msc51-cpp): the same moments in each run, as far as they go
};
