#include "data/record_connection.h"

#include <filesystem>

#include "data/gong_cheng_record.h"
#include "platform/ado/sqlite_provider.h"
#include "tests/support/suite_fixture.h"

namespace {

class RecordConnection : public CSuiteTest {
protected:
    /// Name of project 1 as the record classes find it now; empty where the table cannot be opened.
    static std::string ProjectName(int nUseCommonDb = 0) {
        CGongChengRecord record;
        if (!record.OpenRows(record.QueryFor("GCSY = 1"), nUseCommonDb, 1) || record.MoveFirstRow() != 0)
            return {};
        return record.m_szGCMC;
    }
    void MakeProject(const std::string& strFile, const std::string& strName) {
        const auto pDatabase = CreateSqliteDatabase(m_root.Path(strFile));
        LayOut(*pDatabase);
        pDatabase->Execute("insert into x_GongCheng values(1,'GC','" + strName + "',0,0)");
    }
};

/// The project's database on a server.
class RecordConnectionToServer : public CSuiteEngineTest {};

INSTANTIATE_TEST_SUITE_P(Engines, RecordConnectionToServer, testing::Values(TestEngine::Postgresql),
                         TestEngineName);

} // namespace

TEST_P(RecordConnectionToServer, OutlivesAServerThatGoesAwayAndComesBack) {
    Execute("insert into x_GongCheng values(1,'GC','一',0,0)");
    CGongChengRecord record;
    ASSERT_TRUE(record.OpenRows(record.QueryFor("GCSY = 1"), 0, 1));
    ASSERT_EQ(record.MoveFirstRow(), 0);
    m_database.Break();
    record.m_nGCBZ = 5;
    EXPECT_LT(record.StoreRow(), 0);
    ASSERT_EQ(m_arLines.size(), 1U);
    EXPECT_TRUE(m_arLines[0].starts_with("x_GongCheng: ")) << m_arLines[0];
    ASSERT_TRUE(record.OpenRows(record.QueryFor("GCSY = 1"), 0, 1));
    ASSERT_EQ(record.MoveFirstRow(), 0);
    record.m_nGCBZ = 5;
    EXPECT_EQ(record.StoreRow(), 0);
    m_pDatabase = m_database.Connect();
    EXPECT_EQ(Query("select GCMC, GCBZ from x_GongCheng"), "一|5");
}

TEST_F(RecordConnection, GoesToTheProjectThatRunsNow) {
    MakeProject("one.db", "一");
    MakeProject("two.db", "二");
    SetProject("Database", "one.db");
    EXPECT_EQ(ProjectName(), "一");
    SetProject("Database", "two.db");
    EXPECT_EQ(ProjectName(), "二");
}

TEST_F(RecordConnection, SeesADatabaseThatWasReplacedUnderTheSameName) {
    MakeProject("one.db", "一");
    MakeProject("two.db", "二");
    SetProject("Database", "one.db");
    EXPECT_EQ(ProjectName(), "一");
    std::filesystem::rename(m_root.Path("two.db"), m_root.Path("one.db"));
    EXPECT_EQ(ProjectName(), "二");
}

TEST_F(RecordConnection, FindsAgainAProjectThatCouldNotBeHad) {
    SetProject("Database", "missing.db");
    EXPECT_EQ(RecordSession(SuiteDb_Project), nullptr);
    EXPECT_FALSE(std::filesystem::exists(m_root.Path("missing.db")));
    MakeProject("missing.db", "三");
    EXPECT_EQ(ProjectName(), "三");
}

TEST_F(RecordConnection, KeepsAnOpenRecordOnItsOwnDatabase) {
    MakeProject("one.db", "一");
    MakeProject("two.db", "二");
    SetProject("Database", "one.db");
    CGongChengRecord record;
    ASSERT_TRUE(record.OpenRows(record.QueryFor("GCSY = 1"), 0, 1));
    SetProject("Database", "two.db");
    EXPECT_EQ(ProjectName(), "二");
    ASSERT_EQ(record.MoveFirstRow(), 0);
    EXPECT_STREQ(record.m_szGCMC, "一");
}

TEST_F(RecordConnection, UsesTheCommonDatabaseByTheFlag) {
    std::filesystem::create_directory(m_root.Path("Data"));
    MakeProject("Data/common.db", "公共");
    EXPECT_EQ(ProjectName(1), "公共");
    EXPECT_EQ(ProjectName(5), "公共");
    EXPECT_EQ(ProjectName(0), "");
}

TEST_F(RecordConnection, TellsAtEachConnectionWhetherTheProviderIsJet) {
    ASSERT_NE(RecordSession(SuiteDb_Project), nullptr);
    EXPECT_EQ(IsJetDatabase(), 0);
    // an installation whose provider name is the dialect's, over a connection text that leaves the engine
    // open
    m_root.Write("tervo.ini", "[TVTool]\nProvider=Microsoft.Jet.OLEDB.4.0\n");
    SetProject("Connect", ("Data Source=" + m_strDatabase).c_str());
    ASSERT_NE(RecordSession(SuiteDb_Project), nullptr);
    EXPECT_EQ(IsJetDatabase(), 1);
    SetProject("Connect", ("Provider=SQLite;Data Source=" + m_strDatabase).c_str());
    ASSERT_NE(RecordSession(SuiteDb_Project), nullptr);
    EXPECT_EQ(IsJetDatabase(), 0);
}
