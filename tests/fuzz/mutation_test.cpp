#include "tests/fuzz/mutation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

TEST(Mutate, GivesTheSameInputsForASeed) {
    const std::vector<CInput> corpus = {{1, 2, 3, 4, 5, 6, 7, 8}, {9, 9}};
    CRandom random(7), again(7), other(8);
    int nDifferent = 0;
    for (int i = 0; i < 200; i++) {
        const CInput input = Mutate(corpus, random);
        EXPECT_EQ(input, Mutate(corpus, again));
        nDifferent += input != Mutate(corpus, other);
    }
    EXPECT_GT(nDifferent, 100);
}

TEST(Mutate, TurnsLengthFieldsToExtremesAndChangesLengths) {
    const std::vector<CInput> corpus = {CInput(16, 0x11)};
    CRandom random(1);
    std::set<std::size_t> sizes;
    bool bExtreme = false;
    for (int i = 0; i < 2000; i++) {
        const CInput input = Mutate(corpus, random);
        sizes.insert(input.size());
        const CInput longest = {0xFF, 0xFF, 0xFF, 0x7F};
        bExtreme |= std::search(input.begin(), input.end(), longest.begin(), longest.end()) != input.end();
    }
    EXPECT_TRUE(bExtreme);
    EXPECT_TRUE(sizes.contains(0));
    EXPECT_GT(*sizes.rbegin(), 16U);
}

TEST(Mutate, TakesEmptyInputsAndKeepsInputsToTheirGreatestLength) {
    const std::vector<CInput> corpus = {{}, CInput(g_nLongestInput, 1)};
    CRandom random(3);
    for (int i = 0; i < 200; i++)
        EXPECT_LE(Mutate(corpus, random).size(), g_nLongestInput);
}
