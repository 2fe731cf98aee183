#include "data/project_db.h"

#include <filesystem>

#include "data/suite_connections.h"
#include "data/suite_statements.h"
#include "platform/ado/sqlite_provider.h"
#include "tests/support/suite_fixture.h"

namespace {

class ProjectDb : public CSuiteEngineTest {
protected:
    ProjectDb() {
        Execute("insert into x_GongCheng values(1,'G1','一',0,0)");
        Execute("insert into x_GongCheng values(2,'G2',NULL,0,0)");
    }

    /// A value of the current row, as it is read as text; "?" where it cannot be.
    static std::string Text(CProjectDb& db, const char* pszColumn) {
        CString strText = "?";
        return db.ReadField(pszColumn, &strText) ? strText.GetString() : "?";
    }
    /// The text of an expression's value.
    static std::string TextOf(const char* pszExpression) {
        CProjectDb db(SuiteDb_Project);
        return db.Open(CString("select ") + pszExpression + " as v") ? Text(db, "v") : "(nothing)";
    }
};

INSTANTIATE_TEST_SUITE_P(Engines, ProjectDb, TestEngines(), TestEngineName);

} // namespace

TEST_P(ProjectDb, WalksTheRowsOfAQuery) {
    CProjectDb db(SuiteDb_Project);
    ASSERT_EQ(db.Open("select * from x_GongCheng order by GCSY"), 1);
    std::string strNumbers;
    for (; !db.IsEof(); db.MoveNext())
        strNumbers += Text(db, "GCBH");
    EXPECT_EQ(strNumbers, "G1G2");
}

TEST_P(ProjectDb, TakesAnEmptyResultForAFailure) {
    CProjectDb db(SuiteDb_Project);
    EXPECT_EQ(db.Open("select * from x_GongCheng where GCSY = 9"), 0);
    EXPECT_EQ(db.GetRecordset().GetLastErrorString(), "");
    EXPECT_TRUE(db.IsEof());
    EXPECT_EQ(db.Open("update x_GongCheng set GCBZ = 3"), 0);
    EXPECT_EQ(Query("select GCBZ from x_GongCheng"), "3");
    EXPECT_EQ(db.Open("select * from missing"), 0);
    EXPECT_EQ(db.GetRecordset().GetLastErrorCode(), 0x80040E37U);
    EXPECT_TRUE(m_arBoxes.empty());
}

TEST_P(ProjectDb, MakesEmptyTextsNullOnRequest) {
    CProjectDb db(SuiteDb_Project);
    EXPECT_EQ(db.Open("select * from x_GongCheng where GCMC=''"), 0);
    ASSERT_EQ(db.Open("select * from x_GongCheng where GCMC=''", 1), 1);
    EXPECT_EQ(Text(db, "gcbh"), "G2");
}

TEST_P(ProjectDb, ReadsRealsShortly) {
    Execute(
        "create table v(r real, t real, d double precision, n numeric(10,2), i integer, w numeric(10,0))");
    Execute("insert into v values(1.50, 2.00, 0.1, -2.00, 70000, 200)");
    CProjectDb db(SuiteDb_Project);
    ASSERT_EQ(db.Open("select * from v"), 1);
    EXPECT_EQ(Text(db, "r"), "1.5");
    EXPECT_EQ(Text(db, "t"), "2");
    EXPECT_EQ(Text(db, "d"), "0.1");
    EXPECT_EQ(Text(db, "n"), "-2");
    EXPECT_EQ(Text(db, "i"), "70000");
    EXPECT_EQ(Text(db, "w"), "200"); // no point, so its zeros stay
}

TEST_P(ProjectDb, LosesTheZerosOfAnExponentBehindAPoint) {
    EXPECT_EQ(TextOf("cast(15000000000 as double precision)"), "1.5e+1");
    EXPECT_EQ(TextOf("cast(10000000000 as double precision)"), "1e+10");
}

TEST_P(ProjectDb, ReadsNullAsAnEmptyText) {
    CProjectDb db(SuiteDb_Project);
    ASSERT_EQ(
        db.Open(
            "select GCMC, UUC from x_GongCheng left join z_c_SanZhou on 1 = 2 where x_GongCheng.GCSY = 2"),
        1);
    EXPECT_EQ(Text(db, "GCMC"), "");
    EXPECT_EQ(Text(db, "UUC"), "");
    EXPECT_EQ(Text(db, "missing"), "?");
}

TEST_P(ProjectDb, ReadsNumbersThatAreNotNull) {
    AddMethod("ZK1", "1-1", "固结排水剪");
    Execute("update z_c_SanZhou set UUC = 2.5");
    CProjectDb db(SuiteDb_Project);
    ASSERT_EQ(db.Open("select * from z_c_SanZhou"), 1);
    int nValue = 0;
    EXPECT_EQ(db.ReadInt("GCSY", &nValue), 1);
    EXPECT_EQ(nValue, 1);
    EXPECT_EQ(db.ReadInt("missing", &nValue), 0);
    double dValue = 0;
    EXPECT_EQ(db.ReadDouble("UUC", &dValue), 1);
    EXPECT_EQ(dValue, 2.5);
    EXPECT_EQ(db.ReadDouble("UUF", &dValue), 0);
    EXPECT_EQ(db.ReadInt("UUF", &nValue), 0);
}

TEST_P(ProjectDb, StaysUnopenedWithoutAConnectionText) {
    SetProject("GCSY", "-1");
    CProjectDb db(SuiteDb_Project);
    EXPECT_EQ(db.Open("select * from x_GongCheng"), 0);
    EXPECT_TRUE(db.IsEof());
    EXPECT_EQ(db.MoveNext(), 0);
    EXPECT_EQ(Text(db, "GCBH"), "?");
}

TEST_P(ProjectDb, FailsQuietlyWhereTheDatabaseCannotBeOpened) {
    SetProject("Connect", "Provider=SQLite;Data Source=/nowhere/project.db");
    CProjectDb db(SuiteDb_Project);
    EXPECT_EQ(db.Open("select * from x_GongCheng"), 0);
    EXPECT_EQ(db.GetRecordset().GetLastErrorCode(), 0x800A0E7DU); // no open connection
    EXPECT_NE(SuiteConnection(SuiteDb_Project).GetLastErrorString(), "");
    EXPECT_TRUE(m_arBoxes.empty());
}

TEST_P(ProjectDb, ClosesAllConnectionsAtItsEnd) {
    CProjectDb first(SuiteDb_Project);
    ASSERT_EQ(first.Open("select * from x_GongCheng"), 1);
    { const CProjectDb second(SuiteDb_Config); }
    EXPECT_FALSE(SuiteConnection(SuiteDb_Project).IsOpen());
    EXPECT_TRUE(first.IsEof()); // so a walk that is under way ends
    EXPECT_EQ(first.Open("select * from x_GongCheng"), 0);
    CProjectDb third(SuiteDb_Project);
    EXPECT_EQ(third.Open("select * from x_GongCheng"), 1);
}

TEST_P(ProjectDb, GoesToTheProjectThatWasOpenedMeanwhile) {
    { const CProjectDb before(SuiteDb_Project); }
    CreateSqliteDatabase(m_root.Path("two.db"))->Execute("create table other(name text)");
    SetProject("Connect", ("Provider=SQLite;Data Source=" + m_root.Path("two.db")).c_str());
    CreateSqliteDatabase(m_root.Path("two.db"))->Execute("insert into other values('二')");
    CProjectDb db(SuiteDb_Project);
    ASSERT_EQ(db.Open("select * from other"), 1);
    EXPECT_EQ(Text(db, "name"), "二");
}

TEST_P(ProjectDb, ReadsTheSuitesConfiguration) {
    std::filesystem::create_directory(m_root.Path("Data"));
    const auto pConfig = CreateSqliteDatabase(m_root.Path("Data/config.db"));
    pConfig->Execute("create table g_TervoTempletConfig (FileName text, Path text, GCBZ integer, Fun text, "
                     "Type text)");
    pConfig->Execute(
        "insert into g_TervoTempletConfig values('A4.dwg','Templates',-1,'三轴剪试验曲线','图框')");
    CProjectDb db(SuiteDb_Config);
    ASSERT_EQ(db.Open(FrameTemplateQuery(g_pszChartFunction)), 1);
    EXPECT_EQ(Text(db, "Path") + "\\" + Text(db, "FileName"), "Templates\\A4.dwg");
}
