#include "host/files/dxf_text.h"

#include "platform/windows/code_page.h"

#include <gtest/gtest.h>

TEST(DxfEncoding, DecodesTheCodePageThatTheFileNames) {
    EXPECT_EQ(CDxfEncoding("ANSI_936").Decode("固结"), L"固结");
    EXPECT_EQ(CDxfEncoding("gb2312").Decode("固结"), L"固结");
    EXPECT_EQ(CDxfEncoding("ANSI_1252").Decode("\xFC\x80"), L"ü€");
    EXPECT_EQ(CDxfEncoding("ANSI_1251").Decode("\xC6"), L"Ж");
    EXPECT_EQ(CDxfEncoding("dos850").Decode("\x81"), L"ü");
    EXPECT_EQ(CDxfEncoding("ANSI_932").Decode("\x93\xFA"), L"日");
    EXPECT_EQ(CDxfEncoding().Decode(ToUtf8("固结")), L"固结");
}

TEST(DxfEncoding, TakesAnUnknownCodePageForTheWesternOne) {
    EXPECT_EQ(CDxfEncoding("mac-roman").Decode("\xFC"), L"ü");
    EXPECT_EQ(CDxfEncoding("").Decode("\xFC"), L"ü");
}

TEST(DxfEncoding, ResolvesEscapes) {
    const CDxfEncoding encoding("ANSI_1252");
    EXPECT_EQ(encoding.Decode("\\U+56FAx\\u+0041"), L"固x\\u+0041");
    EXPECT_EQ(encoding.Decode("\\U+d83d\\U+DE00"), L"\U0001F600");
    EXPECT_EQ(encoding.Decode("\\M+5B9CC\\M+193FA"), L"固日");
    EXPECT_EQ(encoding.Decode("a^Jb^ c^d^"), L"a\nb^c^d^");
    EXPECT_EQ(encoding.Decode("\\U+12G4\\U+12"), L"\\U+12G4\\U+12");
}

TEST(DxfEncoding, PutsAReplacementWhereThereIsNoCharacter) {
    EXPECT_EQ(CDxfEncoding().Decode("a\xFFz"), L"a\xFFFDz");
    EXPECT_EQ(CDxfEncoding("ANSI_936").Decode("a\xFFz"), L"a\xFFFDz");
    EXPECT_EQ(CDxfEncoding().Decode("\\U+D83Dx\\U+DE00"), L"\xFFFDx\xFFFD");
    EXPECT_EQ(CDxfEncoding().Decode("\\U+0000^@"), L"\xFFFD\xFFFD");
}

TEST(DxfEncoding, DoesNotTakeATrailByteForAnEscape) {
    const std::string strTrail = "\x81\x5C"; // ends with the byte of a backslash
    EXPECT_EQ(CDxfEncoding("ANSI_936").Decode(strTrail + "U+0041"), WideFromGbk(strTrail) + L"U+0041");
}

TEST(EncodeDxfText, WritesTheCodePageAndEscapesTheRest) {
    EXPECT_EQ(EncodeDxfText(L"固结 c?"), "固结 c?");
    EXPECT_EQ(EncodeDxfText(L"한"), "\\U+D55C");
    EXPECT_EQ(EncodeDxfText(L"\U0001F600"), "\\U+D83D\\U+DE00");
    EXPECT_EQ(EncodeDxfText(L"a\n^b"), "a^J^ b");
}

TEST(EncodeDxfText, ReadsBackAsItWas) {
    for (const std::wstring strText : {L"固结 ü € 한 \U0001F600", L"^J\n\t^ ^", L"?\xFFFD", L""})
        EXPECT_EQ(CDxfEncoding(g_szDxfCodePage).Decode(EncodeDxfText(strText)), strText);
}
