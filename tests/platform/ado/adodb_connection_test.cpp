#include "platform/ado/adodb_connection.h"

#include <gtest/gtest.h>

#include "tests/platform/ado/recordset_fixture.h"

using namespace ADODB;

namespace {
class ConnectionObject : public CRecordsetTest {};
} // namespace

TEST_F(ConnectionObject, OpensOnceAndCloses) {
    EXPECT_EQ(m_pConnection->GetState(), adStateOpen);
    EXPECT_EQ(CodeOf([&] { m_pConnection->Open(L""); }), g_nObjectOpen);
    m_pConnection->Close();
    EXPECT_EQ(m_pConnection->GetState(), adStateClosed);
    EXPECT_EQ(CodeOf([&] { m_pConnection->Close(); }), g_nObjectClosed);
    EXPECT_EQ(CodeOf([&] { m_pConnection->Execute(L"select 1"); }), g_nObjectClosed);
}

TEST_F(ConnectionObject, KeepsItsConnectionString) {
    m_pConnection->Close();
    EXPECT_EQ(m_pConnection->Open(L""), S_OK);
    EXPECT_EQ(m_pConnection->GetConnectionString(), WideFromGbk(ConnectionText()));
}

TEST_F(ConnectionObject, TakesUserAndPasswordThatTheTextDoesNotHave) {
    const ConnectionPtr pConnection = Connection::CreateInstance();
    EXPECT_EQ(pConnection->Open(WideFromGbk(ConnectionText()), L"sa", L"a;b"), S_OK);
    EXPECT_EQ(pConnection->GetConnectionString(), WideFromGbk(ConnectionText())); // no password in it
}

TEST_F(ConnectionObject, SaysWhyADatabaseCannotBeHad) {
    const ConnectionPtr pConnection = Connection::CreateInstance();
    try {
        pConnection->Open(L"Provider=SQLite;Data Source=/nowhere/固.db");
        ADD_FAILURE() << "opened";
    } catch (const CComError& error) {
        EXPECT_EQ(static_cast<std::uint32_t>(error.Error()), 0x80004005U);
        EXPECT_EQ(error.Source(), L"SQLite");
        EXPECT_EQ(error.Description(), L"There is no database /nowhere/固.db, or it cannot be opened.");
    }
    EXPECT_EQ(pConnection->GetState(), adStateClosed);
    EXPECT_EQ(CodeOf([&] { pConnection->Open(L"Data Source=\U0001F600"); }), 0x80040E21U);
}

TEST_F(ConnectionObject, TakesATimeoutWhileClosed) {
    const ConnectionPtr pConnection = Connection::CreateInstance();
    EXPECT_EQ(pConnection->GetConnectionTimeout(), 15);
    pConnection->PutConnectionTimeout(3);
    EXPECT_EQ(pConnection->GetConnectionTimeout(), 3);
    EXPECT_EQ(CodeOf([&] { pConnection->PutConnectionTimeout(-1); }), g_nInvalidArgument);
    EXPECT_EQ(CodeOf([&] { m_pConnection->PutConnectionTimeout(3); }), g_nObjectOpen);
    EXPECT_EQ(CodeOf([&] { m_pConnection->PutConnectionString(L"x"); }), g_nObjectOpen);
}

TEST_F(ConnectionObject, CountsTheRowsThatAStatementChanges) {
    long nAffected = -7;
    const RecordsetPtr pNone =
        m_pConnection->Execute(L"update t set name = '丁' where id > 1", &nAffected, adCmdText);
    EXPECT_EQ(nAffected, 2);
    EXPECT_EQ(pNone->GetState(), adStateClosed);
    EXPECT_EQ(Rows(*m_pDatabase, "select name from t"), (CRows{"甲", "丁", "丁"}));
}

TEST_F(ConnectionObject, GivesRowsThatRunForwardAndAreReadOnly) {
    const RecordsetPtr pRows = m_pConnection->Execute(L"select name from t order by id");
    EXPECT_EQ(pRows->GetCursorType(), adOpenForwardOnly);
    EXPECT_EQ(pRows->GetRecordCount(), -1);
    EXPECT_EQ(Column(*pRows, L"name"), L"甲,乙,丙");
    EXPECT_EQ(CodeOf([&] { pRows->MovePrevious(); }), g_nNotAvailable);
    m_pConnection->PutCursorLocation(adUseClient);
    EXPECT_EQ(m_pConnection->Execute(L"t", nullptr, adCmdTable)->GetRecordCount(), 3);
    EXPECT_EQ(m_pConnection->Execute(L"t", nullptr, adCmdTable | adExecuteNoRecords)->GetState(),
              adStateClosed);
}

TEST_F(ConnectionObject, RaisesACodeForEachKindOfFault) {
    EXPECT_EQ(CodeOf([&] { m_pConnection->Execute(L"selekt"); }), g_nNoTable); // a lone name is a table
    EXPECT_EQ(CodeOf([&] { m_pConnection->Execute(L"select * from missing"); }), g_nNoTable);
    EXPECT_EQ(CodeOf([&] { m_pConnection->Execute(L"select from where"); }), g_nStatementError);
    EXPECT_EQ(CodeOf([&] { m_pConnection->Execute(L"", nullptr, adCmdText); }), g_nStatementError);
    EXPECT_EQ(CodeOf([&] { m_pConnection->Execute(L"insert into t values(1,'',0)"); }), 0x80040E2FU);
    EXPECT_EQ(CodeOf([&] { m_pConnection->Execute(L"proc", nullptr, adCmdStoredProc); }), g_nStatementError);
}

TEST_F(ConnectionObject, RaisesWhenAnotherProgramKeepsTheLock) {
    const ConnectionPtr pHurried = Connection::CreateInstance();
    pHurried->Open(WideFromGbk(ConnectionText()) + L";Lock Timeout=20");
    const CDatabaseLock other(m_database);
    EXPECT_EQ(CodeOf([&] { pHurried->Execute(L"delete from t"); }), 0x80040E31U);
    EXPECT_EQ(CodeOf([&] { pHurried->BeginTrans(); }), 0x80040E31U);
}

TEST_F(ConnectionObject, ClosesTheRecordsetsOpenedOnIt) {
    const RecordsetPtr pRows = Opened(L"select * from t");
    const RecordsetPtr pClone = pRows->Clone();
    m_pConnection->Close();
    EXPECT_EQ(pRows->GetState(), adStateClosed);
    EXPECT_EQ(pClone->GetState(), adStateClosed);
    EXPECT_EQ(CodeOf([&] { pRows->MoveNext(); }), g_nObjectClosed);
    EXPECT_EQ(CodeOf([&] { (void)pRows->GetFields(); }), g_nObjectClosed);
    m_pConnection->Open(L"");
    pRows->Open(L"select * from t", m_pConnection);
    EXPECT_EQ(Text(*pRows, L"id"), L"1");
}

TEST_F(ConnectionObject, KeepsOrUndoesATransaction) {
    EXPECT_EQ(m_pConnection->BeginTrans(), 1);
    EXPECT_EQ(CodeOf([&] { m_pConnection->BeginTrans(); }), 0x8004D013U);
    EXPECT_EQ(CodeOf([&] { m_pConnection->Close(); }), 0x800A0CAEU);
    m_pConnection->Execute(L"delete from t where id = 1");
    m_pConnection->RollbackTrans();
    EXPECT_EQ(CodeOf([&] { m_pConnection->RollbackTrans(); }), 0x8004D00EU);
    m_pConnection->BeginTrans();
    m_pConnection->Execute(L"delete from t where id = 3");
    m_pConnection->CommitTrans();
    EXPECT_EQ(CodeOf([&] { m_pConnection->CommitTrans(); }), 0x8004D00EU);
    EXPECT_EQ(Rows(*m_pDatabase, "select id from t"), (CRows{"1", "2"}));
}

TEST_F(ConnectionObject, UndoesATransactionThatIsLeftOpen) {
    m_pConnection->BeginTrans();
    m_pConnection->Execute(L"delete from t");
    m_pConnection.reset();
    EXPECT_EQ(Rows(*m_pDatabase, "select count(*) from t"), CRows{"3"});
}
