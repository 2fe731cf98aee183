#include "platform/mfc/string.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

TEST(CString, IsEmptyFromNothing) {
    EXPECT_TRUE(CString().IsEmpty());
    EXPECT_TRUE(CString(static_cast<const char*>(nullptr)).IsEmpty());
    EXPECT_STREQ(CString(), "");
    CString text("a");
    text.Empty();
    EXPECT_EQ(text.GetLength(), 0);
}

TEST(CString, CountsBytes) {
    const CString text("a固结");
    EXPECT_EQ(text.GetLength(), 5);
    EXPECT_EQ(text.GetAt(0), 'a');
    EXPECT_EQ(text[5], '\0');
}

TEST(CString, IsMadeOfPartsRepeatsAndWideText) {
    EXPECT_EQ(CString("abc", 2), "ab");
    EXPECT_EQ(CString('-', 3), "---");
    EXPECT_EQ(CString('-', -1), "");
    EXPECT_EQ(CString(L"固结"), "固结");
    CString text;
    text = 'x';
    EXPECT_EQ(text, "x");
    text = "y";
    EXPECT_EQ(text, "y");
}

TEST(CString, CanBeAssignedAPartOfItself) {
    CString text("a long text that lies on the heap");
    text = static_cast<const char*>(text) + 2;
    EXPECT_EQ(text, "long text that lies on the heap");
}

TEST(CStringDeathTest, StopsAtABadIndex) {
    CString text("ab");
    EXPECT_DEATH(text.GetAt(3), "the index lies in the text");
    EXPECT_DEATH(text.GetAt(-1), "the index lies in the text");
    EXPECT_DEATH(text.SetAt(2, 'x'), "the index lies in the text");
}

TEST(CString, FormatsAndAppends) {
    CString text;
    text.Format("%s-%d", "ZK1", 2);
    text.AppendFormat("|%.1f", -std::fabs(std::numeric_limits<double>::quiet_NaN()));
    EXPECT_EQ(text, "ZK1-2|nan");
    text.Format("%s/%s", text.GetString(), text.GetString());
    EXPECT_EQ(text, "ZK1-2|nan/ZK1-2|nan");
}

TEST(CString, JoinsInEveryWay) {
    const CString left("固");
    CString text = left + "结" + 'x' + CString("y");
    text = "[" + text + ']';
    text += left;
    text += "!";
    text += '?';
    EXPECT_EQ('<' + text, "<[固结xy]固!?");
    text = "a";
    text += text;
    EXPECT_EQ(text, "aa");
}

TEST(CString, ComparesByBytes) {
    const CString text("b");
    EXPECT_TRUE(text == "b");
    EXPECT_TRUE("b" == text);
    EXPECT_TRUE(text == CString("b"));
    EXPECT_TRUE(text != "c");
    EXPECT_TRUE(text != CString("c"));
    EXPECT_TRUE(text < "c");
    EXPECT_TRUE(text < CString("c"));
    EXPECT_TRUE("c" > text);
    EXPECT_LT(CString("z").Compare("固"), 0);
    EXPECT_GT(text.Compare(nullptr), 0);
}

TEST(CString, ComparesWithoutCaseButNotInsideACharacter) {
    EXPECT_EQ(CString("abC固").CompareNoCase("ABc固"), 0);
    EXPECT_NE(CString("\xB0\x41").CompareNoCase("\xB0\x61"), 0); // two characters, not two letters
    EXPECT_LT(CString("a").CompareNoCase("B"), 0);
}

TEST(CString, CutsInBytesAndLeavesOutADividedCharacter) {
    const CString text("a固结b");
    EXPECT_EQ(text.Left(1), "a");
    EXPECT_EQ(text.Left(2), "a");
    EXPECT_EQ(text.Left(3), "a固");
    EXPECT_EQ(text.Right(2), "b");
    EXPECT_EQ(text.Right(3), "结b");
    EXPECT_EQ(text.Mid(1, 4), "固结");
    EXPECT_EQ(text.Mid(2, 3), "结");
    EXPECT_EQ(text.Mid(2, 1), "");
    EXPECT_EQ(text.Mid(2), "结b");
}

TEST(CString, ClampsCutsThatAreOutOfRange) {
    const CString text("abc");
    EXPECT_EQ(text.Left(-1), "");
    EXPECT_EQ(text.Left(9), "abc");
    EXPECT_EQ(text.Right(9), "abc");
    EXPECT_EQ(text.Right(-1), "");
    EXPECT_EQ(text.Mid(-2, 2), "ab");
    EXPECT_EQ(text.Mid(9), "");
    EXPECT_EQ(text.Mid(1, 99), "bc");
    EXPECT_EQ(text.Mid(1, -1), "");
    EXPECT_EQ(text.Mid(1, std::numeric_limits<int>::max()), "bc");
}

TEST(CString, InsertsAndDeletesWithClampedPositions) {
    CString text("bd");
    EXPECT_EQ(text.Insert(1, 'c'), 3);
    EXPECT_EQ(text.Insert(-5, "a"), 4);
    EXPECT_EQ(text.Insert(99, "e"), 5);
    EXPECT_EQ(text, "abcde");
    EXPECT_EQ(text.Delete(1), 4);
    EXPECT_EQ(text.Delete(2, 99), 2);
    EXPECT_EQ(text.Delete(7), 2);
    EXPECT_EQ(text.Delete(0, 0), 2);
    EXPECT_EQ(text, "ac");
}

TEST(CString, ChangesTheCaseOfSingleByteLettersOnly) {
    CString text("ab\xB0\x61Z");
    EXPECT_EQ(text.MakeUpper(), "AB\xB0\x61Z");
    text = "AB\xB0\x41z";
    EXPECT_EQ(text.MakeLower(), "ab\xB0\x41z");
}

TEST(CString, TakesTextThroughItsBuffer) {
    CString text("ab");
    char* buffer = text.GetBuffer(10);
    EXPECT_STREQ(buffer, "ab");
    std::snprintf(buffer, 10, "filled");
    text.ReleaseBuffer();
    EXPECT_EQ(text.GetLength(), 6);
    text.GetBuffer();
    text.ReleaseBuffer(3);
    EXPECT_EQ(text, "fil");
}

TEST(CString, HashesByContent) {
    EXPECT_EQ(std::hash<CString>()(CString("固结")), std::hash<CString>()(CString("固") + "结"));
}
