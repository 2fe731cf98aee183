#include "tests/host/desktop/screenshots/picture.h"

#include "tests/host/desktop/screenshots/look_faults.h"

#include <QtCore/QDir>
#include <QtGui/QScreen>
#include <QtTest/QTest>

#include <gtest/gtest.h>

QImage PictureOf(QWidget& window) {
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    QApplication::processEvents();
    window.repaint();
    const QRect place = window.frameGeometry();
    return window.screen()
        ->grabWindow(0, place.x(), place.y(), place.width(), place.height())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

void Keep(const QImage& picture, const std::string& strName) {
    const QString strFolder = qEnvironmentVariable("TERVO_PICTURES");
    if (strFolder.isEmpty()) return;
    const QString strPath = strFolder + u'/' + QString::fromStdString(strName) + u".png"_qs;
    EXPECT_TRUE(QDir().mkpath(strFolder) && picture.save(strPath)) << strPath.toStdString();
}

void ExpectGoodLook(QWidget& window, const std::string& strName, const QString& strCaption) {
    window.activateWindow();
    const QImage picture = PictureOf(window);
    Keep(picture, strName);
    EXPECT_EQ(window.windowTitle().toStdString(), strCaption.toStdString()) << strName;
    EXPECT_FALSE(IsOfOneColor(picture)) << strName;
    EXPECT_EQ(LookFaults(window).join(u'\n').toStdString(), "") << strName;
}
