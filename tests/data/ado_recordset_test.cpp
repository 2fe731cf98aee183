#include "data/ado_recordset.h"

#include "tests/data/ado_fixture.h"

namespace {

class AdoRecordset : public CAdoTest {};

INSTANTIATE_TEST_SUITE_P(Engines, AdoRecordset, TestEngines(), TestEngineName);

} // namespace

TEST_P(AdoRecordset, OpensAStatementByEachOption) {
    for (const int nOption : {RecordsetOption_Unknown, RecordsetOption_Query, RecordsetOption_Table}) {
        ASSERT_EQ(m_rows.Open("select * from t order by id", nOption), 1) << nOption;
        EXPECT_TRUE(m_rows.IsOpen());
        EXPECT_EQ(Names(m_rows), "甲乙丙");
    }
    EXPECT_EQ(m_rows.Open("t", RecordsetOption_Query), 1); // a table's name
    EXPECT_EQ(m_rows.GetRecordCount(), 3);
    EXPECT_EQ(m_rows.Open("t", RecordsetOption_Table), 0); // no statement
    EXPECT_FALSE(m_rows.IsOpen());
}

TEST_P(AdoRecordset, ReusesTheLastStatementWhenGivenNone) {
    ASSERT_EQ(m_rows.Open("  \tselect * from t where id = 2"), 1);
    EXPECT_EQ(m_rows.GetQuery(), "select * from t where id = 2");
    m_pDatabase->Execute("update t set name = '丁'");
    ASSERT_EQ(m_rows.Open(), 1);
    EXPECT_EQ(Names(m_rows), "丁");
}

TEST_P(AdoRecordset, TakesTheConnectionGivenUnlessItHasOne) {
    CADORecordset rows;
    EXPECT_EQ(rows.Open("select * from t"), 0);
    EXPECT_EQ(rows.GetLastErrorCode(), 0x800A0E7DU);
    EXPECT_EQ(rows.Open(m_adoDatabase, "select * from t order by id"), 1);
    EXPECT_EQ(rows.Open(CADODatabase(), "select * from t order by id"), 1);
    EXPECT_EQ(Names(rows), "甲乙丙");
}

TEST_P(AdoRecordset, RunsAStatementWithoutRowsAndStaysClosed) {
    EXPECT_EQ(m_rows.Open("delete from t where id > 1", RecordsetOption_Table), 1);
    EXPECT_FALSE(m_rows.IsOpen());
    EXPECT_TRUE(m_rows.IsEof());
    EXPECT_EQ(Table(), CRows{"1|甲|1.5"});
}

TEST_P(AdoRecordset, KeepsTheErrorAndStaysUsable) {
    EXPECT_EQ(m_rows.Open("select * from missing"), 0);
    EXPECT_EQ(m_rows.GetLastErrorCode(), 0x80040E37U);
    const std::string strText = m_rows.GetLastErrorString().GetString();
    EXPECT_TRUE(strText.starts_with("Query = select * from missing\nCADORecordset Error\n\tCode = 80040e37\n"
                                    "\tCode meaning = The table does not exist\n\tSource = "))
        << strText;
    EXPECT_TRUE(strText.ends_with("\n"));
    EXPECT_EQ(m_rows.Open("select * from t"), 1);
}

TEST_P(AdoRecordset, DropsAnEditThatWasNotStoredWhenItCloses) {
    m_rows.Open("select * from t order by id");
    m_rows.Edit();
    ASSERT_EQ(m_rows.SetFieldText("name", "改"), 1);
    m_rows.SetFilter("id = 9"); // stores
    m_rows.SetFilter("id = 2");
    ASSERT_EQ(m_rows.AddNew(), 1);
    m_rows.SetFieldInt("id", 4);
    EXPECT_EQ(m_rows.Close(), 1);
    EXPECT_EQ(m_rows.GetEditStatus(), EditStatus_None);
    EXPECT_FALSE(m_rows.IsOpen());
    EXPECT_EQ(m_rows.Close(), 1);
    EXPECT_EQ(Table(), (CRows{"1|改|1.5", "2|乙|", "3|丙|3.5"}));
}

TEST_P(AdoRecordset, MovesThroughItsRows) {
    m_rows.Open("select * from t order by id");
    EXPECT_EQ(m_rows.MoveLast(), 1);
    EXPECT_EQ(Text(m_rows, "name"), "丙");
    EXPECT_EQ(m_rows.MovePrevious(), 1);
    EXPECT_EQ(Text(m_rows, "name"), "乙");
    EXPECT_EQ(m_rows.MoveFirst(), 1);
    EXPECT_EQ(m_rows.MovePrevious(), 1);
    EXPECT_TRUE(m_rows.IsBof());
    EXPECT_FALSE(m_rows.IsEof());
    EXPECT_EQ(m_rows.MovePrevious(), 0);
    EXPECT_EQ(m_rows.GetLastErrorCode(), 0x800A0BCDU);
}

TEST_P(AdoRecordset, IsAtBothEndsWithoutRows) {
    EXPECT_EQ(m_rows.Open("select * from t where id > 9"), 1);
    EXPECT_TRUE(m_rows.IsEof());
    EXPECT_TRUE(m_rows.IsBof());
    EXPECT_EQ(m_rows.GetRecordCount(), 0);
    EXPECT_EQ(m_rows.MoveFirst(), 0);
    m_rows.Close();
    EXPECT_TRUE(m_rows.IsEof());
    EXPECT_TRUE(m_rows.IsBof());
    EXPECT_EQ(m_rows.GetRecordCount(), 0);
}

TEST_P(AdoRecordset, EndsWithItsConnection) {
    m_rows.Open("select * from t");
    m_rows.AddNew();
    m_adoDatabase.Close();
    EXPECT_FALSE(m_rows.IsOpen());
    EXPECT_EQ(m_rows.MoveNext(), 0);
    EXPECT_TRUE(m_rows.IsEof());
    EXPECT_EQ(m_rows.Open(), 0);
    m_adoDatabase.Open();
    EXPECT_EQ(m_rows.Open(), 1);
    EXPECT_EQ(m_rows.GetEditStatus(), EditStatus_None);
}

TEST_P(AdoRecordset, CountsByWalkingTheRowsOfACommand) {
    CADOCommand command(m_adoDatabase, "select * from t where id > ? order by id");
    command.AddLong("least", 1);
    ASSERT_EQ(m_rows.Execute(command), 1);
    EXPECT_EQ(m_rows.GetQuery(), "select * from t where id > ? order by id");
    EXPECT_EQ(m_rows.GetRecordCount(), 2);
    EXPECT_EQ(Text(m_rows, "name"), "乙"); // the first
    EXPECT_EQ(Names(m_rows), "乙丙");
    CADORecordset rows; // without a connection of its own
    ASSERT_EQ(rows.Execute(CADOCommand(m_adoDatabase, "select * from t where id > 9")), 1);
    EXPECT_TRUE(rows.IsOpen());
    EXPECT_EQ(rows.GetRecordCount(), 0);
    EXPECT_EQ(rows.Execute(CADOCommand(m_adoDatabase, "select * from missing")), 0);
    EXPECT_EQ(rows.GetLastErrorCode(), 0x80040E37U);
}

TEST_P(AdoRecordset, AsksTheEngineForAProcedure) {
    EXPECT_EQ(m_rows.Open("deep", RecordsetOption_StoredProc), 0);
    EXPECT_STREQ(
        m_rows.GetLastErrorString(),
        "Query = deep\nCADORecordset Error\n\tCode = 80040e14\n\tCode meaning = The statement has "
        "errors\n\tSource = Database\n\tDescription = This database has no stored procedures: deep\n");
    EXPECT_FALSE(m_rows.IsOpen());
    EXPECT_EQ(m_rows.Open("select * from t"), 1);
}
