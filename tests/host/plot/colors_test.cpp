#include "host/plot/colors.h"

#include <gtest/gtest.h>

TEST(PaperColor, NamesTheFirstNineIndices) {
    EXPECT_EQ(PaperColor(1), QColor(255, 0, 0));
    EXPECT_EQ(PaperColor(2), QColor(255, 255, 0));
    EXPECT_EQ(PaperColor(3), QColor(0, 255, 0));
    EXPECT_EQ(PaperColor(4), QColor(0, 255, 255));
    EXPECT_EQ(PaperColor(5), QColor(0, 0, 255));
    EXPECT_EQ(PaperColor(6), QColor(255, 0, 255));
    EXPECT_EQ(PaperColor(8), QColor(128, 128, 128));
    EXPECT_EQ(PaperColor(9), QColor(192, 192, 192));
}

TEST(PaperColor, IsBlackForSevenAndForWhatNamesNoColour) {
    for (const Adesk::UInt16 nIndex : {7, 0, 256, 257, 65535})
        EXPECT_EQ(PaperColor(nIndex), QColor(Qt::black));
}

TEST(PaperColor, GoesRoundTheHuesFromTenOn) {
    EXPECT_EQ(PaperColor(10), QColor(255, 0, 0));
    EXPECT_EQ(PaperColor(90), QColor(0, 255, 0));
    EXPECT_EQ(PaperColor(170), QColor(0, 0, 255));
    EXPECT_EQ(PaperColor(18).value(), 76);
    EXPECT_EQ(PaperColor(11).saturation(), 127);
}

TEST(PaperColor, EndsWithGreysFromDarkToWhite) {
    EXPECT_EQ(PaperColor(250), QColor(51, 51, 51));
    EXPECT_EQ(PaperColor(255), QColor(255, 255, 255));
    for (int n = 250; n < 255; ++n)
        EXPECT_LT(PaperColor(static_cast<Adesk::UInt16>(n)).red(),
                  PaperColor(static_cast<Adesk::UInt16>(n + 1)).red());
}
