#include "host/desktop/dialogs/gbk_text.h"

#include <gtest/gtest.h>

TEST(GbkText, GoesToTheScreenAndBack) {
    EXPECT_EQ(FromGbk("试样1-1°"), QStringLiteral("试样1-1°"));
    EXPECT_STREQ(ToGbk(QStringLiteral("试样1-1°")), "试样1-1°");
    EXPECT_EQ(FromGbk("\xff"), QStringLiteral(u"\ufffd"));
    EXPECT_STREQ(ToGbk(QStringLiteral(u"a\u0e01")), "a?");
}

TEST(GbkText, TellsWhatTheCodePageHas) {
    EXPECT_TRUE(IsInCodePage(QStringLiteral("钻孔 φ'")));
    EXPECT_TRUE(IsInCodePage(QString()));
    EXPECT_FALSE(IsInCodePage(QStringLiteral(u"a\u0e01")));
    EXPECT_FALSE(IsInCodePage(QStringLiteral(u"\U0001F600")));
}

TEST(GbkText, KeepsOnlyTheLineFeedsOfACaption) {
    EXPECT_EQ(CaptionFromGbk("一\r\n二"), QStringLiteral("一\n二"));
}
