#include "data/statement_batch.h"

#include <algorithm>
#include <filesystem>
#include <initializer_list>

#include "data/suite_connections.h"
#include "platform/ado/sqlite_provider.h"
#include "tests/support/suite_fixture.h"

namespace {

class StatementBatch : public CSuiteEngineTest {
protected:
    StatementBatch() {
        Execute("create table names(name varchar(20))");
        std::filesystem::create_directory(m_root.Path("Data"));
        m_pCommon = CreateSqliteDatabase(m_root.Path("Data/common.db"));
        m_pCommon->Execute("create table names(name text)");
        CreateSqliteDatabase(m_root.Path("Data/config.db"))->Execute("create table names(name text)");
    }
    ~StatementBatch() override { CloseSuiteConnections(); }

    int Run(std::initializer_list<const char*> arStatements, SuiteDb db = SuiteDb_Project) {
        CStringArray saStatements;
        for (const char* pszStatement : arStatements)
            saStatements.Add(pszStatement);
        return ExecuteBatch(saStatements, db, &m_strFailure);
    }
    CTexts Names() { return Rows("select coalesce(name, 'NULL') from names"); }
    std::size_t CommonNames() const { return m_pCommon->Query("select * from names")->RowCount(); }

    std::shared_ptr<CDbConnection> m_pCommon;
    CString m_strFailure;
};

INSTANTIATE_TEST_SUITE_P(Engines, StatementBatch, TestEngines(), TestEngineName);

} // namespace

TEST_P(StatementBatch, RunsStatementsInTurn) {
    EXPECT_EQ(Run({"insert into names values('一')", "insert into names values('二')",
                   "update names set name='' where name='一'"}),
              1);
    CTexts arNames = Names();
    std::sort(arNames.begin(), arNames.end());
    EXPECT_EQ(arNames, (CTexts{"NULL", "二"}));
    EXPECT_EQ(m_strFailure, "");
    EXPECT_EQ(Run({}), 1);
}

TEST_P(StatementBatch, RunsEqualStatementsOnce) {
    EXPECT_EQ(Run({"insert into names values('a')", "INSERT INTO names VALUES('A')",
                   "insert into names values('b')", "insert into names values('a')"}),
              1);
    EXPECT_EQ(Names(), (CTexts{"a", "b"}));
}

TEST_P(StatementBatch, GoesOnBehindAStatementThatFails) {
    EXPECT_EQ(Run({"insert into names values('a')", "insert into missing values('',1)",
                   "insert into names values('b')"}),
              0);
    EXPECT_EQ(m_strFailure, "insert into missing values(NULL,1)语句错误");
    EXPECT_EQ(Names(), (CTexts{"a", "b"}));
}

TEST_P(StatementBatch, TellsOfTheFirstFailure) {
    EXPECT_EQ(Run({"one", "insert into names values('a')", "two", "insert into names values('b')"}), 0);
    EXPECT_EQ(m_strFailure, "one语句错误");
    EXPECT_EQ(Names(), (CTexts{"a", "b"}));
}

TEST_P(StatementBatch, RunsInTheCommonDatabaseAndAfterAFailureInTheProjects) {
    EXPECT_EQ(Run({"insert into names values('a')"}, SuiteDb_Common), 1);
    EXPECT_EQ(CommonNames(), 1U);
    EXPECT_EQ(Run({"nothing", "insert into names values('b')"}, SuiteDb_Common), 0);
    EXPECT_EQ(CommonNames(), 1U);
    EXPECT_EQ(Names(), CTexts{"b"});
}

TEST_P(StatementBatch, MeansTheCommonDatabaseByTheConfigurationToo) {
    EXPECT_EQ(Run({"insert into names values('a')"}, SuiteDb_Config), 0); // that one is not connected
    EnsureConnection(SuiteDb_Common);
    EXPECT_EQ(Run({"insert into names values('b')"}, SuiteDb_Config), 1);
    EXPECT_EQ(CommonNames(), 1U);
}

TEST_P(StatementBatch, DoesNothingWithoutAConnectionText) {
    SetProject("GCSY", "-1");
    EXPECT_EQ(Run({"insert into names values('a')"}), 1);
    EXPECT_TRUE(Names().empty());
}
