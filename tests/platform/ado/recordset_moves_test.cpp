#include <gtest/gtest.h>

#include "tests/platform/ado/recordset_fixture.h"

using namespace ADODB;

namespace {

class RecordsetMoves : public CRecordsetTest {
protected:
    [[nodiscard]] std::wstring Here() const { return Text(*m_pRows, L"id"); }

    RecordsetPtr m_pRows = Opened(L"select * from t order by id");
};

} // namespace

TEST_F(RecordsetMoves, LeadBehindTheLastRowAndNoFurther) {
    m_pRows->MoveLast();
    EXPECT_EQ(Here(), L"3");
    m_pRows->MoveNext();
    EXPECT_TRUE(m_pRows->IsEOF());
    EXPECT_FALSE(m_pRows->IsBOF());
    EXPECT_EQ(CodeOf([&] { (void)Here(); }), g_nNoCurrentRecord);
    EXPECT_EQ(CodeOf([&] { m_pRows->MoveNext(); }), g_nNoCurrentRecord);
    m_pRows->MovePrevious();
    EXPECT_EQ(Here(), L"3");
}

TEST_F(RecordsetMoves, LeadBeforeTheFirstRowAndNoFurther) {
    m_pRows->MovePrevious();
    EXPECT_TRUE(m_pRows->IsBOF());
    EXPECT_FALSE(m_pRows->IsEOF());
    EXPECT_EQ(CodeOf([&] { m_pRows->MovePrevious(); }), g_nNoCurrentRecord);
    m_pRows->MoveNext();
    EXPECT_EQ(Here(), L"1");
    m_pRows->MoveFirst();
    EXPECT_EQ(Here(), L"1");
}

TEST_F(RecordsetMoves, RaiseOverAnEmptyResult) {
    m_pRows = Opened(L"select * from t where id > 99");
    EXPECT_TRUE(m_pRows->IsBOF());
    EXPECT_TRUE(m_pRows->IsEOF());
    EXPECT_EQ(m_pRows->GetRecordCount(), 0);
    EXPECT_EQ(CodeOf([&] { m_pRows->MoveFirst(); }), g_nNoCurrentRecord);
    EXPECT_EQ(CodeOf([&] { m_pRows->MoveLast(); }), g_nNoCurrentRecord);
    EXPECT_EQ(CodeOf([&] { m_pRows->MoveNext(); }), g_nNoCurrentRecord);
    EXPECT_EQ(CodeOf([&] { m_pRows->MovePrevious(); }), g_nNoCurrentRecord);
    EXPECT_EQ(CodeOf([&] { m_pRows->Move(0); }), g_nNoCurrentRecord);
    EXPECT_EQ(CodeOf([&] { m_pRows->PutAbsolutePosition(1); }), g_nNoCurrentRecord);
    EXPECT_EQ(CodeOf([&] { (void)Here(); }), g_nNoCurrentRecord);
}

TEST_F(RecordsetMoves, GoSeveralRowsFromAnyStart) {
    m_pRows->Move(2);
    EXPECT_EQ(Here(), L"3");
    m_pRows->Move(-1, CVariant(std::int32_t{adBookmarkLast}));
    EXPECT_EQ(Here(), L"2");
    m_pRows->Move(1, CVariant(std::int16_t{adBookmarkFirst}));
    EXPECT_EQ(Here(), L"2");
    const CVariant bookmark = m_pRows->GetBookmark();
    m_pRows->MoveFirst();
    m_pRows->Move(1, bookmark);
    EXPECT_EQ(Here(), L"3");
    m_pRows->Move(0, CVariant::Int(adBookmarkCurrent));
    EXPECT_EQ(Here(), L"3");
    m_pRows->Move(1000000);
    EXPECT_TRUE(m_pRows->IsEOF());
    EXPECT_EQ(CodeOf([&] { m_pRows->Move(1, CVariant(7)); }), g_nInvalidArgument);
    EXPECT_EQ(CodeOf([&] { m_pRows->Move(1, CVariant(L"x")); }), g_nInvalidArgument);
}

TEST_F(RecordsetMoves, CountPositionsFromOne) {
    EXPECT_EQ(m_pRows->GetAbsolutePosition(), 1);
    m_pRows->PutAbsolutePosition(3);
    EXPECT_EQ(Here(), L"3");
    m_pRows->MoveNext();
    EXPECT_EQ(m_pRows->GetAbsolutePosition(), adPosEOF);
    m_pRows->MoveFirst();
    m_pRows->MovePrevious();
    EXPECT_EQ(m_pRows->GetAbsolutePosition(), adPosBOF);
    EXPECT_EQ(CodeOf([&] { m_pRows->PutAbsolutePosition(0); }), g_nInvalidArgument);
    EXPECT_EQ(CodeOf([&] { m_pRows->PutAbsolutePosition(4); }), g_nInvalidArgument);
    m_pRows->AddNew();
    EXPECT_EQ(m_pRows->GetAbsolutePosition(), adPosUnknown);
}

TEST_F(RecordsetMoves, ReturnToABookmarkThroughSorting) {
    m_pRows->MoveNext();
    const CVariant bookmark = m_pRows->GetBookmark();
    m_pRows->PutSort(L"id desc");
    EXPECT_EQ(Here(), L"3");
    m_pRows->PutBookmark(bookmark);
    EXPECT_EQ(Here(), L"2");
    m_pRows->PutFilter(L"id <> 2");
    const std::uint32_t nBadBookmark = 0x80040E0E;
    EXPECT_EQ(CodeOf([&] { m_pRows->PutBookmark(bookmark); }), nBadBookmark);
    EXPECT_EQ(CodeOf([&] { m_pRows->PutBookmark(CVariant(4.0)); }), nBadBookmark);
    EXPECT_EQ(CodeOf([&] { m_pRows->PutBookmark(CVariant(1.5)); }), nBadBookmark);
    EXPECT_EQ(CodeOf([&] { m_pRows->PutBookmark(CVariant(1)); }), nBadBookmark);
    m_pRows->MoveLast();
    m_pRows->MoveNext();
    EXPECT_EQ(CodeOf([&] { (void)m_pRows->GetBookmark(); }), g_nNoCurrentRecord);
}

TEST_F(RecordsetMoves, StoreTheRowThatIsBeingEdited) {
    Put(*m_pRows, L"name", CVariant(L"丁"));
    m_pRows->MoveNext();
    EXPECT_EQ(m_pRows->GetEditMode(), adEditNone);
    EXPECT_EQ(Rows(*m_pDatabase, "select name from t where id = 1"), CRows{"丁"});
}

TEST_F(RecordsetMoves, StayWhenTheRowCannotBeStored) {
    Put(*m_pRows, L"id", CVariant(2)); // there is a row with this key
    EXPECT_EQ(CodeOf([&] { m_pRows->MoveNext(); }), 0x80040E2FU);
    EXPECT_EQ(m_pRows->GetAbsolutePosition(), 1);
    EXPECT_EQ(m_pRows->GetEditMode(), adEditInProgress);
}

TEST_F(RecordsetMoves, RunForwardOnlyWithTheServersPlainCursor) {
    m_pRows = Opened(L"select * from t order by id", adUseServer, adOpenForwardOnly);
    m_pRows->MoveNext();
    m_pRows->MoveFirst();
    m_pRows->Move(2);
    EXPECT_EQ(Here(), L"3");
    EXPECT_EQ(CodeOf([&] { m_pRows->MovePrevious(); }), g_nNotAvailable);
    EXPECT_EQ(CodeOf([&] { m_pRows->MoveLast(); }), g_nNotAvailable);
    EXPECT_EQ(CodeOf([&] { m_pRows->PutAbsolutePosition(1); }), g_nNotAvailable);
    EXPECT_EQ(CodeOf([&] { (void)m_pRows->GetBookmark(); }), g_nNotAvailable);
    EXPECT_EQ(CodeOf([&] { m_pRows->Find(L"id = 1", 0, adSearchBackward); }), g_nNotAvailable);
    EXPECT_EQ(m_pRows->GetRecordCount(), -1);
}
