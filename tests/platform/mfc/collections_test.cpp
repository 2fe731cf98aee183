#include "platform/mfc/collections.h"

#include <gtest/gtest.h>

#include "platform/acad/ac_array.h"

TEST(CArray, GrowsByAddAndTellsTheIndex) {
    CArray<int, int> list;
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(list.GetUpperBound(), -1);
    EXPECT_EQ(list.Add(7), 0);
    EXPECT_EQ(list.Add(8), 1);
    EXPECT_EQ(list.GetSize(), 2);
    EXPECT_EQ(list.GetCount(), 2);
    EXPECT_EQ(list[1], 8);
    list[1] = 9;
    list.SetAt(0, 6);
    list.ElementAt(0) += 1;
    EXPECT_EQ(list.GetData()[0], 7);
    EXPECT_EQ(list.GetAt(1), 9);
}

TEST(CArray, FillsWithZeroWhereItIsLengthened) {
    CArray<double, double> list;
    list.SetSize(2, 8);
    EXPECT_EQ(list[1], 0.0);
    list.SetAtGrow(4, 1.5);
    EXPECT_EQ(list.GetSize(), 5);
    EXPECT_EQ(list[3], 0.0);
    EXPECT_EQ(list[4], 1.5);
    list.SetAtGrow(0, 2.5);
    EXPECT_EQ(list[0], 2.5);
    list.SetSize(1);
    list.FreeExtra();
    EXPECT_EQ(list.GetSize(), 1);
}

TEST(CArray, InsertsAndRemovesAtAPlace) {
    CArray<int, int> list;
    list.InsertAt(1, 5);
    list.InsertAt(0, 3, 2);
    EXPECT_EQ(list.GetSize(), 4);
    EXPECT_EQ(list[1], 3);
    EXPECT_EQ(list[2], 0);
    EXPECT_EQ(list[3], 5);
    list.RemoveAt(0, 3);
    EXPECT_EQ(list.GetSize(), 1);
    CArray<int, int> other;
    other.Add(1);
    other.Add(2);
    list.InsertAt(0, &other);
    EXPECT_EQ(list.Append(other), 3);
    EXPECT_EQ(list[0], 1);
    EXPECT_EQ(list[2], 5);
    EXPECT_EQ(list[4], 2);
    list.RemoveAt(0);
    EXPECT_EQ(list[0], 2);
    list.RemoveAll();
    EXPECT_TRUE(list.IsEmpty());
}

TEST(CArray, CopiesItsInnerLists) {
    CArray<AcArray<double>, AcArray<double>> list;
    AcArray<double> inner;
    inner.append(1.0);
    list.Add(inner);
    CArray<AcArray<double>, AcArray<double>> copy;
    copy.Copy(list);
    list[0][0] = 2.0;
    inner[0] = 3.0;
    EXPECT_EQ(copy[0][0], 1.0);
    EXPECT_EQ(list[0][0], 2.0);
}

TEST(CArray, TakesAnElementOfItself) {
    CArray<CString> list;
    list.Add("a text longer than a small string holds");
    for (int i = 0; i < 20; ++i)
        list.Add(list[0]);
    list.InsertAt(0, list[20], 3);
    list.SetAtGrow(200, list[0]);
    EXPECT_EQ(list[200], "a text longer than a small string holds");
    EXPECT_EQ(list[23], list[0]);
}

TEST(CArrayDeathTest, StopsAtABadIndex) {
    CArray<int, int> list;
    list.Add(1);
    EXPECT_DEATH(list[1] = 0, "the index lies in the list");
    EXPECT_DEATH(list.GetAt(-1), "the index lies in the list");
    EXPECT_DEATH(list.RemoveAt(0, 2), "the part lies in the list");
    EXPECT_DEATH(list.SetSize(-1), "a size is not negative");
    EXPECT_DEATH(list.Append(list), "not appended to itself");
}

TEST(CStringArray, HoldsTexts) {
    CStringArray list;
    list.Add("固结");
    list.Add(CString("排水"));
    list.SetAtGrow(3, "x");
    EXPECT_EQ(list[1], "排水");
    EXPECT_EQ(list[2], "");
    CStringArray copy;
    copy.Copy(list);
    list.RemoveAll();
    EXPECT_EQ(copy.GetSize(), 4);
}

TEST(CMap, FindsWhatWasSet) {
    CMap<CString, const char*, int, int> map;
    EXPECT_EQ(map.GetStartPosition(), nullptr);
    map.SetAt("甲", 1);
    map["乙"] = 2;
    map.SetAt("甲", 3);
    int value = 99;
    EXPECT_FALSE(map.Lookup("丙", value));
    EXPECT_EQ(value, 99);
    EXPECT_TRUE(map.Lookup("甲", value));
    EXPECT_EQ(value, 3);
    EXPECT_EQ(map["丁"], 0);
    EXPECT_EQ(map.GetCount(), 3);
    ASSERT_NE(map.PLookup("乙"), nullptr);
    EXPECT_EQ(map.PLookup("乙")->value, 2);
    EXPECT_EQ(map.PLookup("x"), nullptr);
}

TEST(CMap, IsWalkedInTheOrderOfComing) {
    CMap<int, int, CString, const CString&> map;
    for (const int key : {30, 10, 20, 40})
        map.SetAt(key, CString('x', key));
    EXPECT_TRUE(map.RemoveKey(10));
    EXPECT_FALSE(map.RemoveKey(10));
    int sum = 0;
    int last = 0;
    for (POSITION position = map.GetStartPosition(); position;) {
        int key = 0;
        CString value;
        map.GetNextAssoc(position, key, value);
        EXPECT_EQ(value.GetLength(), key);
        sum = sum * 100 + key;
        last = key;
    }
    EXPECT_EQ(sum, 302040);
    EXPECT_EQ(last, 40);
    map.RemoveAll();
    EXPECT_TRUE(map.IsEmpty());
    EXPECT_EQ(map.GetStartPosition(), nullptr);
}
