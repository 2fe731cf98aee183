#include "platform/ado/adodb_command.h"

#include <gtest/gtest.h>

#include "tests/platform/ado/recordset_fixture.h"

using namespace ADODB;

namespace {

class CommandObject : public CRecordsetTest {
protected:
    CommandObject() { m_pCommand->PutActiveConnection(m_pConnection); }

    void Append(DataTypeEnum type, const CVariant& value) {
        m_pCommand->GetParameters().Append(Command::CreateParameter(L"", type, adParamInput, 0, value));
    }

    CommandPtr m_pCommand = std::make_shared<Command>();
};

} // namespace

TEST_F(CommandObject, BindsItsParametersInOrder) {
    m_pCommand->PutCommandText(L"insert into t(id, name, depth) values(?,?,?)");
    Append(adInteger, CVariant(7));
    Append(adVarChar, CVariant(L"it's 固?"));
    Append(adDouble, CVariant::Null());
    long nAffected = 0;
    EXPECT_EQ(m_pCommand->Execute(&nAffected)->GetState(), adStateClosed);
    EXPECT_EQ(nAffected, 1);
    EXPECT_EQ(Rows(*m_pDatabase, "select name, depth is null from t where id = 7"), CRows{"it's 固?|1"});
}

TEST_F(CommandObject, GivesRows) {
    m_pCommand->PutCommandText(L"select name from t where depth > ? and name <> '?'");
    m_pCommand->PutCommandType(adCmdText);
    Append(adSingle, CVariant(2.0F));
    EXPECT_EQ(Column(*m_pCommand->Execute(), L"name"), L"丙");
    m_pCommand->GetParameters().GetItem(0L)->PutValue(CVariant(1.0));
    EXPECT_EQ(Column(*m_pCommand->Execute(), L"name"), L"甲,丙");
}

TEST_F(CommandObject, WantsAsManyValuesAsPlaces) {
    m_pCommand->PutCommandText(L"select * from t where id = ?");
    EXPECT_EQ(CodeOf([&] { m_pCommand->Execute(); }), 0x80040E10U);
    Append(adInteger, CVariant(1));
    Append(adInteger, CVariant(2));
    EXPECT_EQ(CodeOf([&] { m_pCommand->Execute(); }), 0x800A0E7CU);
}

TEST_F(CommandObject, OpensARecordsetThatCanBeWritten) {
    m_pCommand->PutCommandText(L"select * from t where id = ?");
    Append(adInteger, CVariant(3));
    Recordset recordset;
    recordset.Open(m_pCommand, adOpenKeyset, adLockOptimistic);
    Put(recordset, L"name", CVariant(L"丁"));
    recordset.Update();
    EXPECT_EQ(Rows(*m_pDatabase, "select name from t"), (CRows{"甲", "乙", "丁"}));
    EXPECT_EQ(recordset.GetSource(), L"select * from t where id = ?");
    recordset.Requery();
    EXPECT_EQ(Text(recordset, L"name"), L"丁");
}

TEST_F(CommandObject, OpensATableByName) {
    m_pCommand->PutCommandText(L"t");
    m_pCommand->PutCommandType(adCmdTable);
    EXPECT_EQ(Column(*m_pCommand->Execute(), L"id"), L"1,2,3");
}

TEST_F(CommandObject, SaysThatADatabaseHasNoProcedures) {
    m_pCommand->PutCommandText(L"统计");
    m_pCommand->PutCommandType(adCmdStoredProc);
    try {
        m_pCommand->Execute();
        ADD_FAILURE() << "ran";
    } catch (const CComError& error) {
        EXPECT_EQ(static_cast<std::uint32_t>(error.Error()), g_nStatementError);
        EXPECT_EQ(error.Description(), L"This database has no stored procedures: 统计");
    }
}

TEST_F(CommandObject, NeedsAnOpenConnection) {
    m_pCommand->PutCommandText(L"select 1");
    m_pConnection->Close();
    EXPECT_EQ(CodeOf([&] { m_pCommand->Execute(); }), g_nInvalidConnection);
    m_pCommand->PutActiveConnection(nullptr);
    EXPECT_EQ(CodeOf([&] { m_pCommand->Execute(); }), g_nInvalidConnection);
    EXPECT_EQ(CodeOf([&] { Recordset().Open(CommandPtr()); }), g_nInvalidArgument);
}

TEST_F(CommandObject, KeepsItsTimeout) {
    EXPECT_EQ(m_pCommand->GetCommandTimeout(), 30);
    m_pCommand->PutCommandTimeout(0);
    EXPECT_EQ(m_pCommand->GetCommandTimeout(), 0);
    EXPECT_EQ(CodeOf([&] { m_pCommand->PutCommandTimeout(-1); }), g_nInvalidArgument);
}
