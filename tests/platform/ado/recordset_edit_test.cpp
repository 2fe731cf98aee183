#include <gtest/gtest.h>

#include "tests/platform/ado/recordset_fixture.h"

using namespace ADODB;

namespace {

class RecordsetEdit : public CRecordsetTest {
protected:
    [[nodiscard]] std::vector<std::string> Table() const {
        return Rows(*m_pDatabase, "select * from t order by id");
    }

    RecordsetPtr m_pRows = Opened(L"select * from t order by id");
};

} // namespace

TEST_F(RecordsetEdit, WritesOnlyTheColumnsThatChanged) {
    m_pDatabase->Execute(
        "update t set depth = 9.5 where id = 1"); // another program, after the rows were read
    Put(*m_pRows, L"name", CVariant(L"丁"));
    Put(*m_pRows, L"depth", CVariant(1.5)); // as it was read
    EXPECT_EQ(m_pRows->GetEditMode(), adEditInProgress);
    m_pRows->Update();
    EXPECT_EQ(m_pRows->GetEditMode(), adEditNone);
    EXPECT_EQ(Table(), (CRows{"1|丁|9.5", "2|乙|", "3|丙|3.5"}));
}

TEST_F(RecordsetEdit, WritesOneOfTwoEqualRows) {
    m_pDatabase->Execute("create table e(a text)");
    m_pDatabase->Execute("insert into e values('x'),('x')");
    const RecordsetPtr pRows = Opened(L"e");
    pRows->MoveNext();
    Put(*pRows, L"a", CVariant(L"y"));
    pRows->Update();
    EXPECT_EQ(Rows(*m_pDatabase, "select a from e"), (CRows{"x", "y"}));
}

TEST_F(RecordsetEdit, ShowsGivenValuesBeforeTheyAreStored) {
    Put(*m_pRows, L"depth", CVariant(L"2.5"));
    EXPECT_EQ(m_pRows->GetFields().GetItem(L"depth").GetValue(), CVariant(2.5F));
    m_pRows->CancelUpdate();
    EXPECT_EQ(m_pRows->GetFields().GetItem(L"depth").GetValue(), CVariant(1.5F));
    m_pRows->Update(); // nothing to store
    EXPECT_EQ(Table()[0], "1|甲|1.5");
}

TEST_F(RecordsetEdit, WritesNullAndEmptyTextApart) {
    Put(*m_pRows, L"name", CVariant(L""));
    Put(*m_pRows, L"depth", CVariant::Null());
    m_pRows->Update();
    EXPECT_EQ(Rows(*m_pDatabase, "select name is null, depth is null from t where id = 1"), CRows{"0|1"});
}

TEST_F(RecordsetEdit, AddsARowThatBecomesTheLastAndCurrent) {
    m_pRows->AddNew();
    EXPECT_EQ(m_pRows->GetEditMode(), adEditAdd);
    EXPECT_FALSE(m_pRows->IsEOF());
    EXPECT_EQ(m_pRows->GetFields().GetItem(L"name").GetValue(), CVariant());
    EXPECT_EQ(CodeOf([&] { m_pRows->Delete(); }), g_nIllegalOperation);
    Put(*m_pRows, L"name", CVariant(L"丁"));
    m_pRows->Update();
    EXPECT_EQ(Table()[3], "4|丁|");
    EXPECT_EQ(Text(*m_pRows, L"id"), L"4"); // as the table made it
    EXPECT_EQ(m_pRows->GetAbsolutePosition(), 4);
    EXPECT_EQ(m_pRows->GetRecordCount(), 4);
}

TEST_F(RecordsetEdit, AddsToAnEmptyResult) {
    const RecordsetPtr pRows = Opened(L"select * from t where id > 99");
    pRows->AddNew();
    EXPECT_FALSE(pRows->IsEOF());
    Put(*pRows, L"id", CVariant(50));
    pRows->Update();
    EXPECT_EQ(Text(*pRows, L"id"), L"50"); // although the statement would not give it
    EXPECT_EQ(pRows->GetRecordCount(), 1);
}

TEST_F(RecordsetEdit, AddsTwoRowsOneAfterTheOther) {
    m_pRows->AddNew();
    Put(*m_pRows, L"id", CVariant(10));
    m_pRows->AddNew(); // stores the one before
    Put(*m_pRows, L"id", CVariant(11));
    m_pRows->Update();
    EXPECT_EQ(Column(*m_pRows, L"id"), L"1,2,3,10,11");
}

TEST_F(RecordsetEdit, ReturnsToItsRowWhenANewOneIsCancelled) {
    m_pRows->MoveNext();
    m_pRows->AddNew();
    Put(*m_pRows, L"name", CVariant(L"丁"));
    m_pRows->CancelUpdate();
    EXPECT_EQ(Text(*m_pRows, L"name"), L"乙");
    EXPECT_EQ(Table().size(), 3U);
}

TEST_F(RecordsetEdit, DeletesTheCurrentRow) {
    m_pRows->MoveNext();
    m_pRows->Delete();
    EXPECT_EQ(Table(), (CRows{"1|甲|1.5", "3|丙|3.5"}));
    EXPECT_EQ(m_pRows->GetEditMode(), adEditDelete);
    EXPECT_EQ(m_pRows->GetRecordCount(), 2);
    EXPECT_EQ(m_pRows->GetAbsolutePosition(), adPosUnknown);
    EXPECT_EQ(CodeOf([&] { Text(*m_pRows, L"name"); }), g_nNoCurrentRecord);
    EXPECT_EQ(CodeOf([&] { m_pRows->Delete(); }), g_nNoCurrentRecord);
    m_pRows->Move(0); // stays
    m_pRows->MoveNext();
    EXPECT_EQ(Text(*m_pRows, L"name"), L"丙");
}

TEST_F(RecordsetEdit, DeletesEveryRowWhileWalkingThem) {
    for (; !m_pRows->IsEOF(); m_pRows->MoveNext())
        m_pRows->Delete();
    EXPECT_EQ(Table(), CRows{});
    EXPECT_TRUE(m_pRows->IsBOF());
}

TEST_F(RecordsetEdit, DeletesTheRowsOfAFilter) {
    m_pRows->PutFilter(L"id >= 2");
    m_pRows->Delete(adAffectGroup);
    EXPECT_EQ(Table(), CRows{"1|甲|1.5"});
    m_pRows->PutFilter(adFilterNone);
    EXPECT_EQ(m_pRows->GetRecordCount(), 1);
    EXPECT_EQ(CodeOf([&] { m_pRows->Delete(adAffectAll); }), g_nInvalidArgument);
}

TEST_F(RecordsetEdit, ChangesNothingThroughAReadOnlyRecordset) {
    const RecordsetPtr pRows = Opened(L"t", adUseClient, adOpenStatic, adLockReadOnly);
    EXPECT_EQ(CodeOf([&] { Put(*pRows, L"name", CVariant(L"x")); }), g_nNotAvailable);
    EXPECT_EQ(CodeOf([&] { pRows->AddNew(); }), g_nNotAvailable);
    EXPECT_EQ(CodeOf([&] { pRows->Delete(); }), g_nNotAvailable);
}

TEST_F(RecordsetEdit, ChangesNothingOfAJoin) {
    const RecordsetPtr pRows = Opened(L"select a.name from t a, t b");
    Put(*pRows, L"name", CVariant(L"x"));
    EXPECT_EQ(CodeOf([&] { pRows->Update(); }), g_nNotAvailable);
    pRows->CancelUpdate();
    EXPECT_EQ(CodeOf([&] { pRows->Delete(); }), g_nNotAvailable);
    pRows->AddNew();
    EXPECT_EQ(CodeOf([&] { pRows->Update(); }), g_nNotAvailable);
    EXPECT_EQ(Table()[0], "1|甲|1.5");
}

TEST_F(RecordsetEdit, RaisesForARowThatAnotherProgramDeleted) {
    m_pDatabase->Execute("delete from t where id = 1");
    Put(*m_pRows, L"name", CVariant(L"x"));
    EXPECT_EQ(CodeOf([&] { m_pRows->Update(); }), g_nDeletedRow);
    EXPECT_EQ(m_pRows->GetEditMode(), adEditInProgress);
    m_pRows->CancelUpdate();
    EXPECT_EQ(CodeOf([&] { m_pRows->Delete(); }), g_nDeletedRow);
}

TEST_F(RecordsetEdit, ReportsWritesGivenUpForALock) {
    m_pDatabase->Execute("create table k(ZKBH text, QYBH text)");
    m_pDatabase->Execute("insert into k values('ZK1','1')");
    m_pConnection->Close();
    m_pConnection->Open(WideFromGbk(ConnectionText()) + L";Lock Timeout=20");
    const RecordsetPtr pRows = Opened(L"k");
    const CDatabaseLock other(m_database);
    const std::uint32_t nTimeout = 0x80040E31;
    EXPECT_EQ(CodeOf([&] { pRows->Delete(); }), nTimeout);
    Put(*pRows, L"QYBH", CVariant(L"2"));
    EXPECT_EQ(CodeOf([&] { pRows->Update(); }), nTimeout);
    pRows->CancelUpdate();
    pRows->AddNew();
    Put(*pRows, L"ZKBH", CVariant(L"ZK9"));
    EXPECT_EQ(CodeOf([&] { pRows->Update(); }), nTimeout);
    EXPECT_EQ(pRows->GetEditMode(), adEditAdd);
    EXPECT_EQ(m_arLines, (CRows{"k ZK1 1: locked by another program, row not deleted",
                                "k ZK1 1: locked by another program, row not stored",
                                "k ZK9 : locked by another program, row not stored"}));
}

TEST_F(RecordsetEdit, LivesThroughATriggerThatTakesTheNewRowAway) {
    m_pDatabase->Execute("create trigger g after insert on t begin delete from t where id = new.id; end");
    m_pRows->AddNew();
    Put(*m_pRows, L"id", CVariant(10));
    m_pRows->Update();
    EXPECT_EQ(m_pRows->GetRecordCount(), 3);
    EXPECT_EQ(Text(*m_pRows, L"id"), L"1");
}
