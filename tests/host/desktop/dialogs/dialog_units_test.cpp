#include "host/desktop/dialogs/dialog_units.h"

#include <QtGui/QFont>

#include <gtest/gtest.h>

#include "tests/host/desktop/dialogs/user_hand.h"

namespace {

QFontMetrics Metrics(int nPoints) {
    StartWidgets();
    QFont font;
    font.setPointSize(nPoints);
    return QFontMetrics(font);
}

} // namespace

TEST(DialogUnits, AreTheLettersOfTheFont) {
    const QFontMetrics metrics = Metrics(10);
    const CDialogUnits units(metrics, 0);
    EXPECT_EQ(units.Height(8), metrics.height());
    EXPECT_GE(units.Width(8), metrics.horizontalAdvance(QChar(u'字')));
    EXPECT_GE(units.Width(4 * 3), metrics.horizontalAdvance(QStringLiteral("abc")));
}

TEST(DialogUnits, GrowWithTheFont) {
    const CDialogUnits small(Metrics(9), 0), large(Metrics(18), 0);
    EXPECT_NEAR(large.Width(100), 2 * small.Width(100), small.Width(10));
    EXPECT_NEAR(large.Height(100), 2 * small.Height(100), small.Height(10));
}

TEST(DialogUnits, LeaveRoomForTheFrameOfAField) {
    const CDialogUnits units(Metrics(9), 48);
    EXPECT_EQ(units.Height(12), 48);
    EXPECT_EQ(units.Height(3), 12);
}

TEST(DialogUnits, PlaceAControl) {
    const CDialogUnits units(Metrics(9), 48);
    EXPECT_EQ(units.Place({10, 6, 50, 12}), QRect(units.Width(10), 24, units.Width(50), 48));
}
