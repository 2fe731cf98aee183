#include "platform/ado/odbc_text.h"

#include <gtest/gtest.h>

TEST(OdbcText, ConvertsCharactersOfEveryLength) {
    const std::string strUtf8 = "a\xC3\xA9\xE5\x9C\x9F\xF0\x9F\x98\x80z";
    const std::u16string strUtf16 = u"a\u00E9\u571F\U0001F600z";
    EXPECT_EQ(Utf16FromUtf8(strUtf8), strUtf16);
    EXPECT_EQ(Utf8FromUtf16(strUtf16), strUtf8);
    EXPECT_EQ(Utf16FromUtf8(""), u"");
    EXPECT_EQ(Utf8FromUtf16(u""), "");
}

TEST(OdbcText, ReplacesBrokenBytesAndHalvesOfPairs) {
    EXPECT_EQ(Utf16FromUtf8("a\xFF\xE5z"), u"a\uFFFD\uFFFDz");
    const std::u16string strHalves = {u'a', static_cast<char16_t>(0xD83D), u'b',
                                      static_cast<char16_t>(0xDE00), static_cast<char16_t>(0xD83D)};
    EXPECT_EQ(Utf8FromUtf16(strHalves), "a\xEF\xBF\xBD"
                                        "b\xEF\xBF\xBD\xEF\xBF\xBD");
}
