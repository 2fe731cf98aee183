#include "host/console/dialog_presenter.h"

#include <gtest/gtest.h>

#include "platform/windows/code_page.h"
#include "tests/host/console/line_answers.h"
#include "tests/host/console/test_dialog.h"

namespace {

class ConsoleDialogPresenter : public testing::Test {
protected:
    ~ConsoleDialogPresenter() override { SetDialogPresenter(nullptr); }

    int Run(std::deque<std::string> lines) {
        m_answers.m_lines = std::move(lines);
        SetDialogPresenter(&m_presenter);
        return m_dialog.DoModal();
    }

    CLineAnswers m_answers{{}};
    CConsoleDialogPresenter m_presenter{m_answers};
    CTestDialog m_dialog;
};

} // namespace

TEST_F(ConsoleDialogPresenter, TakesLinesUntilTheDialogCloses) {
    EXPECT_EQ(Run({"check 14", "ok", "for the next prompt"}), 1);
    EXPECT_EQ(m_dialog.m_strLog, " 14:0 1:0");
    EXPECT_EQ(m_answers.m_lines.size(), 1U);
    EXPECT_EQ(m_answers.m_strPrompts, "dialog 30> dialog 30> ");
    EXPECT_EQ(m_answers.m_status, EXIT_DONE);
}

TEST_F(ConsoleDialogPresenter, PrintsWhatShowGives) {
    Run({"show", "cancel"});
    EXPECT_EQ(m_answers.m_strPrinted.substr(0, m_answers.m_strPrinted.find('\n')),
              ToUtf8("dialog 30 \"取样\""));
}

TEST_F(ConsoleDialogPresenter, ALineThatIsNoneHereFailsTheRunAndCancels) {
    EXPECT_EQ(Run({"check 99", "ok"}), 2);
    EXPECT_EQ(m_answers.m_status, EXIT_NO_SUCH_ANSWER);
    EXPECT_EQ(m_answers.m_strFailure,
              std::string("dialog 30: no control 99; controls here: ") + TestDialog::CONTROLS);
    EXPECT_EQ(m_dialog.m_strLog, " 2:0"); // the dialog's own cancel ran
    EXPECT_EQ(m_answers.m_lines.size(), 1U);
}

TEST_F(ConsoleDialogPresenter, TheEndOfTheInputFailsTheRunAndCancels) {
    EXPECT_EQ(Run({"check 14"}), 2);
    EXPECT_EQ(m_answers.m_status, EXIT_INPUT_RAN_OUT);
    EXPECT_EQ(m_answers.m_strFailure, ToUtf8("input ran out in dialog 30 \"取样\""));
    EXPECT_EQ(m_dialog.m_strLog, " 14:0 2:0");
}

TEST_F(ConsoleDialogPresenter, ARunThatFailedBeforeCancelsAtOnceAndKeepsItsFailure) {
    m_answers.Fail(EXIT_NO_SUCH_ANSWER, "first");
    EXPECT_EQ(Run({"ok"}), 2);
    EXPECT_EQ(m_answers.m_status, EXIT_NO_SUCH_ANSWER);
    EXPECT_EQ(m_answers.m_strFailure, "first");
}

TEST_F(ConsoleDialogPresenter, ADialogThatDoesNotTakeTheCancelIsClosedAllTheSame) {
    m_dialog.m_bStays = true;
    EXPECT_EQ(Run({}), 2);
    EXPECT_EQ(m_answers.m_status, EXIT_INPUT_RAN_OUT);
}
