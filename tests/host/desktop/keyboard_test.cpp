// The window's menus and the host's own dialogs by the keyboard alone.

#include "tests/host/desktop/desktop_user.h"
#include "tests/host/desktop/dialogs/user_hand.h"
#include "tests/temp_folder.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>

#include <gtest/gtest.h>

namespace {

/// The letter behind the mark of a caption; null without one.
QChar LetterOf(const QString& strCaption) {
    const qsizetype nMark = strCaption.indexOf(u'&');
    return nMark < 0 ? QChar() : strCaption[nMark + 1].toUpper();
}

void ExpectALetterEach(const QList<QAction*>& actions) {
    QString strLetters;
    for (const QAction* const pAction : actions) {
        if (pAction->isSeparator()) continue;
        const QChar letter = LetterOf(pAction->text());
        EXPECT_FALSE(letter.isNull()) << pAction->text().toStdString();
        EXPECT_FALSE(strLetters.contains(letter)) << pAction->text().toStdString();
        strLetters += letter;
    }
}

void Activate(QWidget& window) {
    window.activateWindow(); // as a window manager would
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

/// A key with Ctrl or Alt at the main window.
void Shortcut(const CDesktopUser& user, Qt::Key key, Qt::KeyboardModifier modifier) {
    user.Do([&] { Activate(user.Desktop().Window()); });
    user.Act([&] { // queued, since it may open a dialog
        CDrawingView& view = user.Desktop().Window().View();
        QMetaObject::invokeMethod(
            qApp, [&view, key, modifier] { QTest::keyClick(&view, key, modifier); }, Qt::QueuedConnection);
    });
}

/// Keys in the dialog or box that is open, which close it; a button shown down is clicked a moment later.
void InDialog(const CDesktopUser& user, const std::function<void()>& fn) {
    user.Act([&] {
        QWidget* const pDialog = QApplication::activeModalWidget();
        ASSERT_TRUE(pDialog);
        Activate(*pDialog);
        fn();
        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeModalWidget() != pDialog; }));
    });
}

/// Types a path where the file dialog has its focus, and takes it.
void GivePath(const CDesktopUser& user, const std::string& strPath) {
    InDialog(user, [&] {
        EXPECT_TRUE(qobject_cast<QLineEdit*>(QApplication::focusWidget()));
        CUserHand::Key(Qt::Key_A, Qt::ControlModifier);
        CUserHand::Type(strPath.c_str());
        CUserHand::Key(Qt::Key_Return);
    });
}

} // namespace

TEST(Keyboard, EveryMenuAndEveryEntryHasALetterOfItsOwn) {
    AtDesktop({"/nowhere"}, [](const CDesktopUser& user) {
        user.Do([&] {
            const QList<QAction*> menus = user.Desktop().Window().menuBar()->actions();
            ExpectALetterEach(menus);
            for (const QAction* const pMenu : menus)
                ExpectALetterEach(pMenu->menu()->actions());
        });
    });
}

TEST(Keyboard, AMenuOpensByItsLetterAndAnEntryRunsByItsOwn) {
    AtDesktop({"/nowhere"}, [](const CDesktopUser& user) {
        Shortcut(user, Qt::Key_D, Qt::AltModifier);
        user.Act([] {
            ASSERT_TRUE(QApplication::activePopupWidget());
            QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_L);
        });
        EXPECT_EQ(user.Prompt(), "From point:");
    });
}

TEST(Keyboard, ADrawingIsSavedClosedAndOpenedAgain) {
    const CTempFolder folder;
    AtDesktop({"/nowhere"}, [&](const CDesktopUser& user) {
        user.Say("LINE 0,0 10,10");
        Shortcut(user, Qt::Key_S, Qt::ControlModifier);
        GivePath(user, folder.Path("first.dwg"));
        EXPECT_TRUE(std::filesystem::exists(folder.Path("first.dwg")));
        user.Say("LINE 0,0 20,20");
        Shortcut(user, Qt::Key_W, Qt::ControlModifier);
        InDialog(user, [] { CUserHand::Key(Qt::Key_Escape); });
        EXPECT_EQ(user.Shown(), 2U) << "Escape keeps it open";
        Shortcut(user, Qt::Key_W, Qt::ControlModifier);
        InDialog(user, [] { CUserHand::Key(Qt::Key_N, Qt::AltModifier); });
        Shortcut(user, Qt::Key_O, Qt::ControlModifier);
        GivePath(user, folder.Path("first.dwg"));
        EXPECT_EQ(user.Shown(), 1U);
    });
}

TEST(Keyboard, AnExportGoesToThePathThatIsTyped) {
    const CTempFolder folder;
    AtDesktop({"/nowhere"}, [&](const CDesktopUser& user) {
        user.Say("LINE 0,0 10,10");
        Shortcut(user, Qt::Key_E, Qt::ControlModifier);
        GivePath(user, folder.Path("a.svg"));
        EXPECT_TRUE(std::filesystem::exists(folder.Path("a.svg"))) << user.Said();
    });
}
