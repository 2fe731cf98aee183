#include "host/files/drawing_text.h"

#include "platform/windows/code_page.h"

#include <gtest/gtest.h>

TEST(DrawingText, StandsInTheDrawingsCodePage) {
    EXPECT_EQ(CDrawingText(g_nChinesePage).Encode(L"\u56FA\u7ED3"), "固结");
    EXPECT_EQ(CDrawingText(g_nChinesePage).Decode("固结"), L"\u56FA\u7ED3");
    EXPECT_EQ(CDrawingText(g_nWesternPage).Encode(L"\u00E4"), "\xE4");
}

TEST(DrawingText, EscapesWhatTheCodePageLacks) {
    EXPECT_EQ(CDrawingText(g_nWesternPage).Encode(L"a\u56FAb"), "a\\U+56FAb");
    EXPECT_EQ(CDrawingText(g_nWesternPage).Decode("a\\U+56FAb"), L"a\u56FAb");
    EXPECT_EQ(CDrawingText(g_nWesternPage).Decode("\\U+56fa"), L"\u56FA");
}

TEST(DrawingText, EscapesACharacterBeyondTheBasicPlaneAsTwo) {
    const std::wstring text(1, static_cast<wchar_t>(0x1F600));
    EXPECT_EQ(CDrawingText(g_nChinesePage).Encode(text), "\\U+D83D\\U+DE00");
    EXPECT_EQ(CDrawingText(g_nChinesePage).Decode("\\U+D83D\\U+DE00"), text);
}

TEST(DrawingText, ReadsCodesOfTheAsianPages) {
    const CDrawingText text(g_nWesternPage);
    EXPECT_EQ(text.Decode("\\M+1835C"), L"\u30BD");
    EXPECT_EQ(text.Decode("\\M+2A4A4"), L"\u4E2D");
    EXPECT_EQ(text.Decode("\\M+3B0A1"), L"\uAC00");
    EXPECT_EQ(text.Decode("\\M+48861"), L"\uAC00");
    EXPECT_EQ(text.Decode("\\M+5B9CC"), L"\u56FA");
}

TEST(DrawingText, LeavesWhatOnlyLooksLikeAnEscape) {
    const CDrawingText text(g_nChinesePage);
    for (const char* pText : {"\\U+12", "\\U+12G4", "\\u+1234", "\\M+6B9CC", "\\M+0B9CC", "\\M+5B9C",
                              "\\M+5FFFF", "\\P", "\\", "C:\\Users", "%%d %%c %%p"})
        EXPECT_EQ(text.Decode(pText), std::wstring(pText, pText + std::char_traits<char>::length(pText)));
}

TEST(DrawingText, SeeksEscapesAmongCharactersNotAmongBytes) {
    // The backslash is the second byte of a character here.
    EXPECT_EQ(CDrawingText(g_nChinesePage).Decode("\x81\\U+56FA"), L"\u4E57U+56FA");
}

TEST(DrawingText, GivesATextThatLooksLikeAnEscapeBackAsItWas) {
    const CDrawingText text(g_nChinesePage);
    for (const wchar_t* pText : {L"\\U+56FA", L"\\M+5B9CC", L"\\\\U+56FA", L"\\U+005CU+56FA", L"\\U+12"})
        EXPECT_EQ(text.Decode(text.Encode(pText)), pText);
    EXPECT_EQ(text.Encode(L"\\U+56FA"), "\\U+005CU+56FA");
}

TEST(DrawingText, IsWesternForAPageThatIsNotKnown) {
    EXPECT_EQ(CDrawingText(0).Decode("\xE4"), L"\u00E4");
    EXPECT_EQ(CDrawingText(77777).Decode("\xE4"), L"\u00E4");
}

TEST(DrawingText, PutsAReplacementWhereThereIsNoCharacter) {
    using namespace std::string_view_literals;
    for (const int nPage : {g_nUtf8Page, g_nChinesePage}) {
        const CDrawingText text(nPage, CDrawingText::CCarets::Escapes);
        EXPECT_EQ(text.Decode("a\xFFz"), L"a\xFFFDz");
        EXPECT_EQ(text.Decode("\\U+D83Dx\\U+DE00"), L"\xFFFDx\xFFFD");
        EXPECT_EQ(text.Decode("\\U+D83D\\U+0041"), L"\xFFFD"
                                                   L"A");
        EXPECT_EQ(text.Decode("\\U+0000^@\0"sv), L"\xFFFD\xFFFD\xFFFD");
    }
}

TEST(DrawingText, IsInUtf8Too) {
    const CDrawingText text(g_nUtf8Page);
    const std::wstring strText = L"\u56FA\u7ED3 \u00FC \U0001F600";
    EXPECT_EQ(text.Decode(ToUtf8("固结")), L"\u56FA\u7ED3");
    EXPECT_EQ(text.Decode(text.Encode(strText)), strText);
    EXPECT_EQ(text.Encode(std::wstring(1, static_cast<wchar_t>(0xD83D))), "\\U+D83D");
}

TEST(DrawingText, HasControlCharactersBehindCarets) {
    const CDrawingText text(g_nChinesePage, CDrawingText::CCarets::Escapes);
    EXPECT_EQ(text.Decode("a^Jb^ c^d^"), L"a\nb^c^d^");
    EXPECT_EQ(text.Encode(L"a\n^b"), "a^J^ b");
    for (const std::wstring strText : {L"^J\n\t^ ^", L"\x1CU+0041", L"?\xFFFD", L"^\\U+0041", L""})
        EXPECT_EQ(text.Decode(text.Encode(strText)), strText);
}

TEST(DrawingText, LeavesCaretsWhereTheyAreNoEscapes) {
    EXPECT_EQ(CDrawingText(g_nChinesePage).Decode("a^J^ "), L"a^J^ ");
    EXPECT_EQ(CDrawingText(g_nChinesePage).Encode(L"^"), "^");
    const CDrawingText text(g_nChinesePage, CDrawingText::CCarets::Escapes);
    EXPECT_EQ(text.WithPlainCarets().Decode("固^J"), L"固^J");
}
