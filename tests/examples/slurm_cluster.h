#pragma once

#include <optional>

#include "tests/support/daemon.h"
#include "tests/temp_folder.h"

/// A Slurm of the test's own: one node of two processors on loopback, on free ports, its files in a temporary
/// folder. Its commands find it by the environment (SLURM_CONF). It ends with this object or this process,
/// and whatever it runs then.
class CSlurmCluster {
public:
    /// Whether the machine has Slurm (packages.txt).
    static bool IsInstalled();

    /// Throws std::runtime_error when the node does not come up.
    CSlurmCluster();
    CSlurmCluster(const CSlurmCluster&) = delete;
    CSlurmCluster& operator=(const CSlurmCluster&) = delete;
    ~CSlurmCluster();

    /// Returns once no job waits or runs, held ones included.
    void AwaitIdle() const;

private:
    void Await(const std::string& strQuestion, const std::string& strAnswer) const;
    std::string Answer(const std::string& strCommand) const;

    CTempFolder m_folder;
    std::optional<CGuard> m_guard;
};
