#include "host/desktop/window_answers.h"

#include "tests/host/desktop/desktop_user.h"

#include <QtCore/QTimer>
#include <QtWidgets/QApplication>

#include <gtest/gtest.h>

namespace {

/// A window whose user does the next thing each time a question waits.
class CScriptedWindow final : public CPromptWindow {
public:
    CScriptedWindow() { StartTestQt(); }

    void ShowText(const std::string& strText) override { m_strShown += strText; }
    void BeginQuestion(const CQuestion& question, bool bCommand) override {
        m_strAsked += (bCommand ? "[command]" : "[" + question.m_strPrompt + "]");
        ASSERT_FALSE(m_arDeeds.empty()) << "nobody answers " << question.m_strPrompt;
        QTimer::singleShot(0, qApp, std::move(m_arDeeds.front()));
        m_arDeeds.pop_front();
    }
    void EndQuestion() override { ++m_nAnswered; }
    std::optional<std::string> AskByDialog(const CQuestion&) override { return m_dialog; }

    std::deque<std::function<void()>> m_arDeeds;
    std::string m_strShown, m_strAsked;
    std::optional<std::string> m_dialog;
    int m_nAnswered = 0;
};

class WindowAnswers : public testing::Test {
protected:
    void Then(std::function<void()> deed) { m_window.m_arDeeds.push_back(std::move(deed)); }
    void Say(const std::string& strText) {
        Then([this, strText] { m_answers.Answer(strText); });
    }
    CScriptedWindow m_window;
    CWindowAnswers m_answers{m_window};
};

std::string NeedsX(const std::string& strAnswer) {
    return strAnswer == "x" ? "" : "not x: " + strAnswer;
}

} // namespace

TEST_F(WindowAnswers, AQuestionWaitsForItsAnswerAndShowsIt) {
    Say("1,2");
    EXPECT_EQ(m_answers.Ask({"\nTo point: "}), "1,2");
    EXPECT_EQ(m_window.m_strAsked, "[\nTo point: ]");
    EXPECT_EQ(m_window.m_strShown, "To point: 1,2\n");
    EXPECT_EQ(m_window.m_nAnswered, 1);
}

TEST_F(WindowAnswers, ABadAnswerIsToldAndAskedForAgain) {
    Say("y");
    Say(" x ");
    EXPECT_EQ(m_answers.Ask({"X: ", CAnswerKind::Text, NeedsX}), " x ");
    EXPECT_EQ(m_window.m_strShown, "X: y\nnot x: y\nX:  x \n");
}

TEST_F(WindowAnswers, EscapeIsNeverABadAnswer) {
    Then([this] { m_answers.Cancel(); });
    EXPECT_EQ(m_answers.Ask({"X: ", CAnswerKind::Text, NeedsX}), g_szEscape);
}

TEST_F(WindowAnswers, ACommandBegunInTheMiddleOfAnotherCancelsItsQuestionsFirst) {
    Then([this] { m_answers.Start("LINE"); });
    EXPECT_EQ(m_answers.Ask({"X: "}), g_szEscape);
    EXPECT_EQ(m_answers.Ask({"Y: "}), g_szEscape) << "a command that asks on";
    EXPECT_EQ(m_window.m_strAsked, "[X: ]");
    EXPECT_EQ(m_answers.NextCommandLine(), "LINE");
}

TEST_F(WindowAnswers, AnswersThatACommandLeftAreNoCommands) {
    Then([this] {
        m_answers.Answer("#1F");
        m_answers.Answer("#20");
    });
    EXPECT_EQ(m_answers.Ask({"Select: "}), "#1F");
    Then([this] { m_answers.Answer("REGEN"); });
    EXPECT_EQ(m_answers.NextCommandLine(), "REGEN");
}

TEST_F(WindowAnswers, AFailureEndsItsCommandOnly) {
    m_answers.Fail(EXIT_NO_SUCH_ANSWER, "it went wrong");
    EXPECT_EQ(m_answers.Ask({"X: "}), std::nullopt);
    EXPECT_TRUE(m_answers.GoesOnAfterFailure());
    EXPECT_EQ(m_window.m_strShown, "it went wrong\n");
    Say("REGEN");
    EXPECT_EQ(m_answers.NextCommandLine(), "REGEN");
}

TEST_F(WindowAnswers, FilesAndUnsavedChangesAreAskedForByADialogUnlessAnswered) {
    m_window.m_dialog = "/a.dwg";
    EXPECT_EQ(m_answers.Ask({"File: ", CAnswerKind::FileToOpen}), "/a.dwg");
    EXPECT_EQ(m_answers.Ask({"File: ", CAnswerKind::FileToSave}), "/a.dwg");
    EXPECT_EQ(m_answers.Ask({"Save? ", CAnswerKind::SaveChanges}), "/a.dwg");
    Say("typed");
    EXPECT_EQ(m_answers.Ask({"Text: "}), "typed");
}

TEST_F(WindowAnswers, WhatIsPrintedGetsALineOfItsOwn) {
    m_answers.Write("\r\nhalf a line");
    m_answers.Print("a line");
    EXPECT_EQ(m_window.m_strShown, "\nhalf a line\na line\n");
}
