#include "platform/ado/gbk_name.h"

#include <gtest/gtest.h>

TEST(SameGbkName, TakesNoNoticeOfTheCaseOfLetters) {
    EXPECT_TRUE(SameGbkName("深度Sd", "深度sD"));
    EXPECT_TRUE(SameGbkName("", ""));
    EXPECT_FALSE(SameGbkName("Sd", "Sd1"));
    EXPECT_FALSE(SameGbkName("Sd1", "Sd"));
}

TEST(SameGbkName, TellsCharactersApartWhoseSecondBytesDifferAsLettersDoByCase) {
    EXPECT_FALSE(SameGbkName("笰", "筧")); // B941 and B961
    EXPECT_FALSE(SameGbkName("x笰", "X筧"));
}

TEST(SameGbkName, TakesALeadByteWithoutASecondOneAsItStands) {
    EXPECT_TRUE(SameGbkName("a\xB9", "A\xB9"));
    EXPECT_FALSE(SameGbkName("a\xB9", "A\xBA"));
}
