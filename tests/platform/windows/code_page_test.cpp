#include "platform/windows/code_page.h"

#include <gtest/gtest.h>

#include <array>
#include <cwchar>
#include <initializer_list>
#include <utility>

#include "tests/platform/utf8_text.h"

namespace {

std::string Encoded(char32_t character) {
    std::string utf8;
    AppendUtf8(character, &utf8);
    return utf8;
}

} // namespace

TEST(GbkToUtf8, ReadsLiteralsAsTheCompilerWritesThem) {
    const std::initializer_list<std::pair<const char*, const char8_t*>> texts = {
        {"固结", u8"固结"}, {"—", u8"—"},   {"～", u8"～"}, {"‖", u8"‖"},   {"·", u8"·"},
        {"…", u8"…"},       {"°", u8"°"},   {"φ", u8"φ"},   {"ε", u8"ε"},   {"σ", u8"σ"},
        {"τ", u8"τ"},       {"【", u8"【"}, {"】", u8"】"}, {"！", u8"！"}, {"'", u8"'"},
        {"×", u8"×"},       {"㎡", u8"㎡"}, {"Ⅰ", u8"Ⅰ"},   {"①", u8"①"}};
    for (const auto& [narrow, expected] : texts) {
        std::string utf8;
        ASSERT_TRUE(GbkToUtf8(narrow, &utf8)) << Utf8(expected);
        EXPECT_EQ(utf8, Utf8(expected));
        std::string back;
        ASSERT_TRUE(Utf8ToGbk(utf8, &back));
        EXPECT_EQ(back, narrow) << Utf8(expected);
    }
}

TEST(GbkToUtf8, GoesThereAndBackForEveryCharacterOfThePage) {
    int characters = 0;
    for (char32_t character = 1; character < 0x10000; ++character) {
        if (character >= 0xD800 && character < 0xE000) continue;
        std::string gbk;
        if (!Utf8ToGbk(Encoded(character), &gbk)) continue;
        ++characters;
        std::string utf8;
        ASSERT_TRUE(GbkToUtf8(gbk, &utf8));
        ASSERT_EQ(utf8, Encoded(character));
        ASSERT_EQ(GbkCharLength(gbk.c_str()), static_cast<int>(gbk.size()));
    }
    EXPECT_GT(characters, 21000); // all Chinese characters of the page, besides its signs
}

TEST(GbkToUtf8, HasTheEuroSignAtOneByteAndReadsTheCompilersForm) {
    std::string utf8;
    ASSERT_TRUE(GbkToUtf8("\x80", &utf8));
    EXPECT_EQ(utf8, Utf8(u8"€"));
    ASSERT_TRUE(GbkToUtf8("€", &utf8));
    EXPECT_EQ(utf8, Utf8(u8"€"));
    std::string gbk;
    ASSERT_TRUE(Utf8ToGbk(utf8, &gbk));
    EXPECT_EQ(gbk, "\x80");
}

TEST(GbkToUtf8, RefusesBytesThatAreNoCharacterAndLeavesTheOutput) {
    for (const char* broken : {"a\xB9", "\xB9 ", "\xFF\x41\xFF", "\x81\x30\x81\x30"}) {
        std::string utf8 = "kept";
        EXPECT_FALSE(GbkToUtf8(broken, &utf8));
        EXPECT_EQ(utf8, "kept");
    }
}

TEST(Utf8ToGbk, NamesTheCharacterThatThePageLacks) {
    std::string gbk = "kept";
    std::string refused;
    EXPECT_FALSE(Utf8ToGbk(Utf8(u8"粘土é😀"), &gbk, &refused));
    EXPECT_EQ(refused, Utf8(u8"😀"));
    EXPECT_EQ(gbk, "kept");
    EXPECT_FALSE(Utf8ToGbk(Utf8(u8"ß"), &gbk, &refused));
    EXPECT_EQ(refused, Utf8(u8"ß"));
    EXPECT_FALSE(Utf8ToGbk(Utf8(u8"가"), &gbk));
    EXPECT_EQ(gbk, "kept");
}

TEST(Utf8ToGbk, RefusesBrokenBytes) {
    for (const char* broken :
         {"\xC0\x80", "\xED\xA0\x80", "\xE4\xB8", "\xF5\x80\x80\x80", "\xE0\x9F\xBF", "\x80"}) {
        std::string gbk = "kept";
        std::string refused;
        EXPECT_FALSE(Utf8ToGbk(broken, &gbk, &refused));
        EXPECT_EQ(refused, "\xEF\xBF\xBD");
        EXPECT_EQ(gbk, "kept");
    }
}

TEST(ToUtf8, ShowsBytesThatAreNoCharacter) {
    EXPECT_EQ(ToUtf8("固"), Utf8(u8"固"));
    EXPECT_EQ(ToUtf8("a\xB9\n"), Utf8(u8"a\uFFFD\n"));
}

TEST(GbkCharLength, TakesALeadByteWithItsTrailByteOnly) {
    EXPECT_EQ(GbkCharLength("a"), 1);
    EXPECT_EQ(GbkCharLength("固"), 2);
    EXPECT_EQ(GbkCharLength("\xB9"), 1);
    EXPECT_EQ(GbkCharLength("\xB9\n"), 1);
    const char text[] = "固";
    EXPECT_EQ(GbkCharLength(text, text + 1), 1);
}

TEST(GbkSafeLength, NeverDividesACharacter) {
    const char* text = "a固结b";
    EXPECT_EQ(GbkSafeLength(text, 0), 0u);
    EXPECT_EQ(GbkSafeLength(text, 2), 1u);
    EXPECT_EQ(GbkSafeLength(text, 3), 3u);
    EXPECT_EQ(GbkSafeLength(text, 4), 3u);
    EXPECT_EQ(GbkSafeLength(text, 100), 6u);
}

TEST(GbkCopy, CutsAtACharacterAndEndsWithZero) {
    std::array<char, 5> buffer = {};
    EXPECT_EQ(GbkCopy(buffer.data(), buffer.size(), "a固结"), 3u);
    EXPECT_STREQ(buffer.data(), "a固");
    EXPECT_EQ(GbkCopy(buffer.data(), 0, "x"), 0u);
    EXPECT_STREQ(buffer.data(), "a固");
}

TEST(MultiByteToWideChar, CountsWithAndWithoutTheEndingZero) {
    std::array<wchar_t, 4> wide = {};
    EXPECT_EQ(MultiByteToWideChar(CP_ACP, 0, "固结", -1, nullptr, 0), 3);
    EXPECT_EQ(MultiByteToWideChar(CP_GBK, 0, "固结", 4, nullptr, 0), 2);
    EXPECT_EQ(MultiByteToWideChar(CP_ACP, 0, "固结", -1, wide.data(), 4), 3);
    EXPECT_STREQ(wide.data(), L"固结");
}

TEST(MultiByteToWideChar, FailsOnASmallBufferAnUnknownPageAndBrokenBytesWhenAsked) {
    std::array<wchar_t, 4> wide = {};
    EXPECT_EQ(MultiByteToWideChar(CP_ACP, 0, "固结", -1, wide.data(), 2), 0);
    EXPECT_EQ(MultiByteToWideChar(1252, 0, "a", -1, wide.data(), 4), 0);
    EXPECT_EQ(MultiByteToWideChar(CP_ACP, 0, "a", 0, wide.data(), 4), 0);
    EXPECT_EQ(MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, "\xB9", -1, wide.data(), 4), 0);
    EXPECT_EQ(MultiByteToWideChar(CP_ACP, 0, "\xB9", 1, wide.data(), 4), 1);
    EXPECT_EQ(wide[0], L'\uFFFD');
}

TEST(WideCharToMultiByte, CountsBytesAndTellsOfTheDefaultCharacter) {
    std::array<char, 8> text = {};
    BOOL usedDefault = TRUE;
    EXPECT_EQ(WideCharToMultiByte(CP_ACP, 0, L"固结", -1, nullptr, 0, nullptr, nullptr), 5);
    EXPECT_EQ(WideCharToMultiByte(CP_ACP, 0, L"固结", -1, text.data(), 8, nullptr, &usedDefault), 5);
    EXPECT_STREQ(text.data(), "固结");
    EXPECT_EQ(usedDefault, FALSE);
    EXPECT_EQ(WideCharToMultiByte(CP_ACP, 0, L"ß", 1, text.data(), 8, "_", &usedDefault), 1);
    EXPECT_EQ(text[0], '_');
    EXPECT_EQ(usedDefault, TRUE);
    EXPECT_EQ(WideCharToMultiByte(CP_ACP, 0, L"固结", -1, text.data(), 4, nullptr, nullptr), 0);
}

TEST(GbkFromWide, GoesThereAndBack) {
    EXPECT_EQ(GbkFromWide(L"三轴 φ=12°"), "三轴 φ=12°");
    EXPECT_EQ(WideFromGbk("三轴 φ=12°"), L"三轴 φ=12°");
    EXPECT_EQ(GbkFromWide(L"aßb"), "a?b");
}

TEST(LooksLikeUtf8, TakesTextBeyondAsciiWithoutCharactersOfTwoBytes) {
    EXPECT_TRUE(LooksLikeUtf8("a\xE5\x9B\xBA\n")); // 固
    EXPECT_FALSE(LooksLikeUtf8("plain"));
    EXPECT_FALSE(LooksLikeUtf8(""));
    EXPECT_FALSE(LooksLikeUtf8("\xE5\x9B\xBA \xC3\xA9")); // an accented letter, or one GBK character
    EXPECT_FALSE(LooksLikeUtf8("\xB9\xCC"));              // 固 in the code page
    EXPECT_FALSE(LooksLikeUtf8("\xE5\x9B"));
}
