#include "platform/ado/connection_text.h"

#include <gtest/gtest.h>

TEST(ConnectionText, FindsAKeyInAnyCaseWithBlanksAround) {
    const CConnectionText text(" provider = SQLite ; DATA SOURCE=/a b/c.db ");
    EXPECT_EQ(text.Value("Provider"), "SQLite");
    EXPECT_EQ(text.Value("Data Source"), "/a b/c.db");
    EXPECT_EQ(text.Value("Uid"), "");
}

TEST(ConnectionText, KeepsSemicolonsInsideQuotesAndBraces) {
    const CConnectionText text("Data Source='/a;b.db';Pwd={x;y};Uid=\"u;v\"");
    EXPECT_EQ(text.Value("Data Source"), "/a;b.db");
    EXPECT_EQ(text.Value("Pwd"), "{x;y}");
    EXPECT_EQ(text.Value("Uid"), "u;v");
}

TEST(ConnectionText, TakesAnApostropheInsideAPathAsItStands) {
    const CConnectionText text("Data Source=/o'neill/p.db;Provider=SQLite");
    EXPECT_EQ(text.Value("Data Source"), "/o'neill/p.db");
    EXPECT_EQ(text.Value("Provider"), "SQLite");
}

TEST(ConnectionText, TakesTheLastOfAKeyGivenTwice) {
    EXPECT_EQ(CConnectionText("Uid=a;uid=b").Value("UID"), "b");
}

TEST(ConnectionText, HandsOnAllButOneKeyAsWritten) {
    EXPECT_EQ(CConnectionText("Provider=ODBC;Driver={A;B};;Uid= u").Without("provider"),
              "Driver={A;B};Uid= u");
}

TEST(ConnectionText, IgnoresEmptyPairsAndTakesAKeyWithoutValueAsEmpty) {
    const CConnectionText text(";;Trusted;Data Source=");
    EXPECT_EQ(text.Value("Trusted"), "");
    EXPECT_EQ(text.Value("Data Source"), "");
    EXPECT_EQ(text.Without("x"), "Trusted;Data Source=");
}

TEST(ConnectionText, TakesNoSecondByteOfACharacterForAClosingBrace) {
    const CConnectionText text("Pwd={倉;x};Uid=u"); // 827D
    EXPECT_EQ(text.Value("Pwd"), "{倉;x}");
    EXPECT_EQ(text.Value("Uid"), "u");
}

TEST(ConnectionText, TakesADoubledClosingBraceForPartOfTheValue) {
    const CConnectionText text("Pwd={a}};b};Uid=u");
    EXPECT_EQ(text.Value("Pwd"), "{a}};b}");
    EXPECT_EQ(text.Value("Uid"), "u");
}

TEST(ConnectionPair, PutsAValueInBracesWhereItNeedsThem) {
    EXPECT_EQ(ConnectionPair("Uid", "sa"), "Uid=sa");
    EXPECT_EQ(ConnectionPair("Pwd", ""), "Pwd=");
    EXPECT_EQ(ConnectionPair("Pwd", "a;b"), "Pwd={a;b}");
    EXPECT_EQ(ConnectionPair("Pwd", "'a"), "Pwd={'a}");
    EXPECT_EQ(ConnectionPair("Pwd", "a}b"), "Pwd={a}}b}");
    EXPECT_EQ(ConnectionPair("Pwd", "倉;"), "Pwd={倉;}"); // 827D
}

TEST(ConnectionPair, IsReadBackAsOnePair) {
    for (const char* pszValue : {"a;b", "}", "a};b", "倉};", "{x}", "\"a;"}) {
        const std::string strPair = ConnectionPair("Pwd", pszValue);
        EXPECT_EQ(CConnectionText(strPair + ";Uid=u").Without("Uid"), strPair);
        EXPECT_EQ(CConnectionText(strPair + ";Uid=u").Value("Uid"), "u") << strPair;
    }
}
