#include "host/desktop/window_settings.h"

#include "tests/temp_folder.h"

#include <gtest/gtest.h>

namespace {

/// Settings in a configuration folder of the test's own.
class WindowSettings : public testing::Test {
protected:
    WindowSettings() {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                           QString::fromStdString(m_folder.Path()));
    }
    const CTempFolder m_folder;
};

} // namespace

TEST_F(WindowSettings, ANewUserHasNoFilesAndADarkBackground) {
    const CWindowSettings settings;
    EXPECT_TRUE(settings.RecentFiles().isEmpty());
    EXPECT_TRUE(settings.IsDark());
    EXPECT_TRUE(settings.Geometry().isEmpty());
}

TEST_F(WindowSettings, AreThereInTheNextRun) {
    {
        CWindowSettings settings;
        settings.SetDark(false);
        settings.SetPlaces("place", "bars");
        settings.NoteFile(u"/a, b=\"c\".dwg"_qs);
    }
    const CWindowSettings settings;
    EXPECT_FALSE(settings.IsDark());
    EXPECT_EQ(settings.Geometry(), "place");
    EXPECT_EQ(settings.Bars(), "bars");
    EXPECT_EQ(settings.RecentFiles(), QStringList{u"/a, b=\"c\".dwg"_qs});
}

TEST_F(WindowSettings, NineFilesAreKeptLatestFirstEachOnce) {
    CWindowSettings settings;
    for (int i = 1; i <= 12; ++i)
        EXPECT_TRUE(settings.NoteFile(QString::number(i)));
    EXPECT_FALSE(settings.NoteFile(u"12"_qs)) << "it is first already";
    EXPECT_TRUE(settings.NoteFile(u"8"_qs));
    EXPECT_EQ(settings.RecentFiles().join(u' '), u"8 12 11 10 9 7 6 5 4"_qs);
}
