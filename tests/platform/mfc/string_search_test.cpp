#include <gtest/gtest.h>

#include "platform/mfc/string.h"

// Each of these double-byte characters has as its second byte the sign that its name tells.
static const char* const BAR = "\x81\x7C";
static const char* const AT = "\x81\x40";
static const char* const BACKSLASH = "\x81\x5C";
static const char* const TILDE = "\x81\x7E";
static const char* const BRACKET = "\x81\x5B";

TEST(CStringFind, NeverTakesATrailByteForACharacter) {
    const CString text = CString(BAR) + AT + BACKSLASH + TILDE + BRACKET;
    for (const char sign : {'|', '@', '\\', '~', '['}) {
        EXPECT_EQ(text.Find(sign), -1);
        EXPECT_EQ(text.ReverseFind(sign), -1);
        EXPECT_EQ((text + sign).Find(sign), 10);
        EXPECT_EQ((CString(sign) + text).ReverseFind(sign), 0);
    }
    EXPECT_EQ(text.FindOneOf("|@\\~["), -1);
}

TEST(CStringFind, FindsTextAtCharactersOnly) {
    const CString text("\xB9\xCC\xBD\xE1\xCC\xBD"); // the last character is also in the middle, across two
    EXPECT_EQ(text.Find("\xCC\xBD"), 4);
    EXPECT_EQ(CString("固结排水").Find("排水"), 4);
    EXPECT_EQ(CString("固结排水").Find("水排"), -1);
}

TEST(CStringFind, StartsWhereAsked) {
    const CString text("a-b-c");
    EXPECT_EQ(text.Find('-'), 1);
    EXPECT_EQ(text.Find('-', 2), 3);
    EXPECT_EQ(text.Find("-c", 2), 3);
    EXPECT_EQ(text.Find('-', 4), -1);
    EXPECT_EQ(text.Find('-', 99), -1);
    EXPECT_EQ(text.Find('-', -1), -1);
    EXPECT_EQ(text.Find("", 2), 2);
    EXPECT_EQ(text.Find("", 5), 5);
    EXPECT_EQ(CString().Find(""), 0);
    EXPECT_EQ(text.ReverseFind('-'), 3);
}

TEST(CStringFind, FindsACharacterOfASet) {
    EXPECT_EQ(CString("ab固结").FindOneOf("结固"), 2);
    EXPECT_EQ(CString("ab").FindOneOf(""), -1);
}

TEST(CStringReplace, ChangesSingleBytesOutsideOfCharacters) {
    CString text = CString(BACKSLASH) + "\\a\\";
    EXPECT_EQ(text.Replace('\\', '/'), 2);
    EXPECT_EQ(text, CString(BACKSLASH) + "/a/");
}

TEST(CStringReplace, ChangesTextOfAnyLength) {
    CString text("a、b、c");
    EXPECT_EQ(text.Replace("、", ", "), 2);
    EXPECT_EQ(text, "a, b, c");
    EXPECT_EQ(text.Replace(", ", nullptr), 2);
    EXPECT_EQ(text, "abc");
    EXPECT_EQ(text.Replace("", "x"), 0);
    EXPECT_EQ(text.Replace("x", "y"), 0);
    text = CString(BAR) + "|";
    EXPECT_EQ(text.Replace("|", "||"), 1);
    EXPECT_EQ(text, CString(BAR) + "||");
}

TEST(CStringRemove, TakesOutSingleBytesOutsideOfCharacters) {
    CString text = CString("|") + BAR + "|a";
    EXPECT_EQ(text.Remove('|'), 2);
    EXPECT_EQ(text, CString(BAR) + "a");
}

TEST(CStringTrim, TakesAwayBlanksOnBothSides) {
    CString text(" \t\r\n 固 结 \v\f ");
    EXPECT_EQ(text.Trim(), "固 结");
    text = "  ";
    EXPECT_EQ(text.Trim(), "");
}

TEST(CStringTrim, TakesAwayCharactersOfASetAndNoTrailByte) {
    CString text = CString("|") + BAR + "|";
    EXPECT_EQ(text.Trim('|'), BAR);
    text = "、、a、b、";
    EXPECT_EQ(text.TrimLeft("、"), "a、b、");
    EXPECT_EQ(text.TrimRight("、"), "a、b");
    text = CString("x") + AT;
    EXPECT_EQ(text.TrimRight('@'), CString("x") + AT);
}

TEST(CStringSpan, SplitsAtTheFirstCharacterOfAnotherKind) {
    EXPECT_EQ(CString("12a3").SpanIncluding("0123456789"), "12");
    EXPECT_EQ(CString("固结|x").SpanExcluding("|"), "固结");
    EXPECT_EQ((CString(BAR) + "a|").SpanExcluding("|"), CString(BAR) + "a");
    EXPECT_EQ(CString("abc").SpanExcluding("|"), "abc");
}

TEST(CStringTokenize, SkipsEmptyPartsAndEndsWithMinusOne) {
    const CString text = CString("||ZK1|") + BAR + "||";
    int start = 0;
    EXPECT_EQ(text.Tokenize("|", start), "ZK1");
    EXPECT_EQ(text.Tokenize("|", start), BAR);
    EXPECT_EQ(text.Tokenize("|", start), "");
    EXPECT_EQ(start, -1);
    EXPECT_EQ(text.Tokenize("|", start), "");
}

TEST(CStringTokenize, TakesDoubleByteSeparators) {
    int start = 0;
    const CString text("甲、乙，丙");
    EXPECT_EQ(text.Tokenize("、，", start), "甲");
    EXPECT_EQ(text.Tokenize("、，", start), "乙");
    EXPECT_EQ(text.Tokenize("、，", start), "丙");
    EXPECT_EQ(text.Tokenize("、，", start), "");
    EXPECT_EQ(start, -1);
}
