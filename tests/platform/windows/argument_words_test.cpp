#include "platform/windows/argument_words.h"

#include <gtest/gtest.h>

namespace {
using CWords = std::vector<std::string>;
}

TEST(ArgumentWords, AreDividedByBlanksAndTabs) {
    EXPECT_EQ(ArgumentWords(""), CWords{});
    EXPECT_EQ(ArgumentWords("  \t"), CWords{});
    EXPECT_EQ(ArgumentWords(" /s\t a  b "), (CWords{"/s", "a", "b"}));
}

TEST(ArgumentWords, KeepBlanksInQuotes) {
    EXPECT_EQ(ArgumentWords("\"a b\" c"), (CWords{"a b", "c"}));
    EXPECT_EQ(ArgumentWords("a\"b c\"d"), CWords{"ab cd"});
    EXPECT_EQ(ArgumentWords("\"\" x"), (CWords{"", "x"}));
}

TEST(ArgumentWords, RunToTheEndInAQuoteThatIsNeverClosed) {
    EXPECT_EQ(ArgumentWords("/s \"a b  c"), (CWords{"/s", "a b  c"}));
    EXPECT_EQ(ArgumentWords("/s \""), (CWords{"/s", ""}));
}

TEST(ArgumentWords, TakeADoubledQuoteInsideQuotesForOne) {
    EXPECT_EQ(ArgumentWords("\"a\"\"b c\" d"), (CWords{"a\"b c", "d"}));
}

TEST(ArgumentWords, TakeBackslashesForPlainButBeforeAQuote) {
    EXPECT_EQ(ArgumentWords("C:\\a\\b \\\\host\\x\\"), (CWords{"C:\\a\\b", "\\\\host\\x\\"}));
    EXPECT_EQ(ArgumentWords("a\\\"b"), CWords{"a\"b"});
    EXPECT_EQ(ArgumentWords("a\\\\\"b c\""), CWords{"a\\b c"});
    EXPECT_EQ(ArgumentWords("a\\\\\\\"b c"), (CWords{"a\\\"b", "c"}));
    EXPECT_EQ(ArgumentWords("\"a b\\\\\""), CWords{"a b\\"});
}
