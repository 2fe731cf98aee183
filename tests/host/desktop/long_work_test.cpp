// What the window says of work that takes its time, and what giving it up leaves.

#include "host/console/progress.h"
#include "tests/host/desktop/desktop_user.h"
#include "tests/temp_folder.h"

#include <QtCore/QTimer>
#include <QtGui/QPaintEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressDialog>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStatusBar>

#include <gtest/gtest.h>

namespace {

/// Notes how often the status bar was painted, with its word of being busy in full, while a command worked.
class CBusyWatch final : public QObject {
public:
    explicit CBusyWatch(CDesktop& desktop)
        : m_desktop(desktop) {
        for (QLabel* const pLabel : desktop.Window().statusBar()->findChildren<QLabel*>())
            pLabel->installEventFilter(this);
    }
    bool eventFilter(QObject* pObject, QEvent* pEvent) override {
        const auto* const pLabel = static_cast<QLabel*>(pObject);
        const bool bSaysSo = pEvent->type() == QEvent::Paint && pLabel->text() == u"Working..."_qs;
        if (bSaysSo && !m_desktop.Answers().IsWaiting() &&
            pLabel->width() >= pLabel->fontMetrics().horizontalAdvance(pLabel->text()))
            ++m_nSaid;
        return false;
    }
    int m_nSaid = 0;

private:
    CDesktop& m_desktop;
};

/// Presses the button of the progress dialog as soon as one is there.
void CancelSoon() {
    QTimer::singleShot(0, qApp, [] {
        auto* const pDialog = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
        if (!pDialog) return CancelSoon();
        pDialog->findChild<QPushButton*>()->click();
    });
}

/// A drawing of lines: its file.
std::string WriteLines(const CTempFolder& folder, int nLines) {
    std::string strText = "0\nSECTION\n2\nENTITIES\n";
    for (int i = 0; i < nLines; ++i)
        strText += "0\nLINE\n8\n0\n10\n0\n20\n" + std::to_string(i) + "\n11\n9\n21\n9\n";
    return folder.Write("lines.dxf", strText + "0\nENDSEC\n0\nEOF\n");
}

} // namespace

TEST(LongWork, TheStatusBarSaysSoBeforeEachCommandBegins) {
    const CTempFolder folder;
    const std::string strFile = WriteLines(folder, 3);
    AtDesktop(NoInstallation(), [&](const CDesktopUser& user) {
        std::unique_ptr<CBusyWatch> pWatch;
        user.Do([&] { pWatch = std::make_unique<CBusyWatch>(user.Desktop()); });
        int nBefore = 0;
        for (const std::string& strLine :
             {"OPEN \"" + strFile + "\"", std::string("ERASE all"), std::string("UNDO 1"),
              "SAVEAS \"" + folder.Path("a.dwg") + "\"", std::string("REGEN")}) {
            user.Say(strLine);
            user.Do([&] { EXPECT_GT(pWatch->m_nSaid, std::exchange(nBefore, pWatch->m_nSaid)) << strLine; });
            if (strLine == "ERASE all") {
                EXPECT_EQ(user.Shown(), 0U);
            }
        }
        user.Do([&] { pWatch.reset(); });
    });
}

TEST(LongWork, CancelInTheWindowsDialogGivesItUp) {
    AtDesktop(NoInstallation(), [](const CDesktopUser& user) {
        user.Act([] {
            CancelSoon();
            std::size_t nDone = 0;
            while (ShowProgress("Working hard", nDone, nDone + 2))
                ++nDone;
        });
        user.Do([] { EXPECT_EQ(QApplication::activeModalWidget(), nullptr); });
        EXPECT_EQ(user.Prompt(), "Ready");
    });
}

TEST(LongWork, ADrawingWhoseOpeningIsGivenUpLeavesAllAsItWas) {
    const CTempFolder folder;
    const std::string strFile = WriteLines(folder, 100);
    AtDesktop(NoInstallation(), [&](const CDesktopUser& user) {
        user.Say("LINE 0,0 10,10");
        std::string strWork;
        for (const char* const szMode : {"SETVAR SDI 0", "SETVAR SDI 1"}) {
            user.Say(szMode);
            user.Do([&] {
                SetProgressSink([&](const std::string& strShown, std::size_t nDone, std::size_t nAll) {
                    strWork = strShown;
                    return 2 * nDone < nAll; // half of it
                });
            });
            user.Say("OPEN \"" + strFile + "\"");
            EXPECT_EQ(strWork, "Opening " + strFile);
            EXPECT_NE(user.Said().rfind(strFile + " cannot be opened: it was given up"), std::string::npos);
            user.Say("DOCUMENTS");
            EXPECT_NE(user.Said().rfind("1 * Drawing1 (changed)"), std::string::npos);
            EXPECT_EQ(user.Shown(), 1U);
            EXPECT_EQ(user.Prompt(), "Ready");
        }
        user.Do([] { SetProgressSink({}); });
        user.Say("SETVAR SDI 0");
        user.Say("OPEN \"" + strFile + "\"");
        EXPECT_EQ(user.Shown(), 100U);
    });
}
