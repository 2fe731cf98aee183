// Drawings, files and menus in the real window.

#include "host/console/host_commands.h"
#include "tests/host/desktop/desktop_user.h"
#include "tests/support/programs.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabBar>

#include <gtest/gtest.h>

namespace {

const std::string g_strChartModule = TERVO_BIN "/tervo-bren.so";

std::string Tabs(const CDesktopUser& user) {
    std::string strTabs;
    user.Do([&] {
        const auto* const pTabs = user.Desktop().Window().findChild<QTabBar*>();
        for (int i = 0; i < pTabs->count(); ++i)
            strTabs += (i == pTabs->currentIndex() ? "[" : "") + pTabs->tabText(i).toStdString() +
                       (i == pTabs->currentIndex() ? "]" : "") + " ";
    });
    return strTabs;
}

/// The command lines that the menus hold.
QStringList MenuCommands(const CDesktopUser& user) {
    QStringList arLines;
    user.Do([&] {
        for (const QAction* const pAction : user.Desktop().Window().menuBar()->findChildren<QAction*>())
            arLines << pAction->data().toString().section(u' ', 0, 0);
    });
    return arLines;
}

void PressButton(const CDesktopUser& user, QMessageBox::StandardButton button) {
    user.Act([&] {
        auto* const pBox = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_TRUE(pBox);
        QTest::mouseClick(pBox->button(button), Qt::LeftButton);
    });
}

} // namespace

TEST(MainWindow, HasAMenuEntryForEveryCommandOfHostAndModule) {
    AtDesktop({"/nowhere", g_strChartModule}, [](const CDesktopUser& user) {
        const QStringList arLines = MenuCommands(user);
        for (const CHostCommand& command : HostCommands())
            EXPECT_TRUE(arLines.contains(QString::fromLatin1(command.m_pName))) << command.m_pName;
        for (const char16_t* const szName : {u"BREN", u"BRCF", u"BROPEN"})
            EXPECT_TRUE(arLines.contains(QString::fromUtf16(szName)));
        user.Say("UNLOADMODULE \"" + g_strChartModule + "\"");
        EXPECT_FALSE(MenuCommands(user).contains(u"BREN"_qs)) << user.Said();
    });
}

TEST(MainWindow, ShowsEachDrawingAsATabWithAMarkWhenItIsChanged) {
    AtDesktop(NoInstallation(), [](const CDesktopUser& user) {
        EXPECT_EQ(Tabs(user), "[Drawing1] ");
        user.Say("LINE 0,0 10,10");
        user.Key(Qt::Key_N, Qt::ControlModifier);
        EXPECT_EQ(Tabs(user), "Drawing1 * [Drawing2] ");
        EXPECT_EQ(user.Shown(), 0U);
        user.Key(Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(Tabs(user), "[Drawing1 *] Drawing2 ");
        EXPECT_EQ(user.Shown(), 1U);
        user.Act([&] {
            auto* const pTabs = user.Desktop().Window().findChild<QTabBar*>();
            QTest::mouseClick(pTabs, Qt::LeftButton, {}, pTabs->tabRect(1).center());
        });
        EXPECT_EQ(Tabs(user), "Drawing1 * [Drawing2] ");
    });
}

TEST(MainWindow, InSingleDocumentModeANewDrawingTakesThePlaceOfTheCurrentOne) {
    AtDesktop(NoInstallation(), [](const CDesktopUser& user) {
        user.Say("SETVAR SDI 1");
        user.Say("LINE 0,0 10,10");
        user.Menu("New");
        PressButton(user, QMessageBox::Cancel);
        EXPECT_EQ(Tabs(user), "[Drawing1 *] ");
        user.Menu("New");
        PressButton(user, QMessageBox::No);
        EXPECT_EQ(Tabs(user), "[Drawing2] ");
        user.Say("SETVAR SDI 0");
    });
}

TEST(MainWindow, ADrawingInThePlaceOfAnotherHasNothingOfItsSelection) {
    AtDesktop(NoInstallation(), [](const CDesktopUser& user) {
        user.Say("SETVAR SDI 1");
        for (int i = 0; i < 10; ++i) { // one of the new drawings may lie where the former one lay
            user.Say("LINE 0,0 10,10");
            user.Key(Qt::Key_A, Qt::ControlModifier);
            EXPECT_EQ(user.Selected(), 1);
            user.Menu("New");
            PressButton(user, QMessageBox::No);
            EXPECT_EQ(user.Selected(), 0);
        }
        user.Say("SETVAR SDI 0");
    });
}

TEST(MainWindow, ACommandFromTheMenuEndsTheOneThatAsks) {
    AtDesktop(NoInstallation(), [](const CDesktopUser& user) {
        user.Say("LINE");
        user.Click({10.0, 10.0});
        user.Menu("Text");
        EXPECT_EQ(user.Prompt(), "Position:");
        user.Key(Qt::Key_Escape);
        EXPECT_EQ(user.Prompt(), "Ready");
        EXPECT_EQ(user.Shown(), 0U);
    });
}

TEST(MainWindow, AFailureIsToldAndTheNextCommandRuns) {
    AtDesktop(NoInstallation(), [](const CDesktopUser& user) {
        user.Say("NOSUCHTHING");
        EXPECT_NE(user.Said().find("unknown command: NOSUCHTHING"), std::string::npos);
        user.Say("TEXT 0,0");
        user.Say("no height");
        EXPECT_NE(user.Said().find("not a number: no height"), std::string::npos);
        user.Say("5");
        user.Say("a text");
        EXPECT_EQ(user.Shown(), 1U);
    });
}

TEST(MainWindow, EnterAloneRepeatsTheLastCommand) {
    AtDesktop(NoInstallation(), [](const CDesktopUser& user) {
        user.Say("LINE 0,0 10,10");
        user.Key(Qt::Key_Return);
        EXPECT_EQ(user.Prompt(), "From point:");
        user.Key(Qt::Key_Escape);
        user.Click({30.0, 30.0}, Qt::RightButton);
        EXPECT_EQ(user.Prompt(), "From point:");
    });
}

TEST(MainWindow, FilesAreSavedOpenedAndRemembered) {
    const CTempFolder folder;
    AtDesktop(NoInstallation(), [&](const CDesktopUser& user) {
        user.Say("LINE 0,0 10,10");
        user.Key(Qt::Key_S, Qt::ControlModifier);
        user.ChooseFile(folder.Path("first"));
        EXPECT_TRUE(std::filesystem::exists(folder.Path("first.dwg")));
        EXPECT_EQ(Tabs(user), "[first.dwg] ");
        user.Say("CLOSE");
        EXPECT_EQ(Tabs(user), "");
        user.Menu("1  " + folder.Path("first.dwg"));
        EXPECT_EQ(Tabs(user), "[first.dwg] ");
        EXPECT_EQ(user.Shown(), 1U);
    });
}

TEST(MainWindow, ClosingItAsksForEachChangedDrawing) {
    const CTempFolder folder;
    AtDesktop(NoInstallation(), [&](const CDesktopUser& user) {
        user.Say("LINE 0,0 10,10");
        user.Say("SAVEAS \"" + folder.Path("a.dxf") + "\"");
        const auto nBefore = std::filesystem::file_size(folder.Path("a.dxf"));
        user.Say("LINE 0,0 20,10");
        user.Act([&] { user.Desktop().Window().close(); });
        PressButton(user, QMessageBox::Cancel);
        EXPECT_EQ(user.Prompt(), "Ready");
        user.Say("CLOSE");
        PressButton(user, QMessageBox::Yes);
        EXPECT_EQ(Tabs(user), "");
        EXPECT_GT(std::filesystem::file_size(folder.Path("a.dxf")), nBefore);
    });
}

TEST(MainWindow, ExportsWriteEachFormAndLeaveTheDrawingsOwnFileAlone) {
    const CTempFolder folder;
    AtDesktop(NoInstallation(), [&](const CDesktopUser& user) {
        user.Say("LINE 0,0 100,100");
        for (const char* const szName : {"a.pdf", "a.svg", "a.png", "a.dxf"}) {
            user.Menu("Export...");
            user.ChooseFile(folder.Path(szName));
            EXPECT_TRUE(std::filesystem::exists(folder.Path(szName))) << szName << "\n" << user.Said();
        }
        EXPECT_EQ(Tabs(user), "[Drawing1 *] ");
    });
}
