// examples/cluster: the sheets of many projects as an array of jobs, on a Slurm that the test runs itself.

#include "tests/examples/demo_project.h"
#include "tests/examples/slurm_cluster.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <optional>

namespace fs = std::filesystem;

namespace {
const std::string g_strSubmit = "cluster/submit --root \"$ROOT\" ";

class Cluster : public testing::Test, protected CDemoProject {
protected:
    void SetUp() override {
        if (!CSlurmCluster::IsInstalled())
            GTEST_SKIP() << "Slurm is not installed (slurm-wlm of packages.txt)";
        m_cluster.emplace();
    }
    /// Runs an example and waits until the cluster has done what it submitted.
    CRun Done(const std::string& strWords) const {
        CRun run = Example(strWords);
        EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
        m_cluster->AwaitIdle();
        return run;
    }
    std::string Database(const std::string& strNumber) const {
        return m_program.Root() + "/Projects/" + strNumber + "/project.db";
    }
    std::size_t PageCount(const std::string& strNumber) const {
        const std::string strFile = "run/sheets/" + strNumber + ".pdf";
        return fs::exists(Folder().Path(strFile)) ? Pages(strFile).size() : 0;
    }

    std::optional<CSlurmCluster> m_cluster;
};

class ClusterWords : public testing::Test, protected CDemoProject {
protected:
    void ExpectRefused(const std::string& strWords, int nStatus, const std::string& strError) const {
        const CRun run = Example(strWords);
        EXPECT_EQ(run.m_nStatus, nStatus) << strWords;
        EXPECT_EQ(run.m_strErrors.find(strError), 0U) << strWords << ": " << run.m_strErrors;
        EXPECT_FALSE(fs::exists(Folder().Path("run"))) << strWords;
    }
};
} // namespace

TEST_F(Cluster, DrawsEachProjectInATaskOfItsOwnAndRunsAFailedOneAgainAlone) {
    MakeDemoProject(m_program, "GC-2");
    MakeDemoProject(m_program, "GC 3");
    fs::rename(Database("GC-2"), Database("GC-2") + ".whole");
    std::ofstream(Database("GC-2")) << "no database";
    const std::string strProject = m_program.Read("Project.ini");

    Done(g_strSubmit + "run");
    const CRun report = Example("cluster/report run");
    EXPECT_EQ(report.m_nStatus, 1) << report.m_strErrors;
    EXPECT_EQ(report.m_strOut.find("task 2, project GC-2, status 4:\n    tvdata: "), 0U) << report.m_strOut;
    EXPECT_NE(report.m_strOut.find("\n3 tasks: 2 done, 1 failed, 0 not done yet\n"), std::string::npos)
        << report.m_strOut;
    for (const auto& [pNumber, nPages] : {std::pair{"DEMO-01", 9U}, {"GC-2", 0U}, {"GC 3", 9U}})
        EXPECT_EQ(PageCount(pNumber), nPages) << pNumber;
    EXPECT_EQ(Folder().Read("run/status/1") + Folder().Read("run/status/2") + Folder().Read("run/status/3"),
              "0\n4\n0\n");
    EXPECT_NE(Folder().Read("run/logs/3.log").find(Utf8(u8"读取z_c_QuYang表数据成功!")), std::string::npos);

    fs::rename(Database("GC-2") + ".whole", Database("GC-2"));
    const auto written = fs::last_write_time(Folder().Path("run/sheets/DEMO-01.pdf"));
    Done("cluster/report run --rerun");
    const CRun again = Example("cluster/report run");
    EXPECT_EQ(again.m_nStatus, 0) << again.m_strErrors;
    EXPECT_EQ(again.m_strOut, "3 tasks: 3 done, 0 failed, 0 not done yet\n");
    EXPECT_EQ(PageCount("GC-2"), 9U);
    EXPECT_EQ(fs::last_write_time(Folder().Path("run/sheets/DEMO-01.pdf")), written) << "not run again";
    for (const char* pNumber : {"DEMO-01", "GC-2", "GC 3"})
        EXPECT_EQ(Values("ZK10", "10-3", pNumber)["CUFE"], 32.89) << pNumber;
    EXPECT_EQ(m_program.Read("Project.ini"), strProject);
}

TEST_F(Cluster, TellsOfATaskThatWaitsAndOfOneThatWasTakenAway) {
    Folder().Write("projects.txt", "\r\nDEMO-01\r\n");
    const CRun submitted = Example(g_strSubmit + "--projects projects.txt run --hold");
    EXPECT_EQ(submitted.m_nStatus, 0) << submitted.m_strErrors;
    EXPECT_EQ(submitted.m_strOut, Folder().Read("run/jobs")) << "the job's number";
    const CRun held = Example("cluster/report run");
    EXPECT_EQ(held.m_nStatus, 3) << held.m_strErrors;
    EXPECT_EQ(held.m_strOut, "1 tasks: 0 done, 0 failed, 1 not done yet\n");

    EXPECT_EQ(m_program.Shell("scancel $(cat '" + Folder().Path("run/jobs") + "')").m_nStatus, 0);
    m_cluster->AwaitIdle();
    const CRun gone = Example("cluster/report run");
    EXPECT_EQ(gone.m_nStatus, 1);
    EXPECT_EQ(gone.m_strOut, "task 1, project DEMO-01, status none:\n    no log\n"
                             "1 tasks: 0 done, 1 failed, 0 not done yet\n");
}

TEST_F(ClusterWords, AreRefusedBeforeAnythingIsSubmitted) {
    ExpectRefused("cluster/submit", 2, "submit: no folder RUN; usage: ");
    ExpectRefused("cluster/submit --everything run", 2, "submit: unknown option --everything; usage: ");
    ExpectRefused("cluster/submit --root", 2, "submit: --root needs a value; usage: ");
    ExpectRefused("cluster/submit --root nowhere run", 4, "submit: nowhere: there is no installation");
    ExpectRefused(g_strSubmit + "--projects nowhere run", 4, "submit: nowhere cannot be read");
    ExpectRefused(g_strSubmit + "--projects /dev/null run", 1, "submit: no project is named");
    ExpectRefused(g_strSubmit + "root", 1, "submit: " + m_program.Root() + " is there already");
    ExpectRefused("cluster/submit --tasks 1 run", 1, "submit: " + Folder().Path("run") + " is no folder");
    ExpectRefused("cluster/report run", 2, "usage: report RUN");
}
