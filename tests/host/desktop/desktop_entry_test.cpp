#include "host/desktop_entry.h"

#include "tests/host/desktop/desktop_user.h"
#include "tests/temp_folder.h"

#include <QtGui/QPixmap>

#include <gtest/gtest.h>

namespace {

class DesktopEntry : public CWindowedTest {
protected:
    /// An icon theme that has an icon of the program's name.
    DesktopEntry() {
        std::filesystem::create_directories(m_folder.Path("hicolor/16x16/apps"));
        m_folder.Write("hicolor/index.theme",
                       "[Icon Theme]\nName=Hicolor\nDirectories=16x16/apps\n\n[16x16/apps]\nSize=16\n");
        QPixmap icon(16, 16);
        icon.fill(Qt::red);
        EXPECT_TRUE(icon.save(QString::fromStdString(m_folder.Path("hicolor/16x16/apps/tvcad.png"))));
        QIcon::setThemeSearchPaths({QString::fromStdString(m_folder.Path())});
        QIcon::setThemeName(u"hicolor"_qs);
    }
    ~DesktopEntry() override {
        QIcon::setThemeSearchPaths(m_arPaths);
        QIcon::setThemeName(m_strTheme);
        QApplication::setWindowIcon({});
        QApplication::setDesktopFileName({});
    }

    const CTempFolder m_folder;
    const QStringList m_arPaths = QIcon::themeSearchPaths();
    const QString m_strTheme = QIcon::themeName();
};

} // namespace

TEST_F(DesktopEntry, IsNamedToTheDesktopAndGivesWindowsItsIcon) {
    UseDesktopEntry(u"tvcad"_qs);
    EXPECT_EQ(QApplication::desktopFileName(), u"tvcad"_qs);
    EXPECT_EQ(QApplication::windowIcon().pixmap(16, 16).toImage().pixelColor(8, 8), QColor(Qt::red));
}

TEST_F(DesktopEntry, WhoseIconIsNotInstalledLeavesWindowsWithoutOne) {
    UseDesktopEntry(u"tvdata"_qs);
    EXPECT_TRUE(QApplication::windowIcon().isNull());
}
