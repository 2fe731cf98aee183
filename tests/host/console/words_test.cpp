#include "host/console/words.h"

#include <gtest/gtest.h>

namespace {

// The words of a line, joined with bars; a word that had quotes has an apostrophe before it.
std::string Words(const std::string& line) {
    std::vector<CWord> words;
    std::string reason, joined;
    if (!SplitWords(line, &words, &reason)) return "!" + reason;
    for (const CWord& word : words)
        joined += (word.m_bQuoted ? "|'" : "|") + word.m_strText;
    return joined;
}

} // namespace

TEST(SplitWords, CutsAtRunsOfBlanksAndTabs) {
    EXPECT_EQ(Words("  line 0,0 \t 10,5 "), "|line|0,0|10,5");
}

TEST(SplitWords, GivesNoWordForAnEmptyOrBlankLine) {
    EXPECT_EQ(Words(""), "");
    EXPECT_EQ(Words(" \t "), "");
}

TEST(SplitWords, KeepsBlanksInQuotesTogether) {
    EXPECT_EQ(Words("text \"a b\" c"), "|text|'a b|c");
}

TEST(SplitWords, TakesADoubledQuoteInQuotesAsOne) {
    EXPECT_EQ(Words("\"a \"\"b\"\" c\""), "|'a \"b\" c");
    EXPECT_EQ(Words("\"\"\"\""), "|'\"");
}

TEST(SplitWords, TakesAPairOfQuotesAsAnEmptyWord) {
    EXPECT_EQ(Words("set 1018 \"\""), "|set|1018|'");
}

TEST(SplitWords, LetsAQuotedPieceStandInsideAWord) {
    EXPECT_EQ(Words("a\"b c\"d e"), "|'ab cd|e");
}

TEST(SplitWords, QuotesWithNoOtherCharacter) {
    EXPECT_EQ(Words("'a b' \\\"x y\""), "|'a|b'|'\\x y");
}

TEST(SplitWords, RefusesAQuoteThatIsNotClosed) {
    EXPECT_EQ(Words("page \"a b"), "!a quote is not closed");
    EXPECT_EQ(Words("page \"a\"\""), "!a quote is not closed");
}

TEST(SplitWords, KeepsCharactersBeyondAscii) {
    EXPECT_EQ(Words("set 1 \"\xE5\x9B\xBE \xE5\xB9\x85\""), "|set|1|'\xE5\x9B\xBE \xE5\xB9\x85");
}

TEST(PiecesOf, KeepsEmptyPieces) {
    using CTexts = std::vector<std::string>;
    EXPECT_EQ(PiecesOf("1,22,3", ','), (CTexts{"1", "22", "3"}));
    EXPECT_EQ(PiecesOf("1", ','), CTexts{"1"});
    EXPECT_EQ(PiecesOf("", ','), CTexts{""});
    EXPECT_EQ(PiecesOf(",1,", ','), (CTexts{"", "1", ""}));
}

TEST(WithoutBlanksAround, KeepsBlanksInside) {
    EXPECT_EQ(WithoutBlanksAround(" \ta  b \t"), "a  b");
    EXPECT_EQ(WithoutBlanksAround("ab"), "ab");
    EXPECT_EQ(WithoutBlanksAround(" \t "), "");
    EXPECT_EQ(WithoutBlanksAround(""), "");
}
