#include "platform/acad/typed_text.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

/// The lines there are; Escape reads "ESC".
std::vector<std::wstring> Lines(CTypedText& typed) {
    std::vector<std::wstring> lines;
    while (const auto line = typed.TakeLine())
        lines.push_back(line->m_bEscape ? L"ESC" : line->m_strText);
    return lines;
}

using CTexts = std::vector<std::wstring>;

} // namespace

TEST(TypedText, ATrailingBlankAndALineBreakEndALine) {
    CTypedText typed;
    typed.Type(L"zoom e ", true);
    EXPECT_EQ(Lines(typed), CTexts{L"zoom e"});
    typed.Type(L"line\n0,0\r\n5,5\n\n", true);
    EXPECT_EQ(Lines(typed), (CTexts{L"line", L"0,0", L"5,5", L""}));
    typed.Type(L"first\nsecond ", true);
    EXPECT_EQ(Lines(typed), (CTexts{L"first", L"second"}));
}

TEST(TypedText, WhatIsBegunWaitsForMore) {
    CTypedText typed;
    typed.Type(L"zoom", true);
    EXPECT_FALSE(typed.HasLine());
    EXPECT_FALSE(typed.TakeLine());
    typed.Type(L" e", true);
    typed.Type(L"\n", true);
    EXPECT_TRUE(typed.HasLine());
    EXPECT_EQ(Lines(typed), CTexts{L"zoom e"});
}

TEST(TypedText, CharacterThreeIsEscapeAndDropsWhatIsBegun) {
    CTypedText typed;
    typed.Type(L"zoo\x03\x03regen\n", true);
    EXPECT_EQ(Lines(typed), (CTexts{L"ESC", L"ESC", L"regen"}));
}

TEST(TypedText, ALineKnowsWhetherItIsEchoed) {
    CTypedText typed;
    typed.Type(L"a ", true);
    typed.Type(L"b ", false);
    EXPECT_TRUE(typed.TakeLine()->m_bEcho);
    EXPECT_FALSE(typed.TakeLine()->m_bEcho);
}
