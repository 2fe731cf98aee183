#include "host/files/code_table.h"

#include <gtest/gtest.h>

namespace {

std::wstring Decoded(const CCodeTable& table, std::string_view text) {
    std::wstring result;
    for (std::size_t nAt = 0; nAt < text.size();)
        result += table.Next(text, nAt);
    return result;
}

std::string Encoded(const CCodeTable& table, std::wstring_view text) {
    std::string result;
    for (const wchar_t ch : text)
        EXPECT_TRUE(table.Append(ch, result)) << static_cast<int>(ch);
    return result;
}

} // namespace

TEST(CodeTable, KnowsTheSystemsPageInBothDirections) {
    const CCodeTable& table = CCodeTable::Of(936);
    EXPECT_EQ(Decoded(table, "固结a"), L"\u56FA\u7ED3a");
    EXPECT_EQ(Encoded(table, L"\u56FA\u7ED3a"), "固结a");
    EXPECT_EQ(Encoded(table, L"\u20AC"), "\x80");
}

TEST(CodeTable, TakesABackslashInsideACharacterAsItsSecondByte) {
    EXPECT_EQ(Decoded(CCodeTable::Of(936), "\x81\x5C"), L"\u4E57");
    EXPECT_EQ(Decoded(CCodeTable::Of(932), "\x83\x5C"), L"\u30BD");
}

TEST(CodeTable, KnowsPagesOfOneByte) {
    EXPECT_EQ(Decoded(CCodeTable::Of(1252), "\xE4\x80"), L"\u00E4\u20AC");
    EXPECT_EQ(Decoded(CCodeTable::Of(1251), "\xE4"), L"\u0434");
    EXPECT_EQ(Encoded(CCodeTable::Of(1250), L"\u0159"), "\xF8");
}

TEST(CodeTable, KnowsTheOtherPagesOfTwoBytes) {
    EXPECT_EQ(Decoded(CCodeTable::Of(949), "\xB0\xA1"), L"\uAC00");
    EXPECT_EQ(Decoded(CCodeTable::Of(950), "\xA4\xA4"), L"\u4E2D");
    EXPECT_EQ(Decoded(CCodeTable::Of(1361), "\x88\x61"), L"\uAC00");
}

TEST(CodeTable, HasAsciiInItsLowerHalfWhateverThePage) {
    for (const int nPage : {932, 1361, 1252, 7}) {
        const CCodeTable& table = CCodeTable::Of(nPage);
        for (char c = 1; c < 0x7F; ++c)
            EXPECT_EQ(Decoded(table, std::string(1, c)), std::wstring(1, c)) << nPage;
    }
}

TEST(CodeTable, GivesTheReplacementCharacterForBytesThatAreNone) {
    EXPECT_EQ(Decoded(CCodeTable::Of(936), "\xD6"), L"\uFFFD");
    EXPECT_EQ(Decoded(CCodeTable::Of(936), "\xFF\\x"), L"\uFFFD\\x");
    EXPECT_EQ(Decoded(CCodeTable::Of(1252), "\x81z"), L"\uFFFDz");
}

TEST(CodeTable, IsTheWesternOneForAPageThatTheSystemDoesNotKnow) {
    for (const int nPage : {7, 0, -936, 99999})
        EXPECT_EQ(&CCodeTable::Of(nPage), &CCodeTable::Of(1252)) << nPage;
}

TEST(CodeTable, RefusesACharacterThatThePageLacks) {
    std::string strText = "x";
    EXPECT_FALSE(CCodeTable::Of(1252).Append(L'\u56FA', strText));
    EXPECT_FALSE(CCodeTable::Of(936).Append(static_cast<wchar_t>(0x1F600), strText));
    EXPECT_FALSE(CCodeTable::Of(936).Append(static_cast<wchar_t>(-1), strText));
    EXPECT_EQ(strText, "x");
}
