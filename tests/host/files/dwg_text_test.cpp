#include "host/files/dwg_text.h"

#include <gtest/gtest.h>

TEST(DwgText, StandsInTheDrawingsCodePage) {
    EXPECT_EQ(CDwgText(g_nDwgAnsi936).Encode(L"\u56FA\u7ED3"), "固结");
    EXPECT_EQ(CDwgText(g_nDwgAnsi936).Decode("固结"), L"\u56FA\u7ED3");
    EXPECT_EQ(CDwgText(g_nDwgAnsi1252).Encode(L"\u00E4"), "\xE4");
}

TEST(DwgText, EscapesWhatTheCodePageLacks) {
    EXPECT_EQ(CDwgText(g_nDwgAnsi1252).Encode(L"a\u56FAb"), "a\\U+56FAb");
    EXPECT_EQ(CDwgText(g_nDwgAnsi1252).Decode("a\\U+56FAb"), L"a\u56FAb");
    EXPECT_EQ(CDwgText(g_nDwgAnsi1252).Decode("\\U+56fa"), L"\u56FA");
}

TEST(DwgText, EscapesACharacterBeyondTheBasicPlaneAsTwo) {
    const std::wstring text(1, static_cast<wchar_t>(0x1F600));
    EXPECT_EQ(CDwgText(g_nDwgAnsi936).Encode(text), "\\U+D83D\\U+DE00");
    EXPECT_EQ(CDwgText(g_nDwgAnsi936).Decode("\\U+D83D\\U+DE00"), text);
}

TEST(DwgText, KeepsHalfACharacterBeyondTheBasicPlane) {
    const std::wstring text = CDwgText(g_nDwgAnsi936).Decode("\\U+D83D\\U+0041");
    EXPECT_EQ(text, (std::wstring{static_cast<wchar_t>(0xD83D), L'A'}));
    EXPECT_EQ(CDwgText(g_nDwgAnsi936).Encode(text), "\\U+D83DA");
}

TEST(DwgText, ReadsCodesOfTheAsianPages) {
    const CDwgText text(g_nDwgAnsi1252);
    EXPECT_EQ(text.Decode("\\M+1835C"), L"\u30BD");
    EXPECT_EQ(text.Decode("\\M+2A4A4"), L"\u4E2D");
    EXPECT_EQ(text.Decode("\\M+3B0A1"), L"\uAC00");
    EXPECT_EQ(text.Decode("\\M+48861"), L"\uAC00");
    EXPECT_EQ(text.Decode("\\M+5B9CC"), L"\u56FA");
}

TEST(DwgText, LeavesWhatOnlyLooksLikeAnEscape) {
    const CDwgText text(g_nDwgAnsi936);
    for (const char* pText : {"\\U+12", "\\U+12G4", "\\u+1234", "\\M+6B9CC", "\\M+0B9CC", "\\M+5B9C",
                              "\\M+5FFFF", "\\P", "\\", "C:\\Users", "%%d %%c %%p"})
        EXPECT_EQ(text.Decode(pText), std::wstring(pText, pText + std::char_traits<char>::length(pText)));
}

TEST(DwgText, SeeksEscapesAmongCharactersNotAmongBytes) {
    // The backslash is the second byte of a character here.
    EXPECT_EQ(CDwgText(g_nDwgAnsi936).Decode("\x81\\U+56FA"), L"\u4E57U+56FA");
}

TEST(DwgText, GivesATextThatLooksLikeAnEscapeBackAsItWas) {
    const CDwgText text(g_nDwgAnsi936);
    for (const wchar_t* pText : {L"\\U+56FA", L"\\M+5B9CC", L"\\\\U+56FA", L"\\U+005CU+56FA", L"\\U+12"})
        EXPECT_EQ(text.Decode(text.Encode(pText)), pText);
    EXPECT_EQ(text.Encode(L"\\U+56FA"), "\\U+005CU+56FA");
}

TEST(DwgText, IsWesternForANumberThatIsNoCodePage) {
    EXPECT_EQ(CDwgText(0).Decode("\xE4"), L"\u00E4");
    EXPECT_EQ(CDwgText(0xFFFF).Decode("\xE4"), L"\u00E4");
}
