#include "platform/acad/ac_array.h"

#include <gtest/gtest.h>

#include <string>

namespace {

AcArray<int> Numbers(std::initializer_list<int> values) {
    AcArray<int> list;
    for (const int value : values)
        list.append(value);
    return list;
}

} // namespace

TEST(AcArray, StartsEmptyWithAGrowLengthOfEight) {
    const AcArray<double> list;
    EXPECT_TRUE(list.isEmpty());
    EXPECT_EQ(list.length(), 0);
    EXPECT_EQ(list.physicalLength(), 0);
    EXPECT_EQ(list.growLength(), 8);
    const AcArray<double> roomy(5, 3);
    EXPECT_TRUE(roomy.isEmpty());
    EXPECT_EQ(roomy.physicalLength(), 5);
    EXPECT_EQ(roomy.growLength(), 3);
}

TEST(AcArray, AppendsAndTellsTheIndex) {
    AcArray<int> list;
    EXPECT_EQ(list.append(4), 0);
    EXPECT_EQ(list.append(5), 1);
    EXPECT_EQ(list.physicalLength(), 8);
    EXPECT_EQ(list.first(), 4);
    EXPECT_EQ(list.last(), 5);
    list.append(list).append(Numbers({1}));
    EXPECT_EQ(list, Numbers({4, 5, 4, 5, 1}));
    EXPECT_EQ(list.logicalLength(), 5);
}

TEST(AcArray, TakesAnElementOfItself) {
    AcArray<std::string> list;
    list.append("a text longer than a small string holds");
    for (int i = 0; i < 40; ++i)
        list.append(list[0]);
    list.insertAt(0, list.last());
    list.setAll(list[3]);
    EXPECT_EQ(list.length(), 42);
    EXPECT_EQ(list.last(), "a text longer than a small string holds");
}

TEST(AcArray, SetsInsertsAndRemoves) {
    AcArray<int> list = Numbers({1, 2, 3});
    list.setAt(1, 9).insertAt(3, 4).insertAt(0, 0);
    EXPECT_EQ(list, Numbers({0, 1, 9, 3, 4}));
    list.removeFirst().removeLast().removeAt(1);
    EXPECT_EQ(list, Numbers({1, 3}));
    list.append(5);
    list.removeSubArray(0, 1);
    EXPECT_EQ(list, Numbers({5}));
    EXPECT_TRUE(list.removeAll().isEmpty());
}

TEST(AcArray, FindsAndRemovesValues) {
    AcArray<int> list = Numbers({7, 8, 7});
    EXPECT_EQ(list.find(7), 0);
    EXPECT_EQ(list.find(7, 1), 2);
    EXPECT_EQ(list.find(9), -1);
    EXPECT_TRUE(list.contains(8));
    EXPECT_FALSE(list.contains(8, 2));
    EXPECT_TRUE(list.remove(7, 1));
    EXPECT_FALSE(list.remove(9));
    EXPECT_EQ(list, Numbers({7, 8}));
}

TEST(AcArray, TurnsRoundAndSwaps) {
    AcArray<int> list = Numbers({1, 2, 3});
    list.reverse().swap(0, 1);
    EXPECT_EQ(list, Numbers({2, 3, 1}));
    int sum = 0;
    for (const int value : list)
        sum += value;
    EXPECT_EQ(sum, 6);
    EXPECT_EQ(list.asArrayPtr()[2], 1);
}

TEST(AcArray, CutsAndLengthens) {
    AcArray<double> list;
    list.setLogicalLength(3);
    EXPECT_EQ(list.at(2), 0.0);
    list.setPhysicalLength(2);
    EXPECT_EQ(list.length(), 2);
    EXPECT_EQ(list.physicalLength(), 2);
    list.setGrowLength(100).append(1.0);
    EXPECT_EQ(list.physicalLength(), 102);
}

TEST(AcArray, CopiesDeeply) {
    AcArray<int> list = Numbers({1});
    AcArray<int> copy = list;
    copy[0] = 2;
    EXPECT_EQ(list[0], 1);
    list = copy;
    copy.append(3);
    EXPECT_EQ(list, Numbers({2}));
    EXPECT_NE(list, copy);
}

TEST(AcArrayDeathTest, StopsAtABadIndex) {
    AcArray<int> list = Numbers({1});
    EXPECT_DEATH(list.at(1) = 0, "the index lies in the list");
    EXPECT_DEATH(list[-1] = 0, "the index lies in the list");
    EXPECT_DEATH(list.insertAt(2, 0), "within the list or at its end");
    EXPECT_DEATH(AcArray<int>().removeLast(), "the index lies in the list");
    EXPECT_DEATH(AcArray<int>().first() = 1, "the index lies in the list");
    EXPECT_DEATH(list.setLogicalLength(-1), "a length is not negative");
}
