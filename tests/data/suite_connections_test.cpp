#include "data/suite_connections.h"

#include <filesystem>

#include "platform/ado/sqlite_provider.h"
#include "tests/support/suite_fixture.h"

namespace {

class SuiteConnections : public CSuiteTest {
protected:
    ~SuiteConnections() override { CloseSuiteConnections(); }

    void MakeDatabase(const std::string& strFile) {
        std::filesystem::create_directories(std::filesystem::path(m_root.Path(strFile)).parent_path());
        CreateSqliteDatabase(m_root.Path(strFile))->Execute("create table names(name text)");
    }
    /// Whether the file's table takes a name through the connection that is ensured.
    static bool Writes(SuiteDb db) {
        return EnsureConnection(db) && SuiteConnection(db).Execute("insert into names values('x')");
    }
};

} // namespace

TEST_F(SuiteConnections, ReachEachDatabase) {
    MakeDatabase("one.db");
    MakeDatabase("Data/common.db");
    MakeDatabase("Data/config.db");
    SetProject("Database", "one.db");
    for (const SuiteDb db : {SuiteDb_Project, SuiteDb_Common, SuiteDb_Config}) {
        EXPECT_TRUE(Writes(db)) << db;
        EXPECT_TRUE(SuiteConnection(db).IsOpen()) << db;
    }
}

TEST_F(SuiteConnections, GoToTheProjectThatRunsNow) {
    MakeDatabase("one.db");
    MakeDatabase("two.db");
    SetProject("Database", "one.db");
    EXPECT_TRUE(Writes(SuiteDb_Project));
    const CString strFirst = SuiteConnection(SuiteDb_Project).GetConnectionString();
    EXPECT_TRUE(Writes(SuiteDb_Project));
    SetProject("Database", "two.db");
    EXPECT_TRUE(Writes(SuiteDb_Project));
    EXPECT_NE(SuiteConnection(SuiteDb_Project).GetConnectionString(), strFirst);
    EXPECT_EQ(CreateSqliteDatabase(m_root.Path("one.db"))->Query("select * from names")->RowCount(), 2U);
    EXPECT_EQ(CreateSqliteDatabase(m_root.Path("two.db"))->Query("select * from names")->RowCount(), 1U);
}

TEST_F(SuiteConnections, AreNotHadWithoutAConnectionText) {
    EXPECT_EQ(EnsureConnection(SuiteDb_Project), 1);
    SetProject("GCSY", "-1");
    EXPECT_EQ(EnsureConnection(SuiteDb_Project), 0);
    SetProject("GCSY", "1");
    EXPECT_EQ(EnsureConnection(SuiteDb_Project), 1);
}

TEST_F(SuiteConnections, CountAsHadWhereOpeningFailed) {
    SetProject("Database", "missing.db");
    EXPECT_EQ(EnsureConnection(SuiteDb_Project), 1);
    EXPECT_FALSE(SuiteConnection(SuiteDb_Project).IsOpen());
    EXPECT_EQ(SuiteConnection(SuiteDb_Project).GetLastErrorCode(), 0x80004005U);
    MakeDatabase("missing.db");
    EXPECT_FALSE(Writes(SuiteDb_Project)); // it is not tried again
    CloseSuiteConnections();
    EXPECT_TRUE(Writes(SuiteDb_Project));
}

TEST_F(SuiteConnections, AreAllClosedTogether) {
    MakeDatabase("Data/common.db");
    EnsureConnection(SuiteDb_Project);
    EnsureConnection(SuiteDb_Common);
    CloseSuiteConnections();
    EXPECT_FALSE(SuiteConnection(SuiteDb_Project).IsOpen());
    EXPECT_FALSE(SuiteConnection(SuiteDb_Common).IsOpen());
    EXPECT_TRUE(Writes(SuiteDb_Common));
}
