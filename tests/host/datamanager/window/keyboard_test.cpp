#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>

#include <map>
#include <set>

#include "tests/host/datamanager/window/window_test.h"

// Everything in the window is reached by keys alone.

namespace {

class Keyboard : public CDataWindowTest {
protected:
    Keyboard() { OpenDemo(); }

    /// The letters after '&' in visible texts of a window, with how often each stands there.
    static std::map<QChar, int> Mnemonics(const QWidget& window, QStringList arTexts = {}) {
        for (const auto* pLabel : window.findChildren<QLabel*>())
            if (pLabel->isVisible() && pLabel->buddy()) arTexts.append(pLabel->text());
        for (const auto* pButton : window.findChildren<QAbstractButton*>())
            if (pButton->isVisible()) arTexts.append(pButton->text());
        std::map<QChar, int> mapLetters;
        for (const QString& strText : arTexts)
            if (const auto nAt = strText.indexOf(u'&'); nAt >= 0) ++mapLetters[strText[nAt + 1].toUpper()];
        return mapLetters;
    }
    static void ExpectEachOnce(const std::map<QChar, int>& mapLetters, std::size_t nLetters) {
        EXPECT_EQ(mapLetters.size(), nLetters);
        for (const auto& [letter, nTimes] : mapLetters)
            EXPECT_EQ(nTimes, 1) << QString(letter).toStdString();
    }
    /// The names of the widgets that Tab reaches, from the first on.
    static std::set<QString> Reached(QWidget& first) {
        std::set<QString> setNames;
        Activate(*first.window());
        first.setFocus();
        for (int i = 0; i < 40; ++i) {
            setNames.insert(QApplication::focusWidget()->objectName());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        return setNames;
    }
};

} // namespace

TEST_F(Keyboard, ReachesEveryTableByTab) {
    const std::set<QString> setNames = Reached(Table(u"Projects"_qs));
    for (const char16_t* pszName : {u"Projects", u"Boreholes", u"Samples", u"Readings"})
        EXPECT_TRUE(setNames.contains(QString::fromUtf16(pszName)))
            << QString::fromUtf16(pszName).toStdString();
}

TEST_F(Keyboard, ReachesEveryFieldOfTheImportByTab) {
    Press(Qt::Key_I, Qt::ControlModifier);
    AwaitIdle();
    const std::set<QString> setNames = Reached(Find(u"Files"_qs));
    for (const char16_t* pszName : {u"Files", u"Preview", u"Remarks"})
        EXPECT_TRUE(setNames.contains(QString::fromUtf16(pszName)))
            << QString::fromUtf16(pszName).toStdString();
}

TEST_F(Keyboard, HasOneMnemonicForOneThing) {
    QStringList arMenus;
    for (const QAction* pAction : m_pWindow->menuBar()->actions()) {
        arMenus.append(pAction->text());
        QStringList arEntries;
        for (const QAction* pEntry : pAction->menu()->actions())
            arEntries.append(pEntry->text());
        arEntries.removeAll(QString()); // separators
        ExpectEachOnce(Mnemonics(*pAction->menu(), arEntries), static_cast<std::size_t>(arEntries.size()));
    }
    ExpectEachOnce(Mnemonics(*m_pWindow, arMenus + QStringList{u"Rea&dings"_qs, u"Res&ults"_qs}), 8);
    Press(Qt::Key_U, Qt::AltModifier);
    ExpectEachOnce(Mnemonics(*m_pWindow, arMenus + QStringList{u"Rea&dings"_qs, u"Res&ults"_qs}), 10);
}

TEST_F(Keyboard, HasOneMnemonicForOneThingInTheDialogs) {
    Press(Qt::Key_I, Qt::ControlModifier);
    ExpectEachOnce(Mnemonics(Find(u"ImportDialog"_qs)), 8);
    PressIn(Find(u"ImportDialog"_qs), Qt::Key_Escape);
    Await([&] { return !m_pWindow->findChild<QDialog*>(); }, "the dialog has gone");
    Press(Qt::Key_N, Qt::ControlModifier);
    ExpectEachOnce(Mnemonics(Find(u"NewProjectDialog"_qs)), 6);
}

TEST_F(Keyboard, GoesToTablesByTheirMnemonics) {
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget(), &Table(u"Samples"_qs));
    Press(Qt::Key_B, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget(), &Table(u"Boreholes"_qs));
    Press(Qt::Key_J, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget(), &Table(u"Projects"_qs));
}
