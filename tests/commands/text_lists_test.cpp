#include "commands/text_lists.h"

#include <gtest/gtest.h>

namespace {

// The parts, each in brackets.
std::string Split(const char* text, char separator) {
    CStringArray parts;
    parts.Add("before");
    SplitText(text, separator, parts);
    std::string shown;
    for (const CString& part : parts)
        shown += "[" + std::string(part) + "]";
    return shown;
}

CStringArray Texts(const std::vector<const char*>& texts) {
    CStringArray list;
    for (const char* text : texts)
        list.Add(text);
    return list;
}

} // namespace

TEST(SplitText, GivesAnEmptyListForAnEmptyOrBlankText) {
    EXPECT_EQ(Split("", '@'), "");
    EXPECT_EQ(Split("  \t ", '@'), "");
}

TEST(SplitText, GivesATextWithoutSeparatorAsOnePart) {
    EXPECT_EQ(Split(" 1-1 ", '@'), "[1-1]");
}

TEST(SplitText, TrimsEveryPartButTheLast) {
    EXPECT_EQ(Split(" a @ b @ c ", '@'), "[a][b][ c]");
}

TEST(SplitText, KeepsEmptyParts) {
    EXPECT_EQ(Split("a@@b@", '@'), "[a][][b][]");
}

TEST(SplitText, TakesNoSecondByteOfACharacterForTheSeparator) {
    // the second byte of this character is that of the bar
    EXPECT_EQ(Split("\x81\x7C|x", '|'), "[\x81\x7C][x]");
}

TEST(JoinTexts, PutsTheSeparatorBetweenTextsOnly) {
    EXPECT_STREQ(JoinTexts(Texts({}), '@'), "");
    EXPECT_STREQ(JoinTexts(Texts({"a"}), '@'), "a");
    EXPECT_STREQ(JoinTexts(Texts({"a", "", "b"}), '@'), "a@@b");
}

TEST(FindText, TellsUpperAndLowerCaseApart) {
    EXPECT_EQ(FindText(Texts({"ZK1", "zk1"}), "zk1"), 1);
    EXPECT_EQ(FindText(Texts({"ZK1"}), "ZK"), -1);
}

TEST(FindOrAdd, FindsTheFirstAndAddsNothing) {
    CStringArray texts = Texts({"a", "b", "b"});
    bool bAdded = true;
    EXPECT_EQ(FindOrAdd(texts, "b", &bAdded), 1);
    EXPECT_FALSE(bAdded);
    EXPECT_EQ(texts.GetSize(), 3);
}

TEST(FindOrAdd, AppendsWhatIsNotThere) {
    CStringArray texts = Texts({"a"});
    bool bAdded = false;
    EXPECT_EQ(FindOrAdd(texts, "c", &bAdded), 1);
    EXPECT_TRUE(bAdded);
    EXPECT_STREQ(texts[1], "c");
}
