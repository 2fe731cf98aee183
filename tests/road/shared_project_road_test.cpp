// Two programs at work on one project's database at the same time, in real runs.

#include "tests/road/bren_project.h"
#include "tests/support/test_database.h"

#include <gtest/gtest.h>

namespace {
constexpr int g_nStores = 20;

/// A project with the sheets of three samples, each in a drawing named by its sample.
class CSharedProject {
public:
    explicit CSharedProject(const std::string& strConnect = "")
        : m_project(CMeasuredSamples{{"1", "1-1", "smith-exc4.4"},
                                     {"1", "1-2", "smith-exc4.4"},
                                     {"1", "1-3", "smith-exc4.4"}},
                    0, strConnect) {
        for (const char* pSample : {"1-1", "1-2", "1-3"}) {
            m_project.Run("BREN\n" + Selection("1", pSample) + "0,0\nSAVEAS " + Drawing(pSample) + "\n" +
                          m_project.Dump());
            for (const CJson& entity : m_project.Entities())
                if (entity["class"] == "CBRENChart") m_strChart = "#" + entity["handle"].get<std::string>();
        }
    }
    std::string Drawing(const std::string& strSample) const {
        return m_project.m_program.Folder().Path(strSample + ".dwg");
    }
    /// The lines that adopt values for the sample.
    std::string Adoption(const std::string& strSample, int nC, int nPhi) const {
        return "OPEN " + Drawing(strSample) + "\nBRCF\n" + m_strChart + "\nset 1053 " + std::to_string(nC) +
               "\nset 1054 " + std::to_string(nPhi) + "\nok\nCLOSE\nno\n";
    }
    /// A run in the background of one that stores again and again, into its own sample and the last one.
    std::string Stores(const std::string& strSample, int nFirst) const {
        std::string strScript;
        for (int i = 0; i < g_nStores; i++)
            strScript +=
                Adoption(strSample, nFirst + i, nFirst + i) + Adoption("1-3", nFirst + i, nFirst + i);
        return TERVO_BIN "/tvcad --root \"$ROOT\" -q -s '" +
               m_project.m_program.Folder().Write(strSample + ".scr", strScript) + "'";
    }

    const CBrenProject m_project;
    std::string m_strChart; ///< how a script picks it; the same in each drawing
};

class SharedProject : public testing::Test, protected CSharedProject {};

class SharedProjectOnEngine : public testing::TestWithParam<TestEngine> {
protected:
    CTestDatabase m_database{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Engines, SharedProjectOnEngine, TestEngines(), TestEngineName);
} // namespace

TEST_P(SharedProjectOnEngine, LosesNoStoreOfTwoProgramsAtOnce) {
    const CSharedProject shared(m_database.ConnectionText());
    const CRun run = shared.m_project.m_program.Shell(shared.Stores("1-1", 100) + " & " +
                                                      shared.Stores("1-2", 200) + "; wait");
    EXPECT_EQ(run.m_strErrors, "");
    EXPECT_EQ(run.m_strOut.find("not stored"), std::string::npos) << run.m_strOut;
    const CJson rows = shared.m_project.Results();
    ASSERT_EQ(rows.size(), 3U);
    for (const char* pColumn : {"CDC", "CDF"}) {
        EXPECT_EQ(rows[0][pColumn], 119.0);
        EXPECT_EQ(rows[1][pColumn], 219.0);
        // A store writes the columns that differ from what it has read: each has a last value of its own.
        EXPECT_TRUE(rows[2][pColumn] == 119.0 || rows[2][pColumn] == 219.0) << rows[2];
    }
}

TEST_F(SharedProject, TellsOfAStoreThatAnotherProgramHoldsUpTooLong) {
    const CJson before = m_project.Results();
    m_project.SetLockTimeout(50);
    const auto pOther = OpenDbConnection("Provider=SQLite;Data Source=" + m_project.DatabasePath());
    pOther->BeginTransaction(); // in which others read, but do not write
    const CRun run = m_project.Run(Adoption("1-2", 7, 8));
    pOther->RollbackTransaction();
    EXPECT_EQ(run.m_strOut, "z_c_SanZhou 1 1-2: locked by another program, row not stored\n" +
                                Utf8(u8"\n三轴剪切数据存储成功!\n"));
    EXPECT_EQ(m_project.Results(), before);
    m_project.Run(Adoption("1-2", 7, 8));
    EXPECT_EQ(m_project.Results()[1]["CDF"], 8.0);
}

TEST_F(SharedProject, TellsOfTheProjectThatAnotherProgramHoldsUpTooLong) {
    m_project.SetLockTimeout(50);
    CRun run;
    {
        const CLockingProcess other(m_project.DatabasePath()); // nobody else reads
        run = m_project.Run("OPEN " + Drawing("1-1") + "\nBRCF\n" + m_strChart + "\n");
    }
    EXPECT_EQ(run.m_strOut, Utf8(u8"[Tervo] 不能打开工点信息数据表,请检查数据!\n\n"
                                 u8"数据存储失败!\n三轴剪切数据存储失败!\n"));
}
