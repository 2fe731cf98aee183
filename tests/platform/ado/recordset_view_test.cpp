#include "platform/ado/recordset_view.h"

#include <gtest/gtest.h>

#include "platform/ado/memory_cursor.h"

using namespace ADODB;

namespace {

class RecordsetView : public testing::Test {
protected:
    RecordsetView() {
        for (const int nValue : {30, 10, 20})
            Insert(nValue);
    }

    void Insert(std::int64_t nValue) { m_pRows->Insert({{0, nValue}}); }
    [[nodiscard]] static std::vector<std::size_t> Shown(const CRecordsetView& view) {
        std::vector<std::size_t> arRows;
        for (long i = 0; i < view.Count(); ++i)
            arRows.push_back(view.RowAt(i));
        return arRows;
    }
    using CRowNumbers = std::vector<std::size_t>;

    std::shared_ptr<CRecordsetRows> m_pRows = std::make_shared<CRecordsetRows>(
        std::make_unique<CMemoryCursor>(std::vector<CDbColumn>{{"n", DBTYPE_I4}}));
};

} // namespace

TEST_F(RecordsetView, BeginsOnTheFirstOfAllRows) {
    const CRecordsetView view(m_pRows);
    EXPECT_EQ(Shown(view), (CRowNumbers{0, 1, 2}));
    EXPECT_EQ(view.Row(), 0U);
    EXPECT_FALSE(view.IsBOF());
    EXPECT_FALSE(view.IsEOF());
}

TEST_F(RecordsetView, IsAtBothEndsWithoutRows) {
    CRecordsetView view(m_pRows);
    view.Select(CCriteria("n > 100"), {});
    EXPECT_TRUE(view.IsBOF());
    EXPECT_TRUE(view.IsEOF());
    EXPECT_FALSE(view.Row().has_value());
}

TEST_F(RecordsetView, SelectsAndSorts) {
    CRecordsetView view(m_pRows);
    view.MoveTo(2);
    view.Select(CCriteria("n >= 20"), {{0, false}});
    EXPECT_EQ(Shown(view), (CRowNumbers{2, 0}));
    EXPECT_EQ(view.Row(), 2U);
    view.Select({}, {{0, true}});
    EXPECT_EQ(Shown(view), (CRowNumbers{0, 2, 1}));
}

TEST_F(RecordsetView, StopsAtTheEnds) {
    CRecordsetView view(m_pRows);
    view.MoveBy(2);
    EXPECT_EQ(view.Row(), 2U);
    view.MoveBy(std::numeric_limits<long>::max());
    EXPECT_TRUE(view.IsEOF());
    EXPECT_EQ(view.Place(), 3);
    view.MoveBy(std::numeric_limits<long>::min());
    EXPECT_TRUE(view.IsBOF());
    EXPECT_EQ(view.Place(), -1);
}

TEST_F(RecordsetView, StaysWhereItsRowWasWhenTheRowIsDeleted) {
    CRecordsetView view(m_pRows);
    view.MoveTo(1);
    m_pRows->Delete(1);
    view.Sync();
    EXPECT_EQ(Shown(view), (CRowNumbers{0, 2}));
    EXPECT_FALSE(view.Row().has_value());
    EXPECT_FALSE(view.IsBOF());
    EXPECT_FALSE(view.IsEOF());
    CRecordsetView back = view;
    view.MoveBy(1);
    EXPECT_EQ(view.Row(), 2U);
    back.MoveBy(-1);
    EXPECT_EQ(back.Row(), 0U);
}

TEST_F(RecordsetView, ComesToTheEndsFromTheLastRowDeleted) {
    CRecordsetView view(m_pRows);
    for (const std::size_t nRow : {0U, 1U, 2U})
        m_pRows->Delete(nRow);
    view.Sync();
    EXPECT_FALSE(view.IsEOF());
    view.MoveBy(1);
    EXPECT_TRUE(view.IsEOF());
    EXPECT_TRUE(view.IsBOF());
}

TEST_F(RecordsetView, KeepsItsRowWhenAnotherIsDeletedOrAdded) {
    CRecordsetView view(m_pRows);
    view.MoveTo(2);
    m_pRows->Delete(0);
    Insert(40);
    view.Sync();
    EXPECT_EQ(view.Row(), 2U);
    EXPECT_EQ(view.Place(), 1);
    EXPECT_EQ(Shown(view), (CRowNumbers{1, 2, 3}));
}

TEST_F(RecordsetView, TakesInOnlyAddedRowsThatMeetTheCriteriaUnlessItGoesToThem) {
    CRecordsetView view(m_pRows);
    view.Select(CCriteria("n < 25"), {});
    Insert(15);
    Insert(99);
    view.Sync();
    EXPECT_EQ(Shown(view), (CRowNumbers{1, 2, 3}));
    view.MoveToNewest();
    EXPECT_EQ(view.Row(), 4U);
    EXPECT_EQ(view.PlaceOf(4), 3);
    EXPECT_FALSE(view.PlaceOf(0).has_value());
}

TEST_F(RecordsetView, StaysAtTheEndWhenARowIsAdded) {
    CRecordsetView view(m_pRows);
    view.MoveTo(3);
    Insert(40);
    view.Sync();
    EXPECT_TRUE(view.IsEOF());
}
