#include "data/ado_command.h"

#include "tests/data/ado_fixture.h"

namespace {

class AdoCommand : public CAdoTest {};

INSTANTIATE_TEST_SUITE_P(Engines, AdoCommand, TestEngines(), TestEngineName);

} // namespace

TEST_P(AdoCommand, RunsWithAParameterOfEachType) {
    m_pDatabase->Execute(
        "create table v(s smallint, l integer, r double precision, n varchar(20), d timestamp)");
    CADOCommand command(m_adoDatabase, "insert into v values(?,?,?,?,?)");
    EXPECT_EQ(command.AddShort("s", -3), 1);
    EXPECT_EQ(command.AddLong("l", 70000), 1);
    EXPECT_EQ(command.AddDouble("r", 0.1), 1);
    EXPECT_EQ(command.AddText("n", "it's 固?"), 1);
    EXPECT_EQ(command.AddDate("d", 45360.5), 1);
    ASSERT_EQ(command.Execute(), 1);
    EXPECT_EQ(command.GetRecordsAffected(), 1);
    m_rows.Open("select * from v");
    EXPECT_EQ(Text(m_rows, "s"), "-3");
    EXPECT_EQ(Text(m_rows, "l"), "70000");
    EXPECT_EQ(Text(m_rows, "r"), "0.10000000000000000555");
    EXPECT_EQ(Text(m_rows, "n"), "it's 固?");
    CVariant date;
    m_rows.GetFieldValue("d", &date);
    EXPECT_EQ(date, CVariant::Date(45360.5));
}

TEST_P(AdoCommand, TakesParametersThatChangeBetweenRuns) {
    CADOCommand command(m_adoDatabase, "delete from t where id = ?");
    CADOParameter id(ADODB::adInteger);
    ASSERT_EQ(command.AddParameter(id), 1);
    for (const int nId : {1, 3}) {
        id.SetInt(nId);
        EXPECT_EQ(command.Execute(), 1);
        EXPECT_EQ(command.GetRecordsAffected(), 1);
    }
    EXPECT_EQ(Table(), CRows{"2|乙|"});
    EXPECT_EQ(command.AddParameter(id), 0); // it is among them already
    EXPECT_EQ(command.GetLastErrorCode(), 0x800A0D27U);
}

TEST_P(AdoCommand, ChangesItsTextAndType) {
    CADOCommand command(m_adoDatabase);
    EXPECT_EQ(command.GetType(), ADODB::adCmdText);
    EXPECT_EQ(command.SetText("t"), 1);
    EXPECT_EQ(command.SetType(ADODB::adCmdTable), 1);
    EXPECT_EQ(command.GetText(), "t");
    EXPECT_EQ(command.GetType(), ADODB::adCmdTable);
    ASSERT_EQ(m_rows.Execute(command), 1);
    EXPECT_EQ(m_rows.GetRecordCount(), 3);
}

TEST_P(AdoCommand, KeepsItsError) {
    CADOCommand command(m_adoDatabase, "delete from t where id = ?");
    EXPECT_EQ(command.Execute(), 0);
    EXPECT_EQ(command.GetLastErrorCode(), 0x80040E10U);
    EXPECT_STREQ(
        command.GetLastErrorString(),
        "CADOCommand Error\n\tCode = 80040e10\n\tCode meaning = A parameter has no value\n\tSource = "
        "ADODB\n\tDescription = The statement has 1 parameters, but 0 values are given.\n");
    EXPECT_EQ(command.SetTimeout(-1), 0);
    EXPECT_EQ(command.GetLastErrorCode(), 0x800A0BB9U);
    EXPECT_EQ(command.SetTimeout(60), 1);
    EXPECT_EQ(command.GetCommand()->GetCommandTimeout(), 60);
}
