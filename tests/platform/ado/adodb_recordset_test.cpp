#include "platform/ado/adodb_recordset.h"

#include <gtest/gtest.h>

#include "tests/platform/ado/recordset_fixture.h"

using namespace ADODB;

namespace {
class RecordsetObject : public CRecordsetTest {};
} // namespace

TEST_F(RecordsetObject, OpensOnTheFirstRow) {
    const RecordsetPtr pRows = Opened(L"select * from t order by id");
    EXPECT_EQ(pRows->GetState(), adStateOpen);
    EXPECT_EQ(Text(*pRows, L"name"), L"甲");
    EXPECT_EQ(pRows->GetRecordCount(), 3);
    EXPECT_EQ(pRows->GetSource(), L"select * from t order by id");
    EXPECT_EQ(pRows->GetActiveConnection(), m_pConnection);
}

TEST_F(RecordsetObject, OpensByItsProperties) {
    Recordset recordset;
    EXPECT_EQ(recordset.GetCursorType(), adOpenForwardOnly);
    EXPECT_EQ(recordset.GetCursorLocation(), adUseServer);
    EXPECT_EQ(recordset.GetLockType(), adLockReadOnly);
    recordset.PutSource(L"t");
    recordset.PutActiveConnection(m_pConnection);
    recordset.PutCursorType(adOpenStatic);
    recordset.PutLockType(adLockOptimistic);
    EXPECT_EQ(recordset.Open(L"", ConnectionPtr()), S_OK);
    EXPECT_EQ(recordset.GetRecordCount(), 3);
    EXPECT_EQ(CodeOf([&] { recordset.Open(L"t", m_pConnection); }), g_nObjectOpen);
    EXPECT_EQ(CodeOf([&] { recordset.PutCursorType(adOpenStatic); }), g_nObjectOpen);
    EXPECT_EQ(CodeOf([&] { recordset.PutCursorLocation(adUseClient); }), g_nObjectOpen);
    EXPECT_EQ(CodeOf([&] { recordset.PutLockType(adLockReadOnly); }), g_nObjectOpen);
    EXPECT_EQ(CodeOf([&] { recordset.PutSource(L""); }), g_nObjectOpen);
    EXPECT_EQ(CodeOf([&] { recordset.PutActiveConnection(nullptr); }), g_nObjectOpen);
    recordset.Close();
    EXPECT_EQ(recordset.GetState(), adStateClosed);
    EXPECT_EQ(CodeOf([&] { recordset.Close(); }), g_nObjectClosed);
    EXPECT_EQ(CodeOf([&] { (void)recordset.IsEOF(); }), g_nObjectClosed);
    EXPECT_EQ(recordset.Open(L"", ConnectionPtr()), S_OK);
}

TEST_F(RecordsetObject, NeedsAnOpenConnection) {
    Recordset recordset;
    EXPECT_EQ(CodeOf([&] { recordset.Open(L"t", ConnectionPtr()); }), g_nInvalidConnection);
    EXPECT_EQ(CodeOf([&] { recordset.Open(L"t", Connection::CreateInstance()); }), g_nInvalidConnection);
    EXPECT_EQ(recordset.GetState(), adStateClosed);
}

TEST_F(RecordsetObject, OpensOnAConnectionOfItsOwn) {
    Recordset recordset;
    recordset.Open(L"select * from t", WideFromGbk(ConnectionText()), adOpenStatic);
    m_pConnection->Close();
    EXPECT_EQ(Column(recordset, L"id"), L"1,2,3");
}

TEST_F(RecordsetObject, RaisesForAStatementThatFails) {
    Recordset recordset;
    EXPECT_EQ(CodeOf([&] { recordset.Open(L"select * from missing", m_pConnection); }), g_nNoTable);
    EXPECT_EQ(CodeOf([&] { recordset.Open(L"select nothing from t", m_pConnection); }), g_nStatementError);
    EXPECT_EQ(recordset.GetState(), adStateClosed);
}

TEST_F(RecordsetObject, StaysClosedAfterAStatementWithoutRows) {
    Recordset recordset;
    EXPECT_EQ(recordset.Open(L"delete from t where id = 2", m_pConnection), S_OK);
    EXPECT_EQ(recordset.GetState(), adStateClosed);
    EXPECT_EQ(Rows(*m_pDatabase, "select count(*) from t"), CRows{"2"});
}

TEST_F(RecordsetObject, ShowsWhatOpeningMadeOfItsTypes) {
    EXPECT_EQ(Opened(L"t", adUseClient, adOpenKeyset)->GetCursorType(), adOpenStatic);
    EXPECT_EQ(Opened(L"t", adUseServer, adOpenDynamic)->GetCursorType(), adOpenKeyset);
    EXPECT_EQ(Opened(L"t", adUseServer, adOpenKeyset)->GetCursorType(), adOpenKeyset);
    EXPECT_EQ(Opened(L"select a.id from t a, t b", adUseServer, adOpenKeyset)->GetCursorType(), adOpenStatic);
    EXPECT_EQ(Opened(L"t", adUseServer, adOpenStatic, adLockPessimistic)->GetLockType(), adLockOptimistic);
    EXPECT_EQ(Opened(L"t", adUseServer, adOpenStatic, adLockReadOnly)->GetLockType(), adLockReadOnly);
}

TEST_F(RecordsetObject, IsASnapshotWithTheClientsCursor) {
    const RecordsetPtr pRows = Opened(L"select * from t order by id", adUseClient, adOpenKeyset);
    m_pDatabase->Execute("update t set name = '丁'");
    m_pDatabase->Execute("delete from t where id = 3");
    EXPECT_EQ(Column(*pRows, L"name"), L"甲,乙,丙");
    pRows->Requery();
    EXPECT_EQ(Column(*pRows, L"name"), L"丁,丁");
}

TEST_F(RecordsetObject, SeesOthersValuesThroughAKeyset) {
    const RecordsetPtr pRows = OpenedKeyset(L"select * from t order by id");
    m_pDatabase->Execute("update t set name = name || '2'");
    m_pDatabase->Execute("insert into t values(4,'丁',0)");
    EXPECT_EQ(Text(*pRows, L"name"), L"甲"); // it already stands there
    EXPECT_EQ(Column(*pRows, L"name"), L"甲2,乙2,丙2");
    EXPECT_EQ(pRows->GetRecordCount(), 3); // no new rows
}

TEST_F(RecordsetObject, RaisesForAKeysetsRowThatAnotherProgramDeleted) {
    const RecordsetPtr pRows = OpenedKeyset(L"select * from t order by id");
    m_pDatabase->Execute("delete from t where id = 2");
    pRows->MoveNext();
    EXPECT_EQ(CodeOf([&] { Text(*pRows, L"name"); }), g_nDeletedRow);
    EXPECT_EQ(CodeOf([&] { Put(*pRows, L"name", CVariant(L"x")); }), g_nDeletedRow);
    EXPECT_FALSE(pRows->IsEOF());
    EXPECT_EQ(pRows->GetRecordCount(), 3);
    pRows->MoveNext();
    EXPECT_EQ(Text(*pRows, L"name"), L"丙");
}

TEST_F(RecordsetObject, ReadsRowsAnewOnRequest) {
    const RecordsetPtr pRows = Opened(L"select * from t order by id");
    m_pDatabase->Execute("update t set name = '丁'");
    pRows->MoveNext();
    pRows->Resync(adAffectCurrent);
    EXPECT_EQ(Column(*pRows, L"name"), L"甲,丁,丙");
    pRows->PutFilter(L"id = 3");
    pRows->Resync(adAffectGroup);
    pRows->PutFilter(adFilterNone);
    EXPECT_EQ(Column(*pRows, L"name"), L"甲,丁,丁");
    m_pDatabase->Execute("delete from t where id = 1");
    EXPECT_EQ(CodeOf([&] { pRows->Resync(); }), g_nDeletedRow);
    pRows->MoveFirst();
    EXPECT_EQ(CodeOf([&] { Text(*pRows, L"name"); }), g_nDeletedRow);
    pRows->MoveLast();
    pRows->MoveNext();
    EXPECT_EQ(CodeOf([&] { pRows->Resync(adAffectCurrent); }), g_nNoCurrentRecord);
}

TEST_F(RecordsetObject, KeepsFilterAndOrderThroughRequery) {
    const RecordsetPtr pRows = Opened(L"t");
    pRows->PutFilter(L"id > 1");
    pRows->PutSort(L"id desc");
    m_pDatabase->Execute("insert into t values(9,'丁',0)");
    pRows->Requery();
    EXPECT_EQ(Column(*pRows, L"id"), L"9,3,2");
}

TEST_F(RecordsetObject, DoesNotCloseOrRequeryWhileARowIsEdited) {
    const RecordsetPtr pRows = Opened(L"t");
    Put(*pRows, L"name", CVariant(L"x"));
    EXPECT_EQ(CodeOf([&] { pRows->Close(); }), g_nIllegalOperation);
    EXPECT_EQ(CodeOf([&] { pRows->Requery(); }), g_nIllegalOperation);
    pRows->CancelUpdate();
    pRows->Close();
    EXPECT_EQ(Rows(*m_pDatabase, "select name from t where id = 1"), CRows{"甲"});
}

TEST_F(RecordsetObject, LosesAnEditWhenItsConnectionCloses) {
    const RecordsetPtr pRows = Opened(L"t");
    Put(*pRows, L"name", CVariant(L"x"));
    m_pConnection->Close();
    EXPECT_EQ(CodeOf([&] { pRows->Update(); }), g_nObjectClosed);
    m_pConnection->Open(L"");
    pRows->Open(L"", ConnectionPtr());
    EXPECT_EQ(Text(*pRows, L"name"), L"甲");
}

TEST_F(RecordsetObject, SharesRowsWithItsClonesButNotThePlace) {
    const RecordsetPtr pRows = Opened(L"select * from t order by id");
    pRows->MoveNext();
    const RecordsetPtr pClone = pRows->Clone();
    EXPECT_EQ(Text(*pClone, L"name"), L"甲");
    pClone->PutBookmark(pRows->GetBookmark());
    Put(*pClone, L"name", CVariant(L"丁"));
    pClone->Update();
    EXPECT_EQ(Text(*pRows, L"name"), L"丁");
    pClone->AddNew();
    Put(*pClone, L"id", CVariant(8));
    pClone->Update();
    EXPECT_EQ(Column(*pRows, L"id"), L"1,2,3,8");
    pRows->MoveFirst();
    pClone->MoveFirst();
    pClone->Delete();
    EXPECT_EQ(CodeOf([&] { Text(*pRows, L"id"); }), g_nNoCurrentRecord);
    EXPECT_EQ(Column(*pRows, L"id"), L"2,3,8");
    pRows->Close();
    EXPECT_EQ(Column(*pClone, L"id"), L"2,3,8");
    pClone->Requery();
    EXPECT_EQ(pClone->GetRecordCount(), 3);
}

TEST_F(RecordsetObject, RaisesWhenAKeysetsRowCannotBeReadForALock) {
    m_pConnection->Close();
    m_pConnection->Open(WideFromGbk(ConnectionText()) + L";Lock Timeout=20");
    const RecordsetPtr pRows = OpenedKeyset(L"select * from t");
    const CDatabaseLock other(m_database);
    EXPECT_EQ(CodeOf([&] { pRows->MoveNext(); }), 0x80040E31U);
}

namespace {

/// What every engine must do alike.
class RecordsetOnEngine : public CEngineTest {
protected:
    RecordsetOnEngine() {
        m_pDatabase->Execute(
            "create table r(ZKBH varchar(20), QYBH varchar(20), D double precision, N integer)");
        m_pDatabase->Execute("insert into r values('孔1','1',1.5,1),('孔1','1',1.5,1),('孔2','2',NULL,3)");
        m_pConnection->Open(WideFromGbk(ConnectionText()));
        m_pRows->PutCursorLocation(adUseServer);
        m_pRows->Open(L"select * from r order by N", m_pConnection, adOpenKeyset, adLockOptimistic);
    }
    [[nodiscard]] Field& Item(const wchar_t* pszName) const { return m_pRows->GetFields().GetItem(pszName); }

    ConnectionPtr m_pConnection = Connection::CreateInstance();
    RecordsetPtr m_pRows = std::make_shared<Recordset>();
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Engines, RecordsetOnEngine, TestEngines(), TestEngineName);

TEST_P(RecordsetOnEngine, ReadsAndWritesRows) {
    EXPECT_EQ(m_pRows->GetCursorType(), adOpenKeyset);
    EXPECT_EQ(Item(L"ZKBH").GetValue(), CVariant(L"孔1"));
    EXPECT_EQ(Item(L"D").GetValue(), CVariant(1.5));
    EXPECT_EQ(Item(L"N").GetValue(), CVariant(1));
    m_pRows->MoveNext();
    Item(L"D").PutValue(CVariant(L"2.5"));
    m_pRows->Update();
    m_pRows->AddNew();
    Item(L"ZKBH").PutValue(CVariant(L"孔3"));
    m_pRows->Update();
    EXPECT_TRUE(Item(L"N").GetValue().IsNull());
    m_pRows->MoveFirst();
    m_pRows->Delete();
    EXPECT_EQ(Rows(*m_pDatabase, "select ZKBH, D, N from r order by ZKBH"),
              (CRows{"孔1|2.5|1", "孔2||3", "孔3||"}));
}

TEST_P(RecordsetOnEngine, SeesWhatOthersDoThroughAKeyset) {
    m_pDatabase->Execute("update r set D = 9 where N = 3");
    m_pRows->MoveLast();
    EXPECT_EQ(Item(L"D").GetValue(), CVariant(9.0));
    m_pDatabase->Execute("delete from r where N = 3");
    m_pRows->MoveLast();
    EXPECT_EQ(CodeOf([&] { (void)Item(L"D").GetValue(); }), g_nDeletedRow);
    EXPECT_EQ(CodeOf([&] { m_pRows->Resync(adAffectCurrent); }), g_nDeletedRow);
}

TEST_P(RecordsetOnEngine, IsStaticOverAJoin) {
    Recordset join;
    join.Open(L"select a.N from r a, r b", m_pConnection, adOpenKeyset, adLockOptimistic);
    EXPECT_EQ(join.GetCursorType(), adOpenStatic);
    EXPECT_EQ(join.GetRecordCount(), 9);
    join.GetFields().GetItem(L"n").PutValue(CVariant(5));
    EXPECT_EQ(CodeOf([&] { join.Update(); }), g_nNotAvailable);
}

TEST_P(RecordsetOnEngine, RaisesTheCodeOfTheFault) {
    EXPECT_EQ(CodeOf([&] { m_pConnection->Execute(L"select * from missing"); }), g_nNoTable);
    EXPECT_EQ(CodeOf([&] { m_pConnection->Execute(L"select nothing from r"); }), g_nStatementError);
    m_pConnection->Execute(L"create unique index i on r(N, ZKBH, QYBH, D) where N > 2", nullptr, adCmdText);
    m_pDatabase->Execute("insert into r values('孔4','4',4,4)");
    EXPECT_EQ(CodeOf([&] { m_pConnection->Execute(L"insert into r values('孔4','4',4,4)"); }), 0x80040E2FU);
}

TEST_P(RecordsetOnEngine, BindsTheParametersOfACommand) {
    const CommandPtr pCommand = std::make_shared<Command>();
    pCommand->PutActiveConnection(m_pConnection);
    pCommand->PutCommandText(L"insert into r(ZKBH, D, N) values(?,?,?)");
    for (const CVariant& value : {CVariant(L"孔9"), CVariant::Null(), CVariant(9)})
        pCommand->GetParameters().Append(Command::CreateParameter(L"",
                                                                  value.Type() == VT_BSTR ? adVarChar
                                                                  : value.IsNull()        ? adDouble
                                                                                          : adInteger,
                                                                  adParamInput, 0, value));
    long nAffected = 0;
    pCommand->Execute(&nAffected);
    EXPECT_EQ(nAffected, 1);
    EXPECT_EQ(Rows(*m_pDatabase, "select ZKBH, D from r where N = 9"), CRows{"孔9|"});
}

TEST_P(RecordsetOnEngine, UndoesATransaction) {
    m_pConnection->BeginTrans();
    m_pConnection->Execute(L"delete from r");
    m_pConnection->RollbackTrans();
    EXPECT_EQ(Rows(*m_pDatabase, "select count(*) from r"), CRows{"3"});
}
