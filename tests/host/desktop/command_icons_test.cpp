#include "host/desktop/command_icons.h"

#include "tests/host/desktop/desktop_user.h"

#include <QtGui/QPixmap>
#include <QtWidgets/QApplication>
#include <QtWidgets/QToolBar>

#include <gtest/gtest.h>

namespace {

class CommandIcons : public CWindowedTest {
protected:
    /// The strokes of an icon: how much of its square they cover, and the colour where they do so wholly.
    static std::pair<double, QColor> Strokes(const QIcon& icon, int nSize, QIcon::Mode mode = QIcon::Normal) {
        const QImage picture = icon.pixmap(QSize(nSize, nSize), 1.0, mode).toImage();
        double dCovered = 0.0;
        QColor darkest(Qt::transparent);
        for (int i = 0; i < nSize * nSize; ++i) {
            const QColor color = picture.pixelColor(i % nSize, i / nSize);
            dCovered += color.alphaF() / (nSize * nSize);
            if (color.alpha() >= darkest.alpha()) darkest = color;
        }
        return {dCovered, darkest};
    }
    static void ExpectNear(const QColor& color, const QColor& expected) {
        EXPECT_NEAR(color.red(), expected.red(), 4);
        EXPECT_NEAR(color.green(), expected.green(), 4);
        EXPECT_NEAR(color.blue(), expected.blue(), 4);
    }
};

} // namespace

TEST_F(CommandIcons, AreOnEveryButtonOfTheToolbarEachWithItsOwn) {
    AtDesktop({"/nowhere"}, [](const CDesktopUser& user) {
        user.Do([&] {
            QList<QImage> arPictures;
            for (const QAction* const pAction :
                 user.Desktop().Window().findChild<QToolBar*>(u"commands"_qs)->actions()) {
                const QImage picture = pAction->icon().pixmap(QSize(24, 24), 1.0).toImage();
                EXPECT_FALSE(picture.isNull()) << pAction->text().toStdString();
                EXPECT_FALSE(arPictures.contains(picture)) << pAction->text().toStdString();
                arPictures << picture;
            }
            EXPECT_EQ(arPictures.size(), 14);
        });
    });
}

TEST_F(CommandIcons, AreStrokesOfTheSameWeightAtEverySize) {
    const double dSmall = Strokes(CommandIcon("Line"), 16).first;
    EXPECT_GT(dSmall, 0.02);
    for (const int nSize : {24, 32, 48})
        EXPECT_NEAR(Strokes(CommandIcon("Line"), nSize).first, dSmall, 0.01) << nSize;
}

TEST_F(CommandIcons, HaveTheColorOfTheButtonsTextsOnLightAndDarkPalettes) {
    const QPalette former = QApplication::palette();
    for (const QColor& color : {QColor(20, 20, 20), QColor(230, 230, 230)}) {
        QPalette palette = former;
        palette.setColor(QPalette::Active, QPalette::ButtonText, color);
        palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(128, 128, 128));
        QApplication::setPalette(palette);
        ExpectNear(Strokes(CommandIcon("Save"), 48).second, color);
        ExpectNear(Strokes(CommandIcon("Save"), 48, QIcon::Disabled).second, QColor(128, 128, 128));
    }
    QApplication::setPalette(former);
}

TEST_F(CommandIcons, ThereIsNoneForAnUnknownName) {
    EXPECT_TRUE(CommandIcon("Nothing").isNull());
}
