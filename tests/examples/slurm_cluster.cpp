#include "tests/examples/slurm_cluster.h"

#include <pwd.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <thread>

namespace {

constexpr const char* g_pController = "/usr/sbin/slurmctld";
constexpr const char* g_pNode = "/usr/sbin/slurmd";

std::string UserName() {
    const passwd* pUser = getpwuid(geteuid());
    if (!pUser) throw std::runtime_error("this user has no name");
    return pUser->pw_name;
}

/// No key is shared and no control groups are needed: whoever reaches the ports of loopback is believed.
std::string Configuration(const std::string& strFolder) {
    const std::string strUser = UserName();
    return "ClusterName=test\nSlurmctldHost=localhost(127.0.0.1)\nSlurmctldPort=" +
           std::to_string(FreePort()) + "\nSlurmdPort=" + std::to_string(FreePort()) +
           "\nAuthType=auth/none\nCredType=cred/none\nSlurmUser=" + strUser + "\nSlurmdUser=" + strUser +
           "\nStateSaveLocation=" + strFolder + "\nSlurmdSpoolDir=" + strFolder +
           "/spool\nSlurmctldPidFile=" + strFolder + "/slurmctld.pid\nSlurmdPidFile=" + strFolder +
           "/slurmd.pid\nProctrackType=proctrack/linuxproc\nTaskPlugin=task/none\n"
           "SelectType=select/cons_tres\nSelectTypeParameters=CR_CPU\n"
           "SchedulerParameters=sched_interval=1,batch_sched_delay=0\nReturnToService=2\nKillWait=1\n"
           // The node may have fewer processors than it says.
           "SlurmdParameters=config_overrides\nNodeName=localhost CPUs=2\n"
           "PartitionName=all Nodes=ALL Default=YES\n";
}

} // namespace

bool CSlurmCluster::IsInstalled() {
    return std::filesystem::exists(g_pController) && std::filesystem::exists(g_pNode) &&
           std::system("command -v sbatch squeue sinfo scancel >/dev/null") == 0; // NOLINT: a shell is wanted
}

CSlurmCluster::CSlurmCluster() {
    const std::string strConfiguration = m_folder.Write("slurm.conf", Configuration(m_folder.Path()));
    setenv("SLURM_CONF", strConfiguration.c_str(), 1);
    m_guard.emplace(
        [strFolder = m_folder.Path()] {
            StartDaemon({g_pController, "-D"}, strFolder + "/slurmctld.log", SIGKILL);
            StartDaemon({g_pNode, "-D", "-N", "localhost"}, strFolder + "/slurmd.log", SIGKILL);
        },
        [strFolder = m_folder.Path()] {
            KillChildren();
            std::error_code ignored;
            std::filesystem::remove_all(strFolder, ignored);
        });
    Await("sinfo --noheader --format=%T", "idle\n");
}

CSlurmCluster::~CSlurmCluster() {
    unsetenv("SLURM_CONF");
}

void CSlurmCluster::AwaitIdle() const {
    Await("squeue --noheader", "");
}

void CSlurmCluster::Await(const std::string& strQuestion, const std::string& strAnswer) const {
    std::string strLast;
    for (int nTry = 0; nTry < 2000; ++nTry) {
        strLast = Answer(strQuestion);
        if (strLast == strAnswer) return;
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    throw std::runtime_error(strQuestion + " still says: " + strLast + m_folder.Read("slurmctld.log") +
                             m_folder.Read("slurmd.log"));
}

std::string CSlurmCluster::Answer(const std::string& strCommand) const {
    const std::string strAnswer = m_folder.Path("answer");
    // NOLINTNEXTLINE: a shell is wanted
    const int nStatus = std::system(("{ " + strCommand + "; } >'" + strAnswer + "' 2>&1").c_str());
    return nStatus == 0 ? m_folder.Read("answer") : "(failed) " + m_folder.Read("answer");
}
