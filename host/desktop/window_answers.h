#pragma once

#include "host/console/command_answers.h"

#include <QtCore/QEventLoop>

#include <deque>

/// The window's side of questions. Texts are UTF-8.
class CPromptWindow {
public:
    virtual ~CPromptWindow() = default;
    virtual void ShowText(const std::string& strText) = 0; ///< in the text window, as it stands
    /// A question waits for its answer from here on; bCommand: it is the command prompt.
    virtual void BeginQuestion(const CQuestion& question, bool bCommand) = 0;
    /// It is answered, and work goes on.
    virtual void EndQuestion() = 0;
    /// Asks by a dialog of its own; none when there is none for such questions, g_szEscape when it is given
    /// up.
    virtual std::optional<std::string> AskByDialog(const CQuestion& question) = 0;
};

/// Answers that the user gives at a window. While a question waits, the window's events are handled; what
/// they lead to is an answer or a command line, and these are all that ends the wait.
class CWindowAnswers final : public CCommandAnswers {
public:
    explicit CWindowAnswers(CPromptWindow& window)
        : m_window(window) {}

    // What the user does.
    void Answer(const std::string& strText); ///< to the question at hand
    /// Gives up the command that asks, if one does, and begins this one.
    void Start(const std::string& strCommandLine);
    void Cancel() { Answer(g_szEscape); }
    bool IsAtCommandPrompt() const { return m_bAtCommandPrompt; }
    /// Nothing is under way: a question waits, and nothing has been said to it.
    bool IsWaiting() const { return m_pWaiting && m_arSaid.empty(); }
    int CommandsBegun() const { return m_nCommands; }

    std::optional<std::string> Ask(const CQuestion& question) override;
    std::optional<std::string> NextCommandLine() override;
    void ShowAnswered(const std::string& strPrompt, const std::string& strAnswer) override;
    void Write(std::string_view text) override;
    void Print(const std::string& strLine) override;
    void Report(const std::string& strWhat) override { Print(strWhat); }
    bool GoesOnAfterFailure() override;

private:
    struct CSaid {
        std::string m_strText;
        bool m_bCommandLine;
    };
    std::string TakeAnswer(const CQuestion& question);
    void Wait(const CQuestion& question, bool bCommand);
    void Say(CSaid said);

    CPromptWindow& m_window;
    std::deque<CSaid> m_arSaid;
    QEventLoop* m_pWaiting = nullptr;
    bool m_bAtCommandPrompt = false;
    bool m_bAtLineStart = true;
    int m_nCommands = 0;
};
