#include "tests/host/desktop/screenshots/look_faults.h"

#include "tests/host/desktop/screenshots/picture.h"

#include <QtGui/QScreen>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolBar>

#include <gtest/gtest.h>

namespace {

class LookFaultsOf : public testing::Test {
protected:
    LookFaultsOf() {
        m_window.resize(300, 200);
        m_window.show();
    }
    template <class Widget>
    Widget& Add(const QString& strText, const QRect& place) {
        auto* const pWidget = new Widget(strText, &m_window);
        pWidget->setObjectName(u"it"_qs);
        pWidget->setGeometry(place);
        pWidget->show();
        return *pWidget;
    }
    std::string Faults() const { return LookFaults(m_window).join(u';').toStdString(); }

    QWidget m_window;
};

} // namespace

TEST_F(LookFaultsOf, AWindowWithRoomForAllAreNone) {
    Add<QLabel>(u"试样 sample"_qs, {10, 10, 200, 30});
    Add<QPushButton>(u"&Make"_qs, {10, 50, 150, 40});
    EXPECT_EQ(Faults(), "");
}

TEST_F(LookFaultsOf, TextsThatAreCutAreTold) {
    Add<QLabel>(u"a long text"_qs, {10, 10, 20, 30});
    Add<QPushButton>(u"Make"_qs, {10, 50, 150, 8});
    EXPECT_EQ(Faults(), "QLabel it cuts \"a long text\";QPushButton it cuts \"Make\"");
}

TEST_F(LookFaultsOf, CharactersWithoutAGlyphAreTold) {
    Add<QLabel>(QString::fromUcs4(U"\U0010FFFD"), {10, 10, 200, 30});
    EXPECT_TRUE(Faults().starts_with("QLabel it lacks a glyph of ")) << Faults();
}

TEST_F(LookFaultsOf, ControlsOutsideOfTheWindowAreTold) {
    Add<QPushButton>(u"Make"_qs, {250, 50, 150, 40});
    EXPECT_EQ(Faults(), "QPushButton it leaves the window");
}

TEST_F(LookFaultsOf, AWindowBesideTheScreenIsTold) {
    m_window.move(m_window.screen()->geometry().bottomRight() - QPoint(100, 100));
    EXPECT_EQ(Faults(), "the window leaves the screen");
}

TEST_F(LookFaultsOf, APictureTellsWhetherAnythingIsToBeSeen) {
    EXPECT_TRUE(IsOfOneColor(PictureOf(m_window)));
    Add<QLabel>(u"text"_qs, {10, 10, 100, 30});
    EXPECT_FALSE(IsOfOneColor(PictureOf(m_window)));
}
