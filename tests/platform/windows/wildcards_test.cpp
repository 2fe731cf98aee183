#include "platform/windows/wildcards.h"

#include <gtest/gtest.h>

TEST(FitsWildcards, StarStandsForAnyText) {
    EXPECT_TRUE(FitsWildcards(L"*", L""));
    EXPECT_TRUE(FitsWildcards(L"*", L"A.B.C"));
    EXPECT_TRUE(FitsWildcards(L"BR*.DWG", L"BR.DWG"));
    EXPECT_TRUE(FitsWildcards(L"BR*.DWG", L"BRZK1-1~2.OLD.DWG"));
    EXPECT_FALSE(FitsWildcards(L"BR*.DWG", L"BR.DWGX"));
    EXPECT_FALSE(FitsWildcards(L"BR*.DWG", L"XBR.DWG"));
    EXPECT_TRUE(FitsWildcards(L"*A*B*", L"XAYBZ"));
    EXPECT_FALSE(FitsWildcards(L"*A*B*", L"XBYAZ"));
}

TEST(FitsWildcards, MarkStandsForOneCharacterOrNoneBeforeADotAndTheEnd) {
    EXPECT_TRUE(FitsWildcards(L"BR??.DWG", L"BR12.DWG"));
    EXPECT_TRUE(FitsWildcards(L"BR??.DWG", L"BR1.DWG"));
    EXPECT_TRUE(FitsWildcards(L"BR??.DWG", L"BR.DWG"));
    EXPECT_FALSE(FitsWildcards(L"BR??.DWG", L"BR123.DWG"));
    EXPECT_TRUE(FitsWildcards(L"A???", L"A1"));
    EXPECT_FALSE(FitsWildcards(L"?1", L"1"));
    EXPECT_FALSE(FitsWildcards(L"A?B", L"A.B"));
}

TEST(FitsWildcards, StarDotStarFitsNamesWithoutADotToo) {
    EXPECT_TRUE(FitsWildcards(L"*.*", L"NONE"));
    EXPECT_TRUE(FitsWildcards(L"A*.*", L"ABC"));
    EXPECT_FALSE(FitsWildcards(L"B*.*", L"ABC"));
    EXPECT_TRUE(FitsWildcards(L"A.?", L"A"));
    EXPECT_FALSE(FitsWildcards(L"A.B", L"A"));
}

TEST(FitsWildcards, StarAndADotAtTheEndFitNamesWithoutEnding) {
    EXPECT_TRUE(FitsWildcards(L"*.", L"NONE"));
    EXPECT_FALSE(FitsWildcards(L"*.", L"A.B"));
    EXPECT_TRUE(FitsWildcards(L"N*.", L"NONE"));
    EXPECT_FALSE(FitsWildcards(L"N*.", L"N.E"));
}

TEST(FitsWildcards, EndsSoonOnManyStars) {
    std::wstring pattern;
    for (int i = 0; i < 120; ++i)
        pattern += L"*A";
    EXPECT_FALSE(FitsWildcards(pattern + L"B", std::wstring(255, L'A')));
    EXPECT_TRUE(FitsWildcards(pattern, std::wstring(255, L'A')));
}
