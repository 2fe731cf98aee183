#include "data/ado_database.h"

#include <filesystem>

#include "tests/data/ado_fixture.h"

namespace {

class AdoDatabase : public CAdoTest {};

INSTANTIATE_TEST_SUITE_P(Engines, AdoDatabase, TestEngines(), TestEngineName);

} // namespace

TEST_P(AdoDatabase, OpensAndCloses) {
    CADODatabase database;
    EXPECT_FALSE(database.IsOpen());
    EXPECT_EQ(database.Open(ConnectionText()), 1);
    EXPECT_TRUE(database.IsOpen());
    EXPECT_EQ(database.Open(ConnectionText()), 1); // anew
    EXPECT_EQ(database.Close(), 1);
    EXPECT_FALSE(database.IsOpen());
    EXPECT_EQ(database.Close(), 1);
    EXPECT_EQ(database.GetLastErrorString(), "");
    EXPECT_EQ(database.GetLastErrorCode(), 0U);
}

TEST_P(AdoDatabase, KeepsTheFormerConnectionTextWhenGivenNone) {
    m_adoDatabase.Close();
    EXPECT_EQ(m_adoDatabase.Open(""), 1);
    EXPECT_EQ(m_adoDatabase.GetConnectionString(), ConnectionText().c_str());
    EXPECT_EQ(m_adoDatabase.Execute("delete from t where id > 1"), 1);
    EXPECT_EQ(m_adoDatabase.GetRecordsAffected(), 2);
}

TEST_P(AdoDatabase, KeepsTheErrorOfAStatement) {
    EXPECT_EQ(m_adoDatabase.Execute("delete from missing"), 0);
    EXPECT_EQ(m_adoDatabase.GetLastErrorCode(), 0x80040E37U);
    const std::string strText = m_adoDatabase.GetLastErrorString().GetString();
    EXPECT_TRUE(strText.starts_with("Connection String = " + ConnectionText() +
                                    "\nCADODataBase Error\n\tCode = 80040e37\n"))
        << strText;
    EXPECT_EQ(m_adoDatabase.Execute("delete from t"), 1); // still usable
    EXPECT_EQ(m_adoDatabase.GetLastErrorString().GetString(), strText);
}

TEST(AdoDatabaseError, IsWrittenOut) {
    CADODatabase database;
    EXPECT_EQ(database.Execute("delete from t"), 0);
    EXPECT_STREQ(
        database.GetLastErrorString(),
        "Connection String = \nCADODataBase Error\n\tCode = 800a0e78\n\tCode meaning = The object is "
        "closed\n\tSource = ADODB\n\tDescription = The connection is closed.\n");
}

TEST(AdoDatabaseError, StaysWithADatabaseThatCannotBeOpened) {
    const CTempFolder folder;
    const std::string strConnection = "Provider=SQLite;Data Source=" + folder.Path("missing.db");
    CADODatabase database;
    EXPECT_EQ(database.Open(strConnection), 0);
    EXPECT_FALSE(database.IsOpen());
    EXPECT_EQ(database.GetLastErrorCode(), 0x80004005U);
    const CString strText = database.GetLastErrorString();
    EXPECT_GT(strText.Find("CADODataBase Error\n\tCode = 80004005\n"), 0);
    EXPECT_EQ(database.Close(), 1);
    EXPECT_EQ(database.GetLastErrorString(), strText);
    EXPECT_EQ(database.GetConnectionString(), strConnection.c_str());
    EXPECT_EQ(database.Open("Provider=None;"), 0);
    EXPECT_NE(database.GetLastErrorString(), strText); // the former one is gone
}

TEST(AdoDatabaseTimeout, IsPutOnTheConnectionUnlessItIsZero) {
    const CTestDatabase file(TestEngine::Sqlite);
    CADODatabase database;
    database.Open(file.ConnectionText());
    EXPECT_EQ(database.GetConnection()->GetConnectionTimeout(), 15);
    database.SetConnectionTimeout(3);
    database.Open();
    EXPECT_EQ(database.GetConnection()->GetConnectionTimeout(), 3);
    database.SetConnectionTimeout(-1);
    EXPECT_EQ(database.Open(), 0);
    EXPECT_EQ(database.GetLastErrorCode(), 0x800A0BB9U);
}

TEST(AdoDatabaseClose, FailsWithinATransaction) {
    const CTestDatabase file(TestEngine::Sqlite);
    CADODatabase database;
    database.Open(file.ConnectionText());
    database.GetConnection()->BeginTrans();
    EXPECT_EQ(database.Close(), 0);
    EXPECT_EQ(database.Open(), 0);
    EXPECT_EQ(database.GetLastErrorCode(), 0x800A0CAEU);
    database.GetConnection()->RollbackTrans();
    EXPECT_EQ(database.Close(), 1);
}
