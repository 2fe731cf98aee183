#include "host/desktop/work_progress.h"

#include "tests/host/desktop/desktop_user.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QProgressDialog>

#include <gtest/gtest.h>

namespace {

class WorkProgress : public CWindowedTest {
protected:
    WorkProgress() { m_window.show(); }
    /// The dialog's text and how much of its bar is full; empty without one.
    std::string Shown() const {
        const auto* const pDialog = m_window.findChild<QProgressDialog*>();
        if (!pDialog || !pDialog->isVisible()) return {};
        const auto* const pBar = pDialog->findChild<QProgressBar*>();
        return pDialog->labelText().toStdString() + " " +
               std::to_string(100 * pBar->value() / pBar->maximum());
    }
    QWidget m_window;
    CWorkProgress m_progress{m_window, std::chrono::milliseconds(0)};
};

} // namespace

TEST_F(WorkProgress, ShowsTheWorkAndHowFarItIsUntilAllIsDone) {
    EXPECT_TRUE(m_progress.Show("Plotting", 0, 4));
    EXPECT_EQ(Shown(), "Plotting 0");
    EXPECT_EQ(QApplication::activeModalWidget(), m_window.findChild<QProgressDialog*>());
    EXPECT_TRUE(m_progress.Show("Plotting", 3, 4));
    EXPECT_EQ(Shown(), "Plotting 75");
    EXPECT_TRUE(m_progress.Show("Plotting", 4, 4));
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(WorkProgress, GoesWithTheWorkAlsoWhenThatEndsBeforeAllIsDone) {
    m_progress.Show("Plotting", 1, 4);
    m_progress.End();
    EXPECT_EQ(Shown(), "");
}

TEST_F(WorkProgress, OfShortWorkNothingIsSeen) {
    CWorkProgress progress(m_window, std::chrono::hours(1));
    EXPECT_TRUE(progress.Show("Opening", 0, 10));
    EXPECT_TRUE(progress.Show("Opening", 9, 10));
    EXPECT_EQ(Shown(), "");
}

TEST_F(WorkProgress, CancelGivesUpThisWorkAndNotTheNext) {
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Escape}) { // of the button, and anywhere
        m_progress.Show("Plotting", 1, 4);
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget()
                                                    : QApplication::activeModalWidget(),
                        key);
        EXPECT_FALSE(m_progress.Show("Plotting", 2, 4));
        EXPECT_EQ(Shown(), "");
        EXPECT_TRUE(m_progress.Show("Plotting", 0, 4));
        m_progress.End();
    }
}

TEST_F(WorkProgress, ACancelThatComesWithTheLastStepIsHeard) {
    m_progress.Show("Plotting", 3, 4);
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
    EXPECT_FALSE(m_progress.Show("Plotting", 4, 4));
}
