#include "host/desktop/dialogs/dialog_icon.h"

#include <gtest/gtest.h>

#include "tests/host/desktop/dialogs/user_hand.h"
#include "ui/tervo_icon.h"

TEST(DialogIcon, ShowsThePixelsInTheirColors) {
    StartWidgets();
    const CIconTemplate icon = TervoIcon();
    const QImage picture = DialogIcon(icon).pixmap(32).toImage();
    ASSERT_EQ(picture.size(), QSize(32, 32));
    EXPECT_EQ(picture.pixel(0, 0), 0U);
    EXPECT_EQ(picture.pixel(30, 4), 0xFFC02020U);
    EXPECT_EQ(picture.pixel(31, 26), 0xFF202020U);
}

TEST(DialogIcon, MakesOneOfFourPixelsAtHalfTheSize) {
    StartWidgets();
    CIconTemplate icon{1, {{'w', 0xFFFFFFFF}, {'k', 0xFF000000}}, {}};
    std::string strPixels(std::size_t{32} * 32, 'k');
    strPixels[0] = strPixels[1] = 'w';
    icon.m_strPixels = strPixels;
    const QImage picture = DialogIcon(icon).pixmap(16).toImage();
    ASSERT_EQ(picture.size(), QSize(16, 16));
    EXPECT_NEAR(qRed(picture.pixel(0, 0)), 127, 1);
    EXPECT_EQ(picture.pixel(1, 0), 0xFF000000U);
}
