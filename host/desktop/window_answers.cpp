#include "host/desktop/window_answers.h"

#include "host/console/words.h"

namespace {

constexpr const char* g_pCommandPrompt = "Command: ";

bool HasDialog(CAnswerKind kind) {
    return kind == CAnswerKind::FileToOpen || kind == CAnswerKind::FileToSave ||
           kind == CAnswerKind::SaveChanges;
}

} // namespace

void CWindowAnswers::Answer(const std::string& strText) {
    Say({strText, m_bAtCommandPrompt});
}

void CWindowAnswers::Start(const std::string& strCommandLine) {
    Say({strCommandLine, true});
}

void CWindowAnswers::Say(CSaid said) {
    m_arSaid.push_back(std::move(said));
    if (m_pWaiting) m_pWaiting->quit();
}

void CWindowAnswers::Wait(const CQuestion& question, bool bCommand) {
    m_bAtCommandPrompt = bCommand;
    m_window.BeginQuestion(question, bCommand);
    QEventLoop loop;
    QEventLoop* const pOuter = std::exchange(m_pWaiting, &loop);
    while (m_arSaid.empty())
        loop.exec();
    m_pWaiting = pOuter;
    m_bAtCommandPrompt = false;
    m_window.EndQuestion();
}

std::string CWindowAnswers::TakeAnswer(const CQuestion& question) {
    if (m_arSaid.empty() && HasDialog(question.m_kind))
        if (const std::optional<std::string> answer = m_window.AskByDialog(question)) return *answer;
    if (m_arSaid.empty()) Wait(question, false);
    if (m_arSaid.front().m_bCommandLine) return g_szEscape; // it stays for the command prompt
    std::string answer = std::move(m_arSaid.front().m_strText);
    m_arSaid.pop_front();
    return answer;
}

std::optional<std::string> CWindowAnswers::Ask(const CQuestion& question) {
    if (HasFailed()) return std::nullopt;
    if (std::optional<std::string> typed = TakeTyped(question.m_strPrompt)) return typed;
    while (true) {
        std::string answer = TakeAnswer(question);
        ShowAnswered(question.m_strPrompt, answer);
        const std::string text = WithoutBlanksAround(answer);
        const std::string strReason =
            question.m_fnRefusal && text != g_szEscape ? question.m_fnRefusal(text) : std::string();
        if (strReason.empty()) return answer;
        Print(strReason);
    }
}

std::optional<std::string> CWindowAnswers::NextCommandLine() {
    if (HasFailed()) return std::nullopt;
    if (std::optional<std::string> typed = TakeTyped(g_pCommandPrompt)) return typed;
    while (!m_arSaid.empty() && !m_arSaid.front().m_bCommandLine)
        m_arSaid.pop_front(); // answers that the command did not take
    if (m_arSaid.empty()) Wait({g_pCommandPrompt}, true);
    std::string line = std::move(m_arSaid.front().m_strText);
    m_arSaid.pop_front();
    ++m_nCommands;
    if (!WithoutBlanksAround(line).empty()) ShowAnswered(g_pCommandPrompt, line);
    return line;
}

bool CWindowAnswers::GoesOnAfterFailure() {
    Print(Fault()->m_strWhat);
    ForgetFault();
    return true;
}

void CWindowAnswers::ShowAnswered(const std::string& strPrompt, const std::string& strAnswer) {
    const std::size_t text = strPrompt.find_first_not_of("\r\n"); // it gets a line of its own anyhow
    Print((text == std::string::npos ? std::string() : strPrompt.substr(text)) + strAnswer);
}

void CWindowAnswers::Write(std::string_view text) {
    std::string shown(text);
    std::erase(shown, '\r');
    if (shown.empty()) return;
    m_window.ShowText(shown);
    m_bAtLineStart = shown.back() == '\n';
}

void CWindowAnswers::Print(const std::string& strLine) {
    Write((m_bAtLineStart ? "" : "\n") + strLine + "\n");
}
