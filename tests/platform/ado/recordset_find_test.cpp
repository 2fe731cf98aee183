#include <gtest/gtest.h>

#include "tests/platform/ado/recordset_fixture.h"

using namespace ADODB;

namespace {

class RecordsetFind : public CRecordsetTest {
protected:
    RecordsetFind() {
        m_pDatabase->Execute("insert into t values(4,'甲',0.5),(5,'Zk10',2)");
        m_pRows = Opened(L"select * from t order by id");
    }
    [[nodiscard]] std::wstring Here() const { return Text(*m_pRows, L"id"); }

    RecordsetPtr m_pRows;
};

} // namespace

TEST_F(RecordsetFind, BeginsWithTheCurrentRow) {
    m_pRows->Find(L"name = '甲'");
    EXPECT_EQ(Here(), L"1");
    m_pRows->Find(L"name = '甲'", 1);
    EXPECT_EQ(Here(), L"4");
    m_pRows->Find(L"name = '甲'", 1);
    EXPECT_TRUE(m_pRows->IsEOF());
    EXPECT_EQ(CodeOf([&] { m_pRows->Find(L"id = 1"); }), g_nNoCurrentRecord);
}

TEST_F(RecordsetFind, SearchesBackwardAndFromAnyStart) {
    m_pRows->Find(L"name = '甲'", 0, adSearchBackward, CVariant(std::int32_t{adBookmarkLast}));
    EXPECT_EQ(Here(), L"4");
    m_pRows->Find(L"depth > 3", 1, adSearchBackward);
    EXPECT_EQ(Here(), L"3");
    m_pRows->Find(L"id > 100", 0, adSearchBackward);
    EXPECT_TRUE(m_pRows->IsBOF());
    m_pRows->Find(L"name LIKE 'ZK*'", 0, adSearchForward, CVariant(std::int32_t{adBookmarkFirst}));
    EXPECT_EQ(Here(), L"5");
    m_pRows->Find(L"id = 1", 1000000, adSearchForward, CVariant(std::int32_t{adBookmarkFirst}));
    EXPECT_TRUE(m_pRows->IsEOF());
}

TEST_F(RecordsetFind, FindsNull) {
    m_pRows->Find(L"depth = NULL");
    EXPECT_EQ(Here(), L"2");
}

TEST_F(RecordsetFind, TakesOneConditionOnly) {
    EXPECT_EQ(CodeOf([&] { m_pRows->Find(L"id = 1 AND depth > 1"); }), g_nInvalidArgument);
    EXPECT_EQ(CodeOf([&] { m_pRows->Find(L""); }), g_nInvalidArgument);
    EXPECT_EQ(CodeOf([&] { m_pRows->Find(L"nothing = 1"); }), g_nItemNotFound);
    EXPECT_EQ(Here(), L"1");
    EXPECT_EQ(CodeOf([&] { Opened(L"select * from t where id > 99")->Find(L"id = 1"); }), g_nNoCurrentRecord);
}

TEST_F(RecordsetFind, SeesOthersValuesThroughAKeyset) {
    m_pRows = OpenedKeyset(L"select * from t order by id");
    m_pDatabase->Execute("update t set name = '戊' where id = 3");
    m_pDatabase->Execute("delete from t where id = 2");
    m_pRows->Find(L"name = '戊'");
    EXPECT_EQ(Here(), L"3");
    m_pRows->Find(L"name = '乙'", 0, adSearchForward, CVariant(std::int32_t{adBookmarkFirst}));
    EXPECT_TRUE(m_pRows->IsEOF());
}

TEST_F(RecordsetFind, FiltersAndGoesToTheFirstRowShown) {
    m_pRows->MoveLast();
    m_pRows->PutFilter(L"(name = '甲' AND depth < 1) OR depth > 3");
    EXPECT_EQ(Here(), L"3");
    EXPECT_EQ(m_pRows->GetRecordCount(), 2);
    EXPECT_EQ(m_pRows->GetAbsolutePosition(), 1);
    EXPECT_EQ(Column(*m_pRows, L"id"), L"3,4");
    EXPECT_EQ(m_pRows->GetFilter(), L"(name = '甲' AND depth < 1) OR depth > 3");
    m_pRows->PutFilter(adFilterNone);
    EXPECT_EQ(m_pRows->GetRecordCount(), 5);
    EXPECT_EQ(Here(), L"1");
    m_pRows->PutFilter(L"id > 100");
    EXPECT_TRUE(m_pRows->IsEOF() && m_pRows->IsBOF());
    m_pRows->PutFilter(L" ");
    EXPECT_EQ(m_pRows->GetRecordCount(), 5);
}

TEST_F(RecordsetFind, KeepsTheFilterThatWasThereWhenANewOneIsWrong) {
    m_pRows->PutFilter(L"id = 3");
    EXPECT_EQ(CodeOf([&] { m_pRows->PutFilter(L"id ="); }), g_nInvalidArgument);
    EXPECT_EQ(CodeOf([&] { m_pRows->PutFilter(L"nothing = 1"); }), g_nItemNotFound);
    EXPECT_EQ(CodeOf([&] { m_pRows->PutFilter(adFilterPendingRecords); }), g_nNotAvailable);
    EXPECT_EQ(m_pRows->GetFilter(), L"id = 3");
    EXPECT_EQ(m_pRows->GetRecordCount(), 1);
}

TEST_F(RecordsetFind, ShowsARowAddedUnderAFilterUntilTheFilterIsSetAgain) {
    m_pRows->PutFilter(L"id < 3");
    m_pRows->AddNew();
    Put(*m_pRows, L"id", CVariant(20));
    m_pRows->Update();
    EXPECT_EQ(Here(), L"20");
    m_pRows->PutFilter(L"id < 3");
    EXPECT_EQ(Column(*m_pRows, L"id"), L"1,2");
}

TEST_F(RecordsetFind, SortsByColumns) {
    m_pRows->PutSort(L"name ASC, depth DESC");
    EXPECT_EQ(Column(*m_pRows, L"id"), L"5,3,2,1,4"); // z, U+4E19, U+4E59, U+7532
    m_pRows->PutSort(L"[depth]desc , id");
    EXPECT_EQ(Column(*m_pRows, L"id"), L"3,5,1,4,2"); // NULL last when descending
    EXPECT_EQ(m_pRows->GetSort(), L"[depth]desc , id");
    m_pRows->PutSort(L"");
    EXPECT_EQ(Column(*m_pRows, L"id"), L"1,2,3,4,5");
}

TEST_F(RecordsetFind, RefusesASortOrderItDoesNotUnderstand) {
    for (const wchar_t* pszSort : {L"nothing", L"id,", L"id up", L"desc", L","})
        EXPECT_EQ(CodeOf([&] { m_pRows->PutSort(pszSort); }), g_nItemNotFound) << GbkFromWide(pszSort);
    EXPECT_EQ(CodeOf([&] { m_pRows->PutSort(L"[id"); }), g_nInvalidArgument);
    EXPECT_EQ(CodeOf([&] { OpenedKeyset(L"t")->PutSort(L"id"); }), g_nNotAvailable);
    EXPECT_EQ(m_pRows->GetSort(), L"");
}

TEST_F(RecordsetFind, SortsOnlyTheRowsOfTheFilter) {
    m_pRows->PutFilter(L"depth > 0");
    m_pRows->PutSort(L"depth");
    EXPECT_EQ(Column(*m_pRows, L"id"), L"4,1,5,3");
    m_pRows->PutFilter(adFilterNone);
    EXPECT_EQ(Column(*m_pRows, L"id"), L"2,4,1,5,3");
}
