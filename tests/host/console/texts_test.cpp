#include "host/console/texts.h"

#include <gtest/gtest.h>

#include "host/console/answers.h"

TEST(GbkAnswer, ConvertsOrNamesTheCharacterThatTheCodePageLacks) {
    EXPECT_EQ(GbkAnswer("\xE5\x9B\xBA"), "固");
    try {
        GbkAnswer("a\xF0\x9F\x98\x80");
        FAIL() << "it was taken";
    } catch (const CRunFailure& failure) {
        EXPECT_EQ(failure.Status(), EXIT_NO_SUCH_ANSWER);
        EXPECT_STREQ(failure.what(), "the system code page lacks the character \xF0\x9F\x98\x80");
    }
}

TEST(Utf8FromWide, KeepsCharactersBeyondTheCodePageAndMarksWhatIsNone) {
    EXPECT_EQ(Utf8FromWide(L"a固\U0001F600"), "a\xE5\x9B\xBA\xF0\x9F\x98\x80");
    EXPECT_EQ(Utf8FromWide(std::wstring(1, static_cast<wchar_t>(0xD800))), "\xEF\xBF\xBD");
}
