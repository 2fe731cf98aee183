#include "platform/mfc/list_box.h"

#include <gtest/gtest.h>

#include "tests/platform/mfc/test_list.h"

namespace {

constexpr CControlKind ONE = CControlKind::List;
constexpr CControlKind SEVERAL = CControlKind::MultiList;

} // namespace

TEST(ListBox, KeepsTextsInTheOrderInWhichTheyWerePut) {
    CTestList list(ONE);
    EXPECT_EQ(list.AddString("b"), 0);
    EXPECT_EQ(list.AddString("a"), 1);
    EXPECT_EQ(list.InsertString(1, "x"), 1);
    EXPECT_EQ(list.InsertString(-1, "end"), 3);
    EXPECT_EQ(list.InsertString(9, "beyond"), LB_ERR);
    EXPECT_EQ(list.Shown(), " b x a end");
}

TEST(ListBox, DeletesAnEntryAndRefusesABadIndex) {
    CTestList list(ONE, {"a", "b"});
    EXPECT_EQ(list.DeleteString(2), LB_ERR);
    EXPECT_EQ(list.DeleteString(-1), LB_ERR);
    EXPECT_EQ(list.DeleteString(0), 1);
    EXPECT_EQ(list.Shown(), " b");
}

TEST(ListBox, LeavesTheTextAloneForABadIndex) {
    const CTestList list(ONE, {"a"});
    CString text = "former";
    list.GetText(1, text);
    EXPECT_STREQ(text, "former");
}

TEST(ListBox, ListForOneHasAtMostOneSelectedEntry) {
    CTestList list(ONE, {"a", "b", "c"});
    EXPECT_EQ(list.GetCurSel(), LB_ERR);
    EXPECT_EQ(list.SetCurSel(0), 0);
    EXPECT_EQ(list.SetCurSel(2), 2);
    EXPECT_EQ(list.Shown(), " a b>c");
    EXPECT_EQ(list.SetCurSel(3), LB_ERR);
    EXPECT_EQ(list.GetCurSel(), 2);
    EXPECT_EQ(list.SetCurSel(-1), LB_ERR);
    EXPECT_EQ(list.GetCurSel(), LB_ERR);
}

TEST(ListBox, SelectionMovesWithItsEntryAndGoesWithIt) {
    CTestList list(ONE, {"a", "b", "c"});
    list.SetCurSel(1);
    list.DeleteString(0);
    EXPECT_EQ(list.GetCurSel(), 0);
    list.InsertString(0, "new");
    EXPECT_EQ(list.GetCurSel(), 1);
    list.DeleteString(1);
    EXPECT_EQ(list.GetCurSel(), LB_ERR);
}

TEST(ListBox, ListForOneKnowsNoSelectionOfSeveral) {
    CTestList list(ONE, {"a"});
    int index = -5;
    EXPECT_EQ(list.SetSel(0), LB_ERR);
    EXPECT_EQ(list.GetSelCount(), LB_ERR);
    EXPECT_EQ(list.GetSelItems(1, &index), LB_ERR);
    EXPECT_EQ(index, -5);
}

TEST(ListBox, ListForSeveralGivesSelectedIndicesInOrderUpToTheNumberAsked) {
    CTestList list(SEVERAL, {"a", "b", "c", "d"});
    list.SetSel(3);
    list.SetSel(0);
    list.SetSel(2);
    EXPECT_EQ(list.GetSelCount(), 3);
    int indices[2] = {};
    EXPECT_EQ(list.GetSelItems(2, indices), 2);
    EXPECT_EQ(indices[0], 0);
    EXPECT_EQ(indices[1], 2);
    EXPECT_EQ(list.SetSel(3, FALSE), 0);
    EXPECT_EQ(list.Shown(), ">a b>c d");
    EXPECT_EQ(list.SetSel(4), LB_ERR);
}

TEST(ListBox, SelectsAllOrNoneOfAListForSeveral) {
    CTestList list(SEVERAL, {"a", "b"});
    list.SetSel(-1);
    EXPECT_EQ(list.GetSelCount(), 2);
    list.SetSel(-1, FALSE);
    EXPECT_EQ(list.GetSelCount(), 0);
}

TEST(ListBox, CurrentEntryOfAListForSeveralIsThatWithTheFocus) {
    CTestList list(SEVERAL);
    EXPECT_EQ(list.GetCurSel(), LB_ERR);
    list.AddString("a");
    list.AddString("b");
    EXPECT_EQ(list.GetCurSel(), 0); // none selected
    list.SetSel(1);
    EXPECT_EQ(list.GetCurSel(), 1);
    list.DeleteString(1);
    EXPECT_EQ(list.GetCurSel(), 0);
    EXPECT_EQ(list.SetCurSel(0), LB_ERR);
}

TEST(ListBox, AnswersNothingWithoutAWindow) {
    CListBox list;
    EXPECT_EQ(list.GetCount(), 0);
    EXPECT_EQ(list.AddString("a"), LB_ERR);
    EXPECT_EQ(list.GetCurSel(), LB_ERR);
    EXPECT_EQ(list.SetCurSel(0), LB_ERR);
    EXPECT_EQ(list.GetSel(0), LB_ERR);
    EXPECT_EQ(list.GetSelCount(), LB_ERR);
    list.ResetContent();
    EXPECT_FALSE(list.IsMultiple());
}
