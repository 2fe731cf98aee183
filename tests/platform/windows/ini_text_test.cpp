#include "platform/windows/ini_text.h"

#include <gtest/gtest.h>

#include "tests/platform/utf8_text.h"

TEST(CIniText, TrimsBlanksAndOnePairOfQuotes) {
    const CIniText ini("[ S ]\r\n  a =  x y \t\r\nb=\" q \"\nc='q'\nd=\"\"z\"\"\ne=\"open\nf='\ng=\n");
    EXPECT_EQ(ini.Value("s", "A"), "x y");
    EXPECT_EQ(ini.Value("S", "b"), " q ");
    EXPECT_EQ(ini.Value("S", "c"), "q");
    EXPECT_EQ(ini.Value("S", "d"), "\"z\"");
    EXPECT_EQ(ini.Value("S", "e"), "\"open");
    EXPECT_EQ(ini.Value("S", "f"), "'");
    EXPECT_EQ(ini.Value("S", "g"), "");
    EXPECT_EQ(ini.Value("S", "h"), std::nullopt);
    EXPECT_EQ(ini.Value("T", "a"), std::nullopt);
}

TEST(CIniText, TakesTheFirstOfEqualSectionsAndKeys) {
    const CIniText ini("k=0\n[S]\nk=1\nK=2\n[T]\nx=1\n[s]\nk=3\nl=4\n");
    EXPECT_EQ(ini.Value("S", "k"), "1");
    EXPECT_EQ(ini.Value("S", "l"), std::nullopt);
    EXPECT_EQ(ini.Sections(), (std::vector<std::string>{"S", "T", "s"}));
    EXPECT_EQ(ini.Keys("T"), std::vector<std::string>{"x"});
    EXPECT_TRUE(ini.Keys("none").empty());
}

TEST(CIniText, KeepsOtherLinesByteForByte) {
    const std::string text = "; 注释 = x\r\n\r\nnot a key\r\n[S]\r\n  a  =  1  \r\n;b=2\r\n\r\n[T]\r\nc=3";
    CIniText ini(text);
    EXPECT_EQ(ini.Bytes(), text);
    EXPECT_TRUE(ini.Set("s", "A", "9"));
    EXPECT_TRUE(ini.Set("S", "b", "8"));
    EXPECT_TRUE(ini.Set("T", "d", "7"));
    EXPECT_TRUE(ini.Set("U", "e", "6"));
    EXPECT_EQ(ini.Bytes(),
              "; 注释 = x\r\n\r\nnot a key\r\n[S]\r\n  a  =9\r\n;b=2\r\nb=8\r\n\r\n[T]\r\nc=3\r\n"
              "d=7\r\n[U]\r\ne=6\r\n");
}

TEST(CIniText, ChangesAnEmptyValueAndOneWithoutLineEnd) {
    CIniText ini("[S]\na=\nb=");
    EXPECT_TRUE(ini.Set("S", "a", "1"));
    EXPECT_TRUE(ini.Set("S", "b", "2"));
    EXPECT_EQ(ini.Bytes(), "[S]\na=1\nb=2");
    EXPECT_TRUE(ini.Set("S", "a", ""));
    EXPECT_EQ(ini.Bytes(), "[S]\na=\nb=2");
}

TEST(CIniText, RemovesKeysAndSections) {
    CIniText ini("[S]\na=1\n; note\nb=2\n[T]\nc=3\n");
    ini.Remove("S", "A");
    ini.Remove("S", "x");
    ini.Remove("X", "a");
    EXPECT_EQ(ini.Bytes(), "[S]\n; note\nb=2\n[T]\nc=3\n");
    ini.RemoveSection("s");
    ini.RemoveSection("X");
    EXPECT_EQ(ini.Bytes(), "[T]\nc=3\n");
}

TEST(CIniText, RefusesWhatCouldNotBeReadBack) {
    CIniText ini("");
    EXPECT_FALSE(ini.Set("S", "a", "1\n2"));
    EXPECT_FALSE(ini.Set("S", "a=b", "1"));
    EXPECT_FALSE(ini.Set("S", "", "1"));
    EXPECT_FALSE(ini.Set("S", ";a", "1"));
    EXPECT_FALSE(ini.Set("S", "[a", "1"));
    EXPECT_FALSE(ini.Set("S", " a", "1"));
    EXPECT_FALSE(ini.Set("S]", "a", "1"));
    EXPECT_FALSE(ini.Set("S", "a", "\xB9"));
    EXPECT_EQ(ini.Bytes(), "");
}

TEST(CIniText, KnowsATrailByteFromABracket) {
    const std::string section = "S\x81\x5D"; // the second byte is ']'
    CIniText ini("");
    EXPECT_TRUE(ini.Set(section, "k", "v"));
    EXPECT_EQ(CIniText(ini.Bytes()).Value(section, "k"), "v");
}

TEST(CIniText, ReadsAndKeepsUtf8WithAMark) {
    CIniText ini("\xEF\xBB\xBF" + Utf8(u8"[Project]\nGCMC=地铁φ\n"));
    EXPECT_EQ(ini.Value("Project", "GCMC"), "地铁φ");
    EXPECT_TRUE(ini.Set("Project", "GCBH", "编号"));
    EXPECT_EQ(ini.Bytes(), "\xEF\xBB\xBF" + Utf8(u8"[Project]\nGCMC=地铁φ\nGCBH=编号\n"));
}

TEST(CIniText, TakesUnmarkedUtf8OnlyWithoutTwoByteCharacters) {
    EXPECT_EQ(CIniText(Utf8(u8"[S]\nk=地铁\n")).Value("S", "k"), "地铁");
    // Two bytes that are a letter in UTF-8 and a Chinese character in the code page.
    EXPECT_EQ(CIniText("[S]\nk=\xC2\xB0\n").Value("S", "k"), "\xC2\xB0");
    EXPECT_EQ(CIniText("[S]\nk=地铁\n").Value("S", "k"), "地铁");
}

TEST(CIniText, MarksUtf8ThatGetsATwoByteCharacter) {
    CIniText ini(Utf8(u8"[S]\nk=地铁\n"));
    EXPECT_TRUE(ini.Set("S", "k2", "φ"));
    const CIniText again(ini.Bytes());
    EXPECT_EQ(again.Value("S", "k"), "地铁");
    EXPECT_EQ(again.Value("S", "k2"), "φ");
}

TEST(CIniText, StaysInTheCodePageWhereItsTextLooksLikeUtf8) {
    const std::string text = Utf8(u8"你好"); // three characters of the code page, and two of UTF-8
    CIniText ini("[S]\na=1\n");
    EXPECT_TRUE(ini.Set("S", "k", text));
    const CIniText again(ini.Bytes());
    EXPECT_EQ(again.Value("S", "k"), text);
    EXPECT_EQ(again.Bytes(), ini.Bytes());
}

TEST(CIniText, NamesTheCharacterThatTheCodePageLacks) {
    const CIniText ini(Utf8(u8"[S]\nk=地😀\nl=地\n"));
    EXPECT_EQ(ini.Value("S", "k"), std::nullopt);
    EXPECT_EQ(ini.Refused(), Utf8(u8"😀"));
    EXPECT_EQ(ini.Value("S", "l"), "地");
    EXPECT_EQ(ini.Refused(), "");
}
